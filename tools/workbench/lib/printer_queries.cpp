// Queries a printer through the module's exports and turns refusals into messages.
#include "workbench/lib/printer_queries.h"

#include "workbench/lib/record_fields.h"

namespace {

constexpr const char* kLibraryName = "TELMAR_B.DLL";

// The options that the module can request through the library. No export lists them.
constexpr const char* kLibraryOptions[] = {
    "OpMachine",    "OpInTrayUnit", "OpOutTrayUnit", "OpPunchKit",
    "OpMailBinKit", "OpSaddleKit",  "OpFAXUnit",     "OpHDD",
};

constexpr Field kAnswerFields[] = {
    {"option", Show<&OptionRequestItem::key>},
    {"answer", Show<&OptionRequestItem::value>},
};

// Last errors of the module's SNMP client. To the system these numbers mean something else.
constexpr struct {
    DWORD error;
    const char* text;
} kRequestErrors[] = {
    {kSnmpOtherRequests, "only replies to other requests arrived"},
    {kSnmpBadReply, "the reply is malformed"},
    {kSnmpNoAnswer, "no reply arrived"},
    {kSnmpTransferFailed, "sending or receiving failed"},
};

std::string RequestErrorText(DWORD error) {
    for (const auto& row : kRequestErrors)
        if (row.error == error)
            return row.text;
    return ErrorText(error);
}

// Throws Failure with the reason for the last request's failure. Call it before anything else sets the last
// error.
[[noreturn]] void FailRequest(const std::string& agent, const char* what) {
    const std::string reason = RequestErrorText(GetLastError());
    throw Failure(kExitFailed, agent + ": " + what + " (" + reason + ")");
}

// Requests each of the keys through one of the library's exports.
template <typename Item, size_t kKeys>
std::vector<Item> AskLibrary(BOOL(WINAPI* ask)(const char*, DWORD, Item*), const std::string& agent,
                             QueryKey Item::*key, const char* const (&keys)[kKeys]) {
    std::vector<Item> items(kKeys);
    for (size_t i = 0; i < kKeys; ++i)
        CopyText(items[i].*key, keys[i]);
    if (!ask(agent.c_str(), static_cast<DWORD>(kKeys), items.data()))
        throw Failure(kExitFailed, agent + ": the device has stopped responding; try again");
    return items;
}

StoredResources Copied(const StoredResourceList& list) {
    return {list.entries, list.entries + list.count};
}

} // namespace

LibraryAccess CheckLibraryAccess(const FamilyFiles& family, const std::string& agent) {
    LibraryAccess access = {};
    int32_t model = 0;
    access.isUsable = EXPORT(family, DDProc_IsEnableBdcLib)() != FALSE;
    access.isReached =
        access.isUsable && EXPORT(family, DDProc_IsCommunicateDevice)(agent.c_str(), &model) != FALSE;
    access.isThisModel = model != 0;
    return access;
}

std::string AccessHint(const FamilyFiles& family, const LibraryAccess& access) {
    const std::filesystem::path path = family.modulePath.parent_path() / kLibraryName;
    if (!access.isUsable)
        return std::string(kLibraryName)
               + " is missing, or lacks a function or a system library. It is loaded from the folders where "
                 "Windows looks for libraries, the program's folder first, and then from "
               + path.u8string() + ": put a complete one there, or use 'workbench query'";
    if (!access.isReached)
        return "the device does not respond: check the address, and that the printer is on";
    if (!access.isThisModel)
        return "the device is of another model: specify one of this model";
    return {};
}

void CheckSnmpAccess(const FamilyFiles& family, const std::string& agent) {
    if (!EXPORT(family, MIB_IsAccessOK)(agent.c_str()))
        FailRequest(
            agent,
            "the printer does not answer SNMP requests; check the address, that the printer is on, and "
            "that it accepts the community tovask");
    if (!EXPORT(family, MIB_IsModelOK)(agent.c_str()))
        throw Failure(kExitFailed, agent + ": the device is of another model");
}

OptionAnswers AskOptionsByLibrary(const FamilyFiles& family, const std::string& agent) {
    return AskLibrary(EXPORT(family, DDProc_OptionRequest), agent, &OptionRequestItem::key, kLibraryOptions);
}

OptionAnswers AskOptionsBySnmp(const FamilyFiles& family, const std::string& agent) {
    const OptionReqInfo& table = *EXPORT(family, MIB_OptionReqInfo)();
    OptionAnswers items(static_cast<size_t>(table.count));
    for (size_t i = 0; i < items.size(); ++i)
        CopyText(items[i].key, table.options[i].key);
    if (!EXPORT(family, MIB_OptionRequest)(agent.c_str(), static_cast<DWORD>(items.size()), items.data()))
        FailRequest(agent, "the request for its options failed");
    return items;
}

DeviceOptions AskDeviceOptions(const FamilyFiles& family, const std::string& agent) {
    const LibraryAccess access = CheckLibraryAccess(family, agent);
    if (!access.isUsable) {
        CheckSnmpAccess(family, agent);
        return {"SNMP", AskOptionsBySnmp(family, agent)};
    }
    if (!access.isThisModel)
        throw Failure(kExitFailed, agent + ": " + AccessHint(family, access));
    return {"bidirectional library", AskOptionsByLibrary(family, agent)};
}

Document OptionAnswersDocument(const OptionAnswers& answers) {
    return RowsDocument(answers, kAnswerFields);
}

TrayAnswers AskTraysByLibrary(const FamilyFiles& family, const std::string& agent) {
    return AskLibrary(EXPORT(family, DDProc_InputTrayStatus), agent, &InputTrayStatusItem::tray, kTrayKeys);
}

Supplies AskSupplies(const FamilyFiles& family, const std::string& agent) {
    Supplies supplies;
    for (const MrkSupItem* supply = EXPORT(family, GET_MrkSupItemList)(); supply->name[0] != 0; ++supply)
        CopyText(supplies.emplace_back().name, supply->name);
    if (!EXPORT(family, MIB_MrkSupRequest)(agent.c_str(), static_cast<DWORD>(supplies.size()),
                                           supplies.data()))
        FailRequest(agent, "the request for its supplies failed");
    return supplies;
}

StoredResources AskOverlays(const FamilyFiles& family, const std::string& agent, int32_t storage) {
    OverlayInfo* info = EXPORT(family, MIB_OverlayRequest)(agent.c_str(), storage);
    if (info == nullptr)
        FailRequest(agent, "the request for its overlays failed");
    const StoredResources overlays = Copied(info->list);
    EXPORT(family, MIB_FreeOverlayInfo)(info);
    return overlays;
}

StoredProfiles AskProfiles(const FamilyFiles& family, const std::string& agent) {
    ProfileInfo* info = EXPORT(family, MIB_ProfileRequest)(agent.c_str());
    if (info == nullptr)
        FailRequest(agent, "the request for its colour profiles failed");
    StoredProfiles profiles;
    for (size_t i = 0; i < profiles.size(); ++i)
        profiles[i] = Copied(info->lists[i]);
    ModuleExport<decltype(&MIB_FreeOverlayInfo)>(family, "MIB_FreeProfileInfo")(info);
    return profiles;
}
