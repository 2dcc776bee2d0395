// Writes the page of a diagnosis.
#include "workbench/diagnosis/page.h"

#include "workbench/diagnosis/samples.h"
#include "workbench/lib/option_words.h"
#include "workbench/lib/supply_words.h"
#include "workbench/lib/text.h"
#include "workbench/lib/text_form.h"
#include "workbench/lib/traffic_trace.h"

#include <cmath>
#include <winsock2.h>

namespace {

constexpr size_t kTextWidth = 100; // of the sentences

double Rounded(double milliseconds) {
    return std::round(milliseconds * 10) / 10;
}

std::string TimeText() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    char text[32];
    snprintf(text, sizeof(text), "%04d-%02d-%02d %02d:%02d", now.wYear, now.wMonth, now.wDay, now.wHour,
             now.wMinute);
    return text;
}

Document Printed(const Observations& seen) {
    in_addr shown = {};
    shown.s_addr = seen.host.ipv4;
    const bool hasIpv4 = seen.host.isFound && seen.host.kind == HostKind::kIpv4;
    Document addresses = Document::MakeList();
    for (const std::string& address : seen.host.addresses)
        addresses.Add(address);
    return {{"address", seen.address},
            {"resolvedTo", hasIpv4 ? Document(inet_ntoa(shown)) : Document()},
            {"allAddresses", std::move(addresses)},
            {"time", TimeText()}};
}

Document Network(const Observations& seen) {
    if (!seen.exchange)
        return nullptr;
    const Samples samples = SamplesOf(seen);
    Document network = {{"port", seen.isAddressed ? "open" : seen.isRefused ? "closed" : "silent"}};
    for (const Access& access : seen.answered)
        network["answers"].Add(VersionText(access.version) + " with community " + access.community);
    network["requests"] = seen.isAddressed ? samples.requests : seen.exchange->Requests().size();
    network["answered"] = samples.answered;
    if (samples.answered != 0) {
        network["medianMs"] = Rounded(samples.median);
        network["slowestMs"] = Rounded(samples.slowest);
    }
    return network;
}

Document Device(const Observations& seen) {
    if (!seen.isAddressed)
        return nullptr;
    Document device = {
        {"listedAsPrinter", seen.printerNumber > 0
                                ? Document("yes, as device " + std::to_string(seen.printerNumber))
                            : seen.hasDeviceList ? Document("no")
                                                 : Document("unknown: the list of devices is not answered")}};
    for (const DescriptionObject& object : seen.description) {
        const std::string text = DescriptionText(seen, object);
        device[object.label] = text.empty() ? Document() : Document(text);
    }
    device["model"] = "decided by these texts only: the driver can't tell the model by SNMP";
    return device;
}

Document Objects(const Observations& seen) {
    Document rows = Document::MakeList();
    for (size_t i = 0; seen.areObjectsAsked && i < seen.objects.size(); ++i) {
        const Arrival* answer = AnswerTo(seen, i);
        const double time = TimeOfObject(seen, seen.objects[i].oid);
        rows.Add({{"object", ObjectName(seen.objects[i].oid)},
                  {"oid", OidText(seen.objects[i].oid)},
                  {"use", seen.objects[i].use},
                  {"answer", answer != nullptr ? AnswerText(answer->message)
                             : time < 0        ? "no answer"
                                               : "damaged"},
                  {"ms", time < 0 ? Document() : Document(Rounded(time))}});
    }
    return rows;
}

// --- What the driver shows

// Only those that printers are asked about.
Document SupplyLevels(const DriverObservation& driver) {
    Document rows = Document::MakeList();
    for (const MrkSupRequestItem& supply : driver.supplies)
        if (!SupplyName(supply.name).empty())
            rows.Add({{"supply", FieldText(supply.name)},
                      {"name", SupplyName(supply.name)},
                      {"level", SupplyLevel(supply)}});
    return rows;
}

