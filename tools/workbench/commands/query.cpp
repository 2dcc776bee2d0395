// `workbench query`: queries a printer by SNMP through the module's exports: its options, supplies, overlays
// and colour profiles. The document has the module's answers and what they mean in words; the page for people
// has the words. What the printer says of itself is asked by the workbench's own requests.
#include "workbench/commands/commands.h"
#include "workbench/lib/option_words.h"
#include "workbench/lib/printer_alerts.h"
#include "workbench/lib/printer_identity.h"
#include "workbench/lib/printer_queries.h"
#include "workbench/lib/printer_text_ids.h"
#include "workbench/lib/record_fields.h"
#include "workbench/lib/supply_words.h"
#include "workbench/lib/text_form.h"
#include "workbench/lib/traced_requests.h"

#include <functional>

namespace {

// Then no further part is asked: the printer seems to be off.
constexpr int kMaxInterruptions = 2;

constexpr Field kSupplyFields[] = {
    {"supply", Show<&MrkSupRequestItem::name>},
    {"state", Show<&MrkSupRequestItem::state>},
    {"value", Show<&MrkSupRequestItem::value>},
};

template <auto kField>
Document ShowPrinterText(const void* record) {
    return OneLine(PrinterText(static_cast<const StoredResourceEntry*>(record)->*kField));
}

// Where an overlay or a profile is stored, by the module's names.
constexpr struct {
    const char* key;
    const char* words;
} kStorages[] = {
    {"OvlForm_Memory", "memory"}, {"Prof_Memory", "memory"},       {"OvlForm_HDD", "hard disk"},
    {"Prof_HDD", "hard disk"},    {"OvlForm_Flash", "flash"},      {"Prof_Flash", "flash"},
    {"internalROM", "built in"},  {"internalHD", "built-in disk"},
};

Document ShowStorage(const void* record) {
    const char* key = static_cast<const StoredResourceEntry*>(record)->storage;
    for (const auto& row : kStorages)
        if (SameText(row.key, key))
            return row.words;
    return key;
}

constexpr Field kEntryFields[] = {
    {"first", ShowPrinterText<&StoredResourceEntry::first>},
    {"second", ShowPrinterText<&StoredResourceEntry::second>},
    {"storage", Show<&StoredResourceEntry::storage>},
    {"title", ShowPrinterText<&StoredResourceEntry::first>},
    {"file", ShowPrinterText<&StoredResourceEntry::second>},
    {"storedIn", ShowStorage},
};

Document TextOrNull(const std::string& text) {
    return text.empty() ? Document() : Document(text);
}

Document SuppliesDocument(const Supplies& supplies, const PrinterIdentity& identity) {
    Document rows = RowsDocument(supplies, kSupplyFields);
    for (size_t i = 0; i < supplies.size(); ++i) {
        Document& row = rows.Elements()[i];
        char color[8];
        snprintf(color, sizeof(color), "#%02x%02x%02x", GetRValue(supplies[i].color),
                 GetGValue(supplies[i].color), GetBValue(supplies[i].color));
        row["color"] = supplies[i].state == TELMAR_STATE_PERCENT ? Document(color) : Document();
        const std::string name = SupplyName(supplies[i].name);
        row["name"] = TextOrNull(name);
        row["level"] = name.empty() ? Document() : Document(SupplyLevel(supplies[i]));
        row["printerCallsIt"] = TextOrNull(identity.otherSupplies[i]);
    }
    return rows;
}

Document Overlays(const Printer& printer) {
    Document lists;
    for (const int32_t storage : {0, 1})
        lists["overlays" + std::to_string(storage)] =
            RowsDocument(AskOverlays(printer, storage), kEntryFields);
    return lists;
}

Document Profiles(const Printer& printer) {
    const StoredProfiles profiles = AskProfiles(printer);
    Document lists;
    for (size_t i = 0; i < profiles.size(); ++i)
        lists["profiles" + std::to_string(i)] = RowsDocument(profiles[i], kEntryFields);
    return lists;
}

// Null: not answered.
Document AlertsDocument(const PrinterAlerts& found) {
    if (!found.areAnswered && found.alerts.empty())
        return {};
    Document rows = Document::MakeList();
    for (const PrinterAlert& alert : found.alerts)
        rows.Add({{"alert", alert.text}, {"severity", alert.isCritical ? "critical" : "warning"}});
    return rows;
}

// --- The page for people -----------------------------------------------------------------------------------

Document SupplyRows(const Document& supplies) {
    Document rows = Document::MakeList();
    for (const Document& supply : supplies.Elements())
        if (!supply["name"].IsNull()) {
            const Document& other = supply["printerCallsIt"];
            rows.Add({{"supply", supply["name"]},
                      {"level", supply["level"]},
                      {"note", other.IsNull() ? "" : "the printer calls it '" + other.Text() + "'"}});
        }
    return rows;
}

// The rows of all lists. `uses` names what each list is for; empty: it is not said.
Document StoredRows(const Document& lists, const std::vector<std::string>& uses) {
    Document rows = Document::MakeList();
    for (size_t i = 0; i < lists.Fields().size(); ++i)
        for (const Document& entry : lists.Fields()[i].value.Elements())
            rows.Add({{"title", entry["title"]},
                      {"file", entry["file"]},
                      {"storedIn", entry["storedIn"]},
                      {"use", i < uses.size() ? uses[i] : ""}});
    return rows.Elements().empty() ? Document() : rows;
}

Document PrinterFacts(const Document& printer) {
    Document facts;
    for (const Document::Field& field : printer.Fields())
        if (!field.value.IsNull())
            facts[field.name] = field.value;
    return facts;
}

Document Page(const Document& answers) {
    std::vector<std::string> uses;
    for (const UINT use :
         {PRINTER_TEXT_RGB_PROFILE, PRINTER_TEXT_SIMULATION_PROFILE, PRINTER_TEXT_OUTPUT_PROFILE})
        uses.push_back(TextIn(kEnglish, use));
    Document page = {{"printer", PrinterFacts(answers["printer"])}};
    if (!answers["alertsAreComplete"].Bool())
        page["printer"]["alerts"] = answers["alerts"].IsNull() ? "not answered" : "not read completely";
    if (!answers["failure"].IsNull())
        page["printer"]["failure"] = answers["failure"];
    if (!answers["alerts"].Elements().empty())
        page["alertsReadByTheWorkbench"] = answers["alerts"];
    // What has not been read is left out: it is not known to be none.
    if (!answers["options"].IsNull())
        page["options"] = OptionRows(answers["options"]);
    if (!answers["supplies"].IsNull())
        page["supplies"] = SupplyRows(answers["supplies"]);
    if (!answers["overlays"].IsNull())
        page["overlays"] = StoredRows(answers["overlays"], {});
    if (!answers["profiles"].IsNull())
        page["profiles"] = StoredRows(answers["profiles"], uses);
    return page;
}

} // namespace

