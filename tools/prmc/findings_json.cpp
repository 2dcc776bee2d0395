// Writes findings as JSON.
#include "prmc/findings_json.h"

#include <nlohmann/json.hpp>

namespace {

nlohmann::ordered_json FindingJson(const std::string& file, const Finding& finding) {
    nlohmann::ordered_json json = {{"file", file}};
    if (finding.place.line == 0) {
        json["offset"] = finding.place.column;
    } else {
        json["line"] = finding.place.line;
        if (finding.place.column != 0)
            json["column"] = finding.place.column;
    }
    json["severity"] = finding.severity == Severity::kError ? "error" : "warning";
    json["message"] = finding.message;
    return json;
}

} // namespace

std::string FindingsJson(const std::vector<std::string>& files, const Findings& findings) {
    auto json = nlohmann::ordered_json::array();
    for (const Finding& finding : findings.list)
        json.push_back(FindingJson(files[finding.place.file], finding));
    using OnBadUtf8 = nlohmann::ordered_json::error_handler_t; // the file's name may be any bytes
    return json.dump(2, ' ', false, OnBadUtf8::replace) + "\n";
}