Document Driver(const Observations& seen) {
    const DriverObservation& driver = seen.driver;
    if (!driver.isAsked)
        return nullptr;
    std::string failed;
    for (const std::string& query : driver.failed)
        failed += (failed.empty() ? "" : ", ") + query;
    if (!driver.isEnded)
        failed += (failed.empty() ? "" : ", ") + driver.query + " (not ended)";
    Document shown = {
        {"reached", driver.isReached},
        {"snmpBy", UsesSystemSnmp() ? "the system's SNMP libraries" : "the driver itself"},
        {"requestsToReach", driver.reachSends},
        {"reachMs", Rounded(driver.reachTime)},
    };
    if (driver.isReached) {
        shown["failedQueries"] = failed.empty() ? "none" : failed;
        shown["overlays"] = driver.overlays[0].size() + driver.overlays[1].size();
        shown["colorProfiles"] =
            driver.profiles[0].size() + driver.profiles[1].size() + driver.profiles[2].size();
    }
    return shown;
}

Document FindingRows(const std::vector<DiagnosisFinding>& findings) {
    Document rows = Document::MakeList();
    for (const DiagnosisFinding& finding : findings)
        rows.Add({{"finding", finding.kind},
                  {"what", finding.sentence},
                  {"driver", finding.effect},
                  {"action", finding.action}});
    return rows;
}

Document WithoutField(const Document& row, const std::string& name) {
    Document rest;
    for (const Document::Field& field : row.Fields())
        if (field.name != name)
            rest[field.name] = field.value;
    return rest;
}

// The text in lines of the width, each after the first indented.
std::string Wrapped(const std::string& first, const std::string& text) {
    const std::string indent(first.size(), ' ');
    std::string wrapped;
    std::string line = first;
    size_t at = 0;
    while (at < text.size()) {
        const size_t space = std::min(text.find(' ', at), text.size());
        if (line.size() > first.size() && line.size() + (space - at) >= kTextWidth) {
            wrapped += line + "\n";
            line = indent;
        }
        line += (line.size() > first.size() ? " " : "") + text.substr(at, space - at);
        at = space + 1;
    }
    return wrapped + line + "\n";
}

} // namespace

Document DiagnosisDocument(const FamilyFiles& family, const Observations& seen,
                           const std::vector<DiagnosisFinding>& findings) {
    return {
        {"printer", Printed(seen)},
        {"network", Network(seen)},
        {"device", Device(seen)},
        {"objects", Objects(seen)},
        {"driver", Driver(seen)},
        {"options", OptionsInWords(ReadOptionFeatures(family), seen.driver.options)},
        {"supplies", SupplyLevels(seen.driver)},
        {"findings", FindingRows(findings)},
    };
}

// Without what only programs need, such as the OIDs next to the names.
std::string DiagnosisText(const Document& diagnosis) {
    Document sections;
    for (const Document::Field& field : diagnosis.Fields()) {
        if (field.name == "findings" || field.value.IsNull())
            continue;
        if (field.name == "printer" && field.value["allAddresses"].Elements().size() < 2)
            sections[field.name] = WithoutField(field.value, "allAddresses");
        else if (!field.value.IsList())
            sections[field.name] = field.value;
        else if (field.name == "options" && !field.value.Elements().empty())
            sections[field.name] = OptionRows(field.value);
        else
            for (const Document& row : field.value.Elements())
                sections[field.name].Add(WithoutField(row, field.name == "supplies" ? "supply" : "oid"));
    }
    const Document::List& findings = diagnosis["findings"].Elements();
    std::string text = TextForm(sections) + "\n";
    if (findings.empty())
        return text + "What to do\n  Nothing: no fault has been found.\n";
    text += "What to do (" + std::to_string(findings.size()) + ")\n";
    int number = 0;
    for (const Document& finding : findings) {
        ++number;
        const std::string mark = (number < 10 ? "  " : " ") + std::to_string(number) + ". ";
        text += Wrapped(mark, finding["what"].Text());
        text += Wrapped("     Driver: ", finding["driver"].Text());
        text += Wrapped("     To do:  ", finding["action"].Text());
    }
    return text;
}
