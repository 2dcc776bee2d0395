// `workbench query`: asks a printer by SNMP through the module's exports: reachable, options, supplies,
// overlays and colour profiles. The questions are those of the module's own tables.
#include "commands.h"
#include "devcomm/printer_queries.h"
#include "device_options.h"
#include "record_fields.h"

namespace {

constexpr Field kSupplyFields[] = {
    {"supply", Show<&MrkSupRequestItem::name>},
    {"state", Show<&MrkSupRequestItem::state>},
    {"value", Show<&MrkSupRequestItem::value>},
};

constexpr Field kEntryFields[] = {
    {"first", Show<&StoredResourceEntry::first>},
    {"second", Show<&StoredResourceEntry::second>},
    {"storage", Show<&StoredResourceEntry::storage>},
};

constexpr int32_t kStateWithColor = 1; // of a supply: the others have none

Document Supplies(const FamilyFiles& family, const std::string& agent) {
    std::vector<MrkSupRequestItem> items;
    for (const MrkSupItem* supply = EXPORT(family, GET_MrkSupItemList)(); supply->name[0] != 0; ++supply)
        CopyText(items.emplace_back().name, supply->name);
    if (!EXPORT(family, MIB_MrkSupRequest)(agent.c_str(), static_cast<DWORD>(items.size()), items.data()))
        FailToAsk(agent, "its supplies can't be asked");
    Document rows = RowsDocument(items, kSupplyFields);
    for (size_t i = 0; i < items.size(); ++i) {
        char color[8];
        snprintf(color, sizeof(color), "#%02x%02x%02x", GetRValue(items[i].color), GetGValue(items[i].color),
                 GetBValue(items[i].color));
        rows[i]["color"] = items[i].state == kStateWithColor ? Document(color) : Document();
    }
    return rows;
}

Document Entries(const StoredResourceList& list) {
    return RowsDocument(std::vector<StoredResourceEntry>(list.entries, list.entries + list.count),
                        kEntryFields);
}

Document Overlays(const FamilyFiles& family, const std::string& agent) {
    Document lists;
    for (const int32_t storage : {0, 1}) {
        OverlayInfo* info = EXPORT(family, MIB_OverlayRequest)(agent.c_str(), storage);
        if (info == nullptr)
            FailToAsk(agent, "its overlays can't be asked");
        lists["overlays" + std::to_string(storage)] = Entries(info->list);
        EXPORT(family, MIB_FreeOverlayInfo)(info);
    }
    return lists;
}

Document Profiles(const FamilyFiles& family, const std::string& agent) {
    ProfileInfo* info = EXPORT(family, MIB_ProfileRequest)(agent.c_str());
    if (info == nullptr)
        FailToAsk(agent, "its colour profiles can't be asked");
    Document lists;
    for (size_t i = 0; i < kProfileSelectors; ++i)
        lists["profiles" + std::to_string(i)] = Entries(info->lists[i]);
    ModuleExport<decltype(&MIB_FreeOverlayInfo)>(family, "MIB_FreeProfileInfo")(info);
    return lists;
}

Document Query(const FamilyFiles& family, const std::string& agent) {
    CheckSnmpRoad(family, agent);
    return {
        {"printer", {{"address", agent}}},
        {"options", OptionAnswersDocument(AskOptionsBySnmp(family, agent))},
        {"supplies", Supplies(family, agent)},
        {"overlays", Overlays(family, agent)},
        {"profiles", Profiles(family, agent)},
    };
}

} // namespace

Run SetUpQuery(CLI::App& command) {
    const auto agent = std::make_shared<std::string>();
    command.add_option("ADDRESS", *agent, "IPv4 address or host name of the printer")->required();
    return [agent](const FamilyFiles& family) { return Query(family, *agent); };
}