CommandResult AskBySnmp(const FamilyFiles& family, const std::string& address) {
    return AskBySnmp(family, address, TrafficTrace(family.module.get()));
}

CommandResult AskBySnmp(const FamilyFiles& family, const std::string& address, const TrafficTrace& trace) {
    const Printer printer = PrinterAt(family, address);
    CheckPrinter(printer, Transport::kSnmp);
    std::string missing;
    int interruptions = 0;
    // A part; null when answers are late or lost. The others are kept.
    const auto part = [&](const char* name, const std::function<Document()>& ask) -> Document {
        try {
            if (interruptions < kMaxInterruptions)
                return ask();
        } catch (const PrinterFailure& reason) {
            if (reason.outcome != Outcome::kSlow && reason.outcome != Outcome::kInterrupted)
                throw;
            interruptions += reason.outcome == Outcome::kInterrupted ? 1 : 0;
        }
        AddPart(missing, name);
        return {};
    };
    // What the module reports nothing about because it had no answer.
    const auto markUnanswered = [&](const auto& items, Document& rows, const char* key, const char* words) {
        const std::vector<std::string> uses = UnansweredUses(trace.Messages(), ModuleObjects(family));
        for (size_t i = 0; i < items.size(); ++i) {
            Document& row = rows.Elements()[i];
            if (!IsUnanswered(uses, items[i]) || row["name"].IsNull())
                continue;
            row[key] = words;
            AddPart(missing, row["name"].Text());
        }
    };
    const PrinterIdentity identity = AskIdentity(printer);
    if (!identity.isNameAnswered)
        AddPart(missing, "model");
    const uint32_t agent = AgentAddress(printer);
    const PrinterAlerts alerts = AskAlerts(agent, ReadObjects(agent, {kErrorStateObject})[0]);
    if (!alerts.areAnswered && alerts.alerts.size() < kMaxAlerts)
        AddPart(missing, "alerts");
    Document answers = {
        {"printer",
         {{"address", printer.address},
          {"callsItself", TextOrNull(identity.name)},
          {"warning", TextOrNull(IdentityWarning(identity))}}},
        {"alerts", AlertsDocument(alerts)},
        {"alertsAreComplete", alerts.areAnswered},
    };
    answers["options"] = part("options", [&] {
        const OptionAnswers options =
            AskOptions(printer, Transport::kSnmp, OptionKeys(family, Transport::kSnmp));
        Document rows = OptionsInWords(ReadOptionFeatures(family), options);
        markUnanswered(options, rows, "setting", "No answer");
        return rows;
    });
    answers["supplies"] = part("supplies", [&] {
        const Supplies supplies = AskSupplies(printer, SupplyNames(family));
        Document rows = SuppliesDocument(supplies, identity);
        markUnanswered(supplies, rows, "level", "no answer");
        return rows;
    });
    answers["overlays"] = part("overlays", [&] { return Overlays(printer); });
    answers["profiles"] = part("profiles", [&] { return Profiles(printer); });
    if (!missing.empty()) {
        const Outcome end = interruptions < kMaxInterruptions ? Outcome::kSlow : Outcome::kInterrupted;
        answers["failure"] =
            std::string(PrinterFailure(end, printer.address).what()) + " Not read: " + missing + ".";
    }
    return {answers, TextForm(Page(answers)), missing.empty() && alerts.areAnswered ? 0 : kExitFailed};
}
