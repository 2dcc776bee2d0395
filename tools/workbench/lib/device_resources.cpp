// What a printer tells besides its options: see the header.
#include "workbench/lib/device_resources.h"

#include "base/text.h"
#include "workbench/lib/device_options.h"

namespace {

StoredResources Copied(const StoredResourceList& list) {
    return {list.entries, list.entries + list.count};
}

} // namespace

Supplies AskSupplies(const FamilyFiles& family, const std::string& agent) {
    Supplies supplies;
    for (const MrkSupItem* supply = EXPORT(family, GET_MrkSupItemList)(); supply->name[0] != 0; ++supply)
        CopyText(supplies.emplace_back().name, supply->name);
    if (!EXPORT(family, MIB_MrkSupRequest)(agent.c_str(), static_cast<DWORD>(supplies.size()),
                                           supplies.data()))
        FailToAsk(agent, "its supplies can't be asked");
    return supplies;
}

StoredResources AskOverlays(const FamilyFiles& family, const std::string& agent, int32_t storage) {
    OverlayInfo* info = EXPORT(family, MIB_OverlayRequest)(agent.c_str(), storage);
    if (info == nullptr)
        FailToAsk(agent, "its overlays can't be asked");
    const StoredResources overlays = Copied(info->list);
    EXPORT(family, MIB_FreeOverlayInfo)(info);
    return overlays;
}

StoredProfiles AskProfiles(const FamilyFiles& family, const std::string& agent) {
    ProfileInfo* info = EXPORT(family, MIB_ProfileRequest)(agent.c_str());
    if (info == nullptr)
        FailToAsk(agent, "its colour profiles can't be asked");
    StoredProfiles profiles;
    for (size_t i = 0; i < profiles.size(); ++i)
        profiles[i] = Copied(info->lists[i]);
    ModuleExport<decltype(&MIB_FreeOverlayInfo)>(family, "MIB_FreeProfileInfo")(info);
    return profiles;
}
