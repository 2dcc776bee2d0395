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

constexpr const char* kUpTimeSeconds = "upTimeSeconds"; // for programs
constexpr size_t kTextWidth = 100;                      // of the sentences

double Rounded(double milliseconds) {
    return std::round(milliseconds * 10) / 10;
}

Document PrinterSection(const Observations& seen) {
    in_addr shown = {};
    shown.s_addr = seen.host.ipv4;
    const bool hasIpv4 = seen.host.isFound && seen.host.kind == HostKind::kIpv4;
    Document addresses = Document::MakeList();
    for (const std::string& address : seen.host.addresses)
        addresses.Add(address);
    return {{"address", seen.address},
            {"resolvedTo", hasIpv4 ? Document(inet_ntoa(shown)) : Document()},
            {"allAddresses", std::move(addresses)},
            {"time", LocalTimeText()}};
}

Document NetworkSection(const Observations& seen) {
    if (!seen.exchange)
        return nullptr;
    const Samples samples = SamplesOf(seen);
    const bool isSent = seen.exchange->IsSent();
    Document network = {{"port", seen.isAddressed ? "open"
                                 : seen.isRefused ? "closed"
                                 : isSent         ? "silent"
                                                  : "unreachable"}};
    for (const Access& access : seen.answered)
        network["answers"].Add(VersionText(access.version) + " with community " + access.community);
    network["requests"] = seen.isAddressed ? samples.requests : isSent ? seen.exchange->Requests().size() : 0;
    network["answered"] = samples.answered;
    if (samples.answered != 0) {
        network["medianMs"] = Rounded(samples.median);
        network["slowestMs"] = Rounded(samples.slowest);
    }
    return network;
}

// A text is empty where the device has none, and null where it has not answered.
Document DeviceSection(const Observations& seen) {
    if (!seen.isAddressed)
        return nullptr;
    Document device = {{"listedAsPrinter",
                        seen.place.device > 0
                            ? Document("yes, as device " + std::to_string(seen.place.device))
                        : seen.place.isAnswered ? Document("no")
                                                : Document("unknown: the list of devices is not answered")}};
    for (const DescriptionObject& object : seen.description) {
        const Arrival* answer = AnswerTo(seen, object);
        device[object.label] = answer != nullptr ? Document(DescriptionText(seen, object)) : Document();
        if (answer != nullptr && answer->message.valueType == ASN_TIMETICKS)
            device[kUpTimeSeconds] = answer->message.number / kTicksPerSecond;
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
                  {"usedFor", seen.objects[i].usedFor},
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

template <typename Lists>
size_t StoredCount(const Lists& lists) {
    size_t rows = 0;
    for (const StoredResources& list : lists)
        rows += list.size();
    return rows;
}

// A number is null where the query has not been answered.
Document DriverSection(const Observations& seen) {
    const DriverObservation& driver = seen.driver;
    if (!driver.isAsked)
        return nullptr;
    Document failed = Document::MakeList();
    for (const std::string& query : driver.failed)
        failed.Add(query);
    if (!driver.isEnded)
        failed.Add(driver.query + " (not ended)");
    Document shown = {
        {"reached", driver.isReached},
        {"requestsSentBy", UsesSystemSnmp() ? "the system's SNMP libraries" : "the driver itself"},
        {"requestsToReach", driver.reachSends},
        {"reachMs", Rounded(driver.reachTime)},
    };
    if (driver.isReached) {
        shown["failedQueries"] = std::move(failed);
        shown["repeatedRequests"] = driver.repeats;
        shown["overlays"] = driver.overlays ? Document(StoredCount(*driver.overlays)) : Document();
        shown["profiles"] = driver.profiles ? Document(StoredCount(*driver.profiles)) : Document();
    }
    return shown;
}

Document FindingRows(const std::vector<DiagnosisFinding>& findings) {
    Document rows = Document::MakeList();
    for (const DiagnosisFinding& finding : findings)
        rows.Add({{"finding", finding.kind},
                  {"isNote", finding.isNote},
                  {"what", finding.sentence},
                  {"driver", finding.effect},
                  {"action", finding.action}});
    return rows;
}

// The row without what only programs need: OIDs, and the module's own names.
Document RowForPeople(const Document& row) {
    Document rest;
    for (const Document::Field& field : row.Fields())
        if (field.name != "oid" && field.name != "use" && field.name != "supply")
            rest[field.name] = field.value;
    return rest;
}

std::string ListText(const Document& texts) {
    std::string list;
    for (const Document& text : texts.Elements())
        AddPart(list, text.Text());
    return list.empty() ? "none" : list;
}

// Lists in one line, and words for what is null or empty.
Document SectionForPeople(const Document& section) {
    Document rest;
    for (const Document::Field& field : section.Fields()) {
        const bool isOneAddress = field.name == "allAddresses" && field.value.Elements().size() < 2;
        const bool isUnresolved = field.name == "resolvedTo" && field.value.IsNull();
        if (field.name == kUpTimeSeconds || isOneAddress || isUnresolved)
            continue;
        const bool isEmpty = field.value.IsText() && field.value.Text().empty();
        rest[field.name] = field.value.IsList()   ? Document(ListText(field.value))
                           : field.value.IsNull() ? Document("no answer")
                           : isEmpty              ? Document("none")
                                                  : field.value;
    }
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

// The notes, or all others; empty when there are none.
std::string FindingsText(const std::string& title, const Document& findings, bool areNotes) {
    std::string text;
    int number = 0;
    for (const Document& finding : findings.Elements()) {
        if (finding["isNote"].Bool() != areNotes)
            continue;
        ++number;
        const std::string mark = (number < 10 ? "  " : " ") + std::to_string(number) + ". ";
        text += Wrapped(mark, finding["what"].Text());
        text += Wrapped("     Driver: ", finding["driver"].Text());
        text += Wrapped("     To do:  ", finding["action"].Text());
    }
    return text.empty() ? "" : "\n" + title + " (" + std::to_string(number) + ")\n" + text;
}

} // namespace

Document DiagnosisDocument(const FamilyFiles& family, const Observations& seen,
                           const std::vector<DiagnosisFinding>& findings) {
    return {
        {"printer", PrinterSection(seen)},
        {"network", NetworkSection(seen)},
        {"device", DeviceSection(seen)},
        {"objects", Objects(seen)},
        {"driver", DriverSection(seen)},
        {"options", OptionsInWords(ReadOptionFeatures(family), seen.driver.options)},
        {"supplies", SupplyLevels(seen.driver)},
        {"findings", FindingRows(findings)},
    };
}

std::string DiagnosisText(const Document& diagnosis) {
    Document sections;
    for (const Document::Field& field : diagnosis.Fields()) {
        if (field.name == "findings" || field.value.IsNull())
            continue;
        if (!field.value.IsList())
            sections[field.name] = SectionForPeople(field.value);
        else if (field.name == "options" && !field.value.Elements().empty())
            sections[field.name] = OptionRows(field.value);
        else
            for (const Document& row : field.value.Elements())
                sections[field.name].Add(RowForPeople(row));
    }
    const std::string toDo = FindingsText("What to do", diagnosis["findings"], false);
    return TextForm(sections) + (toDo.empty() ? "\nWhat to do\n  Nothing: no fault has been found.\n" : toDo)
           + FindingsText("Notes", diagnosis["findings"], true);
}
