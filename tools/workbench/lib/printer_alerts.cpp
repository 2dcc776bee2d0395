// Reads the table of alerts row by row, and the bits of the printer's conditions.
#include "workbench/lib/printer_alerts.h"

#include "workbench/lib/stopwatch.h"
#include "workbench/lib/text.h"

namespace {

constexpr double kAlertsLimit = 10000;                              // milliseconds
constexpr const char* kSeverityColumn = ".1.3.6.1.2.1.43.18.1.1.2"; // prtAlertSeverityLevel
constexpr const char* kTextColumn = ".1.3.6.1.2.1.43.18.1.1.8";     // prtAlertDescription
constexpr int32_t kCriticalSeverity = 3;

// Bits of hrPrinterDetectedErrorState, the highest one of the first byte being 0. The others are warnings.
constexpr struct {
    size_t bit;
    const char* words;
} kStoppingBits[] = {
    {1, "no paper"},     {3, "no toner"}, {4, "door open"},
    {5, "paper jam"},    {6, "offline"},  {10, "a supply is missing"},
    {12, "output full"},
};

std::string RowOid(const char* column, const ObjectId& index) {
    ObjectId oid = OidOf(column);
    oid.insert(oid.end(), index.begin(), index.end());
    return OidText(oid);
}

} // namespace

PrinterAlerts ReadAlerts(const NextObjects& next, const ObjectValue& errorState) {
    PrinterAlerts found;
    const int64_t start = CounterNow();
    bool isAtEnd = false;
    std::vector<std::string> row = {kSeverityColumn, kTextColumn};
    while (!isAtEnd && found.alerts.size() < kMaxAlerts && MillisecondsSince(start) < kAlertsLimit) {
        bool isAnswered = false;
        const ObjectValues values = next(row, isAnswered);
        ObjectId index; // device and alert
        ObjectId textIndex;
        if (!IsInColumn(values[0].oid, kSeverityColumn, index) || index[0] != 1) {
            isAtEnd = isAnswered;
            break;
        }
        const bool hasText = IsInColumn(values[1].oid, kTextColumn, textIndex) && textIndex == index
                             && !values[1].text.empty();
        found.alerts.push_back(
            {values[0].number == kCriticalSeverity, hasText ? values[1].text : "alert without a text"});
        row = {RowOid(kSeverityColumn, index), RowOid(kTextColumn, index)};
    }
    found.areAnswered = isAtEnd && errorState.isAnswered;
    if (CriticalAlerts(found).empty())
        for (const std::string& words : StoppingConditions(errorState.bytes))
            found.alerts.push_back({true, words});
    return found;
}

PrinterAlerts AskAlerts(uint32_t address, const ObjectValue& errorState) {
    return ReadAlerts(NextObjectsAt(address), errorState);
}

std::string CriticalAlerts(const PrinterAlerts& alerts) {
    std::string text;
    for (const PrinterAlert& alert : alerts.alerts)
        if (alert.isCritical)
            AddPart(text, alert.text);
    return text;
}

std::vector<std::string> StoppingConditions(const std::string& errorState) {
    std::vector<std::string> conditions;
    for (const auto& row : kStoppingBits)
        if (row.bit / 8 < errorState.size() && (errorState[row.bit / 8] & 0x80 >> row.bit % 8) != 0)
            conditions.emplace_back(row.words);
    return conditions;
}
