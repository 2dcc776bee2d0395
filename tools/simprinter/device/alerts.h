// The conditions of a device that its printer reports: as alerts of the Printer MIB (RFC 3805), in the status
// objects of Host Resources (RFC 2790) and on the display.
#ifndef SIMPRINTER_ALERTS_H
#define SIMPRINTER_ALERTS_H

#include "simprinter/device/device.h"

#include <cstdint>

struct ConditionKind; // a row of the table

// A condition that a part of the device is in.
struct Condition {
    const ConditionKind* kind;
    int row;          // of the part, in the table of its group
    std::string text; // "Tray 2 is empty"

    bool operator==(const Condition& other) const { return kind == other.kind && row == other.row; }
};

std::vector<Condition> ConditionsOf(const Device& device);

// A row of prtAlertTable.
struct Alert {
    Condition condition;
    int index;
    int64_t time; // sysUpTime when it appeared, hundredths of a second
};

struct AlertTable {
    std::vector<Alert> alerts; // by index
    int last = 0;              // index used so far
    int critical = 0, all = 0; // counted since the start
};

// Adds what is new with the next indexes and removes what is over.
void UpdateAlerts(AlertTable& table, const Device& device, int64_t upTime);

// Columns of an alert.
int AlertSeverity(const Alert& alert);
int AlertTraining(const Alert& alert);
int AlertGroup(const Alert& alert);
int AlertCode(const Alert& alert);

// What the alerts amount to.
struct DeviceStatus {
    int deviceStatus;           // hrDeviceStatus
    int printerStatus;          // hrPrinterStatus
    std::string detectedErrors; // hrPrinterDetectedErrorState
    int markerStatus;           // prtMarkerStatus
    std::string display;        // prtConsoleDisplayBufferText
    int criticalEvents, allEvents;
};
DeviceStatus StatusOf(const AlertTable& table, const Device& device);

// prtInputStatus of a tray.
int InputStatus(const AlertTable& table, const Device& device, const Tray& tray);

#endif
