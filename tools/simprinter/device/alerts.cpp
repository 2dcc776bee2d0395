// The table of conditions, the alerts that they become, and the states that follow from them.
#include "simprinter/device/alerts.h"

#include <algorithm>

// Groups, severities and training levels of the Printer MIB.
enum AlertGroupCode { kGeneralGroup = 5, kCoverGroup = 6, kInputGroup = 8, kSuppliesGroup = 11 };
enum AlertSeverityCode { kCritical = 3, kWarning = 4 };
enum AlertTrainingCode { kUntrained = 3, kTrained = 4, kFieldService = 5 };

// `when` gets the position of the part: among the trays or supplies, 0 for the others.
struct ConditionKind {
    bool (*when)(const Device& device, size_t position);
    const char* text;     // follows the name of the part
    int errors;           // bits of hrPrinterDetectedErrorState, the first one highest
    AlertGroupCode group; // decides over which parts the condition is looked for
    int code;
    AlertSeverityCode severity;
    AlertTrainingCode training;
};

namespace {

bool IsLow(int level, int capacity) {
    return level > 0 && level <= capacity / 10;
}

bool IsOffline(const Device& device, size_t) {
    return !device.isOnline;
}
bool CoverIsOpen(const Device& device, size_t) {
    return device.isCoverOpen != 0;
}
bool TrayIsEmpty(const Device& device, size_t position) {
    return device.trays[position].level == 0;
}
bool TrayIsLow(const Device& device, size_t position) {
    return IsLow(device.trays[position].level, device.trays[position].capacity);
}
bool NoTrayHasPaper(const Device& device, size_t) {
    return !device.trays.empty() && std::all_of(device.trays.begin(), device.trays.end(), [](const Tray& t) {
        return t.level == 0;
    });
}

enum class SupplySort { kToner, kReceptacle, kOther };

SupplySort SortOf(const Supply& supply) {
    return supply.kind->type == kToner               ? SupplySort::kToner
           : supply.kind->supplyClass == kReceptacle ? SupplySort::kReceptacle
                                                     : SupplySort::kOther;
}
template <SupplySort kSort>
bool SupplyIsEmpty(const Device& device, size_t position) {
    return SortOf(device.supplies[position]) == kSort && device.supplies[position].level == 0;
}
template <SupplySort kSort>
bool SupplyIsLow(const Device& device, size_t position) {
    const Supply& supply = device.supplies[position];
    return SortOf(supply) == kSort && IsLow(supply.level, supply.capacity);
}
bool WasteBoxIsNearlyFull(const Device& device, size_t position) {
    return SortOf(device.supplies[position]) == SupplySort::kReceptacle
           && device.supplies[position].level == 1;
}

// clang-format off
constexpr ConditionKind kConditions[] = {
    // when                                      text                errors  group           code  severity   training
    {IsOffline,                                  "is offline",       0x0200, kGeneralGroup,  22,   kCritical, kUntrained},
    {CoverIsOpen,                                "is open",          0x0800, kCoverGroup,    3,    kCritical, kUntrained},
    {NoTrayHasPaper,                             "has no paper",     0x4000, kGeneralGroup,  13,   kCritical, kUntrained},
    {TrayIsEmpty,                                "is empty",         0x0004, kInputGroup,    808,  kWarning,  kUntrained},
    {TrayIsLow,                                  "is nearly empty",  0x8000, kInputGroup,    807,  kWarning,  kUntrained},
    {SupplyIsEmpty<SupplySort::kToner>,          "is empty",         0x1000, kSuppliesGroup, 1101, kCritical, kUntrained},
    {SupplyIsLow<SupplySort::kToner>,            "is nearly empty",  0x2000, kSuppliesGroup, 1104, kWarning,  kUntrained},
    {SupplyIsEmpty<SupplySort::kReceptacle>,     "is full",          0x0100, kSuppliesGroup, 1109, kCritical, kTrained},
    {WasteBoxIsNearlyFull,                       "is nearly full",   0,      kSuppliesGroup, 1107, kWarning,  kTrained},
    {SupplyIsEmpty<SupplySort::kOther>,          "is used up",       0x0100, kSuppliesGroup, 11,   kCritical, kFieldService},
    {SupplyIsLow<SupplySort::kOther>,            "is nearly used up", 0,     kSuppliesGroup, 10,   kWarning,  kFieldService},
};
// clang-format on

// A part that conditions are looked for at: its row in the table of its group, and its name.
struct Part {
    int row;
    std::string name;
};
std::vector<Part> PartsOf(const Device& device, AlertGroupCode group) {
    std::vector<Part> parts;
    switch (group) {
    case kGeneralGroup:
        return {{1, "Printer"}};
    case kCoverGroup:
        return {{1, kCoverName}};
    case kInputGroup:
        for (const Tray& tray : device.trays)
            parts.push_back({tray.kind->name.code, tray.name});
        break;
    case kSuppliesGroup:
        for (const Supply& supply : device.supplies)
            parts.push_back({supply.kind->name.code, supply.name});
        break;
    }
    return parts;
}

bool IsOver(const std::vector<Condition>& conditions, const Alert& alert) {
    return std::find(conditions.begin(), conditions.end(), alert.condition) == conditions.end();
}

// Bits of a subunit's status (PrtSubUnitStatusTC).
constexpr int kUnavailableOnRequest = 1, kNonCriticalAlert = 8, kCriticalAlert = 16, kOffline = 32;

int AlertBits(const Alert& alert) {
    return AlertSeverity(alert) == kCritical ? kCriticalAlert : kNonCriticalAlert;
}

} // namespace

