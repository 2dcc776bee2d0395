// What a device itself says that it is. By SNMP the module recognises no model, and it finds supplies by
// their number only: the black toner of a monochrome printer, supply 1, is reported as cyan.
#ifndef WORKBENCH_LIB_PRINTER_IDENTITY_H
#define WORKBENCH_LIB_PRINTER_IDENTITY_H

#include "workbench/lib/localized_text.h"
#include "workbench/lib/printer_queries.h"

// The texts in which devices name their model, the most specific one first: hrDeviceDescr of device 1,
// sysDescr and prtGeneralPrinterName, which is often a name that an administrator gives.
inline constexpr const char* kModelObjects[] = {".1.3.6.1.2.1.25.3.2.1.3.1", ".1.3.6.1.2.1.1.1.0",
                                                ".1.3.6.1.2.1.43.5.1.1.16.1"};

struct OwnModel {
    std::string name;     // the model that the device says it is, or another text about it; may be empty
    bool isModel = false; // one of the texts names the driver's model
};

// What the device says in these texts, of which any may be empty.
OwnModel ModelIn(const std::vector<std::string>& texts);

struct PrinterIdentity : OwnModel {
    bool isNameAnswered = false; // otherwise a text that may name the model was not answered
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
