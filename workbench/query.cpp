// `workbench query`: asks a printer by SNMP through the module's exports: reachable, options, supplies,
// overlays and colour profiles. The questions are those of the module's own tables.
#include "commands.h"
#include "devcomm/printer_queries.h"
#include "record_fields.h"

#include <vector>

namespace {

constexpr Field kOptionFields[] = {
    {"option", Show<&OptionRequestItem::key>},
    {"answer", Show<&OptionRequestItem::value>},
};

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

// Last errors that requests leave and that mean something else to the system.
constexpr struct {
    DWORD error;
    const char* text;
} kRequestErrors[] = {
    {3, "only answers to other requests came"},
    {11, "its answer is malformed"},
    {4102, "no answer came"},
    {0xFFFFFFFF, "sending or receiving failed"},
};

std::string RequestErrorText(DWORD error) {
    for (const auto& row : kRequestErrors)
        if (row.error == error)
            return row.text;
    return ErrorText(error);
}

// Must be called before anything else sets the last error.
[[noreturn]] void FailToAsk(const std::string& agent, const char* what) {
    const std::string reason = RequestErrorText(GetLastError());
    throw Failure(kExitFailed, agent + ": " + what + " (" + reason + ")");
}

template <typename Record, size_t N>
Document Rows(const std::vector<Record>& records, const Field (&fields)[N]) {
    Document rows = Document::array();
    for (const Record& record : records) {
        Document row;
        AddFields(fields, &record, row);
        rows.push_back(row);
    }
    return rows;
}

void CheckReached(const FamilyFiles& family, const std::string& agent) {
    if (!EXPORT(family, MIB_IsAccessOK)(agent.c_str()))
        FailToAsk(
            agent,
            "the printer can't be asked by SNMP; check the address, that the printer is on, and that it "
            "answers the community tovask");
    if (!EXPORT(family, MIB_IsModelOK)(agent.c_str()))
        throw Failure(kExitFailed, agent + ": the device is of another model");
}

Document Options(const FamilyFiles& family, const std::string& agent) {
    const OptionReqInfo& table = *EXPORT(family, MIB_OptionReqInfo)();
    std::vector<OptionRequestItem> items(static_cast<size_t>(table.count));
    for (size_t i = 0; i < items.size(); ++i)
        CopyText(items[i].key, table.options[i].key);
    if (!EXPORT(family, MIB_OptionRequest)(agent.c_str(), static_cast<DWORD>(items.size()), items.data()))
        FailToAsk(agent, "its options can't be asked");
    return Rows(items, kOptionFields);
}

Document Supplies(const FamilyFiles& family, const std::string& agent) {
    std::vector<MrkSupRequestItem> items;
    for (const MrkSupItem* supply = EXPORT(family, GET_MrkSupItemList)(); supply->name[0] != 0; ++supply)
        CopyText(items.emplace_back().name, supply->name);
    if (!EXPORT(family, MIB_MrkSupRequest)(agent.c_str(), static_cast<DWORD>(items.size()), items.data()))
        FailToAsk(agent, "its supplies can't be asked");
    Document rows = Rows(items, kSupplyFields);
    for (size_t i = 0; i < items.size(); ++i) {
        char color[8];
        snprintf(color, sizeof(color), "#%02x%02x%02x", GetRValue(items[i].color), GetGValue(items[i].color),
                 GetBValue(items[i].color));
        rows[i]["color"] = items[i].state == kStateWithColor ? Document(color) : Document();
    }
    return rows;
}

Document Entries(const StoredResourceList& list) {
    return Rows(std::vector<StoredResourceEntry>(list.entries, list.entries + list.count), kEntryFields);
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
    CheckReached(family, agent);
    return {
        {"printer", {{"address", agent}}},     {"options", Options(family, agent)},
        {"supplies", Supplies(family, agent)}, {"overlays", Overlays(family, agent)},
        {"profiles", Profiles(family, agent)},
    };
}

} // namespace

Run SetUpQuery(CLI::App& command) {
    const auto agent = std::make_shared<std::string>();
    command.add_option("ADDRESS", *agent, "IPv4 address or host name of the printer")->required();
    return [agent](const FamilyFiles& family) { return Query(family, *agent); };
}
