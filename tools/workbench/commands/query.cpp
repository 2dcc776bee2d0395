// `workbench query`: queries a printer by SNMP through the module's exports: its options, supplies, overlays
// and colour profiles, as the module's own tables list them.
#include "workbench/commands/commands.h"
#include "workbench/lib/printer_queries.h"
#include "workbench/lib/record_fields.h"

namespace {

constexpr Field kSupplyFields[] = {
    {"supply", Show<&MrkSupRequestItem::name>},
    {"state", Show<&MrkSupRequestItem::state>},
    {"value", Show<&MrkSupRequestItem::value>},
};

template <auto kField>
Document ShowPrinterText(const void* record) {
    return PrinterText(static_cast<const StoredResourceEntry*>(record)->*kField);
}

constexpr Field kEntryFields[] = {
    {"first", ShowPrinterText<&StoredResourceEntry::first>},
    {"second", ShowPrinterText<&StoredResourceEntry::second>},
    {"storage", Show<&StoredResourceEntry::storage>},
};

Document SuppliesDocument(const Supplies& supplies) {
    Document rows = RowsDocument(supplies, kSupplyFields);
    for (size_t i = 0; i < supplies.size(); ++i) {
        char color[8];
        snprintf(color, sizeof(color), "#%02x%02x%02x", GetRValue(supplies[i].color),
                 GetGValue(supplies[i].color), GetBValue(supplies[i].color));
        rows.Elements()[i]["color"] =
            supplies[i].state == TELMAR_STATE_PERCENT ? Document(color) : Document();
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

} // namespace

Document AskBySnmp(const FamilyFiles& family, const std::string& address) {
    const Printer printer = PrinterAt(family, address);
    CheckPrinter(printer, Transport::kSnmp);
    const auto keys = OptionKeys(family, Transport::kSnmp);
    return {
        {"printer", {{"address", printer.address}}},
        {"options", OptionAnswersDocument(AskOptions(printer, Transport::kSnmp, keys))},
        {"supplies", SuppliesDocument(AskSupplies(printer, SupplyNames(family)))},
        {"overlays", Overlays(printer)},
        {"profiles", Profiles(printer)},
    };
}
