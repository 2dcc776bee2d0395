// What a device itself says that it is. By SNMP the module recognises no model, and it finds supplies by
// their number only: the black toner of a monochrome printer, supply 1, is reported as cyan.
#ifndef WORKBENCH_LIB_PRINTER_IDENTITY_H
#define WORKBENCH_LIB_PRINTER_IDENTITY_H

#include "workbench/lib/localized_text.h"
#include "workbench/lib/printer_queries.h"

struct PrinterIdentity {
    std::string name; // the model that the device says it is, or another text about it; may be empty
    bool isModel;     // it names the driver's model
    // What the device calls a supply of the module's list that is another one there; empty: nothing to say.
    // In the order of the list.
    std::vector<std::string> otherSupplies;
};

// Asks the device, by the workbench's own requests.
PrinterIdentity AskIdentity(const Printer& printer);

// The warning about a device that does not say that it is of the driver's model; empty for others.
std::string IdentityWarning(const PrinterIdentity& identity, LANGID language = kEnglish);

// Whether the device's own description names another supply than the one that the module's key means. A
// description without a word for any supply, such as an order number, names none.
bool IsOtherSupply(const char* key, const std::string& description);

#endif
