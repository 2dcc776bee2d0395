// Formats findings and their places.
#include "common/findings.h"

#include "common/text.h"

#include <algorithm>
#include <tuple>

std::string PlaceText(const Place& place) {
    if (place.line == 0)
        return Hex(place.column);
    return std::to_string(place.line) + (place.column == 0 ? "" : ":" + std::to_string(place.column));
}

std::string WarningMark(const Finding& finding) {
    return finding.severity == Severity::kWarning ? "warning: " : "";
}

std::string FindingText(const Finding& finding) {
    return PlaceText(finding.place) + ": " + WarningMark(finding) + finding.message;
}

bool Findings::HasErrors() const {
    return std::any_of(list.begin(), list.end(),
                       [](const Finding& finding) { return finding.severity == Severity::kError; });
}

void Findings::Sort() {
    std::stable_sort(list.begin(), list.end(), [](const Finding& a, const Finding& b) {
        return std::tuple(a.place.file, a.place.line, a.place.column)
               < std::tuple(b.place.file, b.place.line, b.place.column);
    });
}

void Findings::RaiseWarnings() {
    for (Finding& finding : list)
        finding.severity = Severity::kError;
}