std::vector<Condition> ConditionsOf(const Device& device) {
    std::vector<Condition> conditions;
    for (const ConditionKind& kind : kConditions) {
        const std::vector<Part> parts = PartsOf(device, kind.group);
        for (size_t i = 0; i < parts.size(); ++i) {
            if (kind.when(device, i))
                conditions.push_back({&kind, parts[i].row, parts[i].name + ' ' + kind.text});
        }
    }
    return conditions;
}

void UpdateAlerts(AlertTable& table, const Device& device, int64_t upTime) {
    const std::vector<Condition> conditions = ConditionsOf(device);
    std::vector<Alert>& alerts = table.alerts;
    alerts.erase(std::remove_if(alerts.begin(), alerts.end(),
                                [&](const Alert& alert) { return IsOver(conditions, alert); }),
                 alerts.end());
    for (const Condition& condition : conditions) {
        const auto isKnown = [&](const Alert& alert) { return alert.condition == condition; };
        if (std::any_of(alerts.begin(), alerts.end(), isKnown))
            continue;
        alerts.push_back({condition, ++table.last, upTime});
        ++table.all;
        table.critical += condition.kind->severity == kCritical ? 1 : 0;
    }
}

int AlertSeverity(const Alert& alert) {
    return alert.condition.kind->severity;
}
int AlertTraining(const Alert& alert) {
    return alert.condition.kind->training;
}
int AlertGroup(const Alert& alert) {
    return alert.condition.kind->group;
}
int AlertCode(const Alert& alert) {
    return alert.condition.kind->code;
}

DeviceStatus StatusOf(const AlertTable& table, const Device& device) {
    constexpr int kRunning = 2, kRunningWithWarning = 3, kDown = 5; // hrDeviceStatus
    constexpr int kOtherStatus = 1, kIdle = 3;                      // hrPrinterStatus
    int errors = 0, marker = device.isOnline ? 0 : kOffline;
    const Alert* worst = nullptr;
    for (const Alert& alert : table.alerts) {
        const ConditionKind& kind = *alert.condition.kind;
        errors |= kind.errors;
        if (kind.group == kSuppliesGroup || kind.group == kCoverGroup)
            marker |= AlertBits(alert) | (kind.severity == kCritical ? kUnavailableOnRequest : 0);
        if (!worst || kind.severity < AlertSeverity(*worst)) // the smaller number is the graver one
            worst = &alert;
    }
    const bool isDown = worst && AlertSeverity(*worst) == kCritical;
    return {!worst   ? kRunning
            : isDown ? kDown
                     : kRunningWithWarning,
            isDown ? kOtherStatus : kIdle,
            {static_cast<char>(errors >> 8), static_cast<char>(errors & 0xFF)},
            marker,
            worst ? worst->condition.text : "Ready",
            table.critical,
            table.all};
}

int InputStatus(const AlertTable& table, const Device& device, const Tray& tray) {
    int status = (device.isOnline ? 0 : kOffline) | (tray.level == 0 ? kUnavailableOnRequest : 0);
    for (const Alert& alert : table.alerts) {
        if (AlertGroup(alert) == kInputGroup && alert.condition.row == tray.kind->name.code)
            status |= AlertBits(alert);
    }
    return status;
}
