// What keeps a printer from printing, and what will soon: its alerts, which the module never asks for. Asked
// by the workbench's own requests.
#ifndef WORKBENCH_LIB_PRINTER_ALERTS_H
#define WORKBENCH_LIB_PRINTER_ALERTS_H

#include "workbench/lib/snmp_objects.h"

struct PrinterAlert {
    bool isCritical;  // the printer has stopped
    std::string text; // as the printer says it; or, without an alert, the condition that it reports
};

struct PrinterAlerts {
    bool areAnswered = false; // all of them; otherwise there may be more
    std::vector<PrinterAlert> alerts;
};

// The object with the conditions of device 1: hrPrinterDetectedErrorState.
constexpr const char* kErrorStateObject = ".1.3.6.1.2.1.25.3.5.1.2.1";

constexpr size_t kMaxAlerts = 200;

// Reads the alerts of device 1, row by row: at most kMaxAlerts rows, for 10 seconds; then they are not
// answered completely. The conditions that stop a printer count where it has no critical alert.
PrinterAlerts ReadAlerts(const NextObjects& next, const ObjectValue& errorState);

// The same with the module's way of asking.
PrinterAlerts AskAlerts(uint32_t address, const ObjectValue& errorState);

// The critical ones, in words.
std::string CriticalAlerts(const PrinterAlerts& alerts);

// The conditions in a value of kErrorStateObject that stop a printer.
std::vector<std::string> StoppingConditions(const std::string& errorState);

#endif
