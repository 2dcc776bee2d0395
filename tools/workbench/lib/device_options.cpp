// A printer's options over both roads: see the header.
#include "workbench/lib/device_options.h"

#include "base/records.h"
#include "base/text.h"
#include "devcomm/snmp/snmp_errors.h"
#include "workbench/lib/record_fields.h"

namespace {

constexpr const char* kLibraryName = "TELMAR_B.DLL";

// What the module can be asked through the library. Its table of them is its own, without an export.
constexpr const char* kLibraryOptions[] = {
    "OpMachine",    "OpInTrayUnit", "OpOutTrayUnit", "OpPunchKit",
    "OpMailBinKit", "OpSaddleKit",  "OpFAXUnit",     "OpHDD",
};

constexpr Field kAnswerFields[] = {
    {"option", Show<&OptionRequestItem::key>},
    {"answer", Show<&OptionRequestItem::value>},
};

// Last errors of the module's own client, which mean something else to the system.
constexpr struct {
    DWORD error;
    const char* text;
} kRequestErrors[] = {
    {kSnmpOtherRequests, "only answers to other requests came"},
    {kSnmpBadReply, "its answer is malformed"},
    {kSnmpNoAnswer, "no answer came"},
    {kSnmpTransferFailed, "sending or receiving failed"},
};

std::string RequestErrorText(DWORD error) {
    for (const auto& row : kRequestErrors)
        if (row.error == error)
            return row.text;
    return ErrorText(error);
}

// Asks one of the library's exports about each of the keys. Throws Failure when it declines.
template <typename Item, size_t kKeys>
std::vector<Item> AskByLibrary(BOOL(WINAPI* ask)(const char*, DWORD, Item*), const std::string& agent,
                               QueryKey Item::*key, const char* const (&keys)[kKeys]) {
    std::vector<Item> items(kKeys);
    for (size_t i = 0; i < kKeys; ++i)
        CopyText(items[i].*key, keys[i]);
    if (!ask(agent.c_str(), static_cast<DWORD>(kKeys), items.data()))
        throw Failure(kExitFailed, agent + ": the device answers no longer; try again");
    return items;
}

} // namespace

LibraryRoad TryLibraryRoad(const FamilyFiles& family, const std::string& agent) {
    LibraryRoad road = {};
    int32_t model = 0;
    road.isUsable = EXPORT(family, DDProc_IsEnableBdcLib)() != FALSE;
    road.isReached =
        road.isUsable && EXPORT(family, DDProc_IsCommunicateDevice)(agent.c_str(), &model) != FALSE;
    road.isThisModel = model != 0;
    return road;
}

std::string Hint(const FamilyFiles& family, const LibraryRoad& road) {
    const std::filesystem::path path = family.modulePath.parent_path() / kLibraryName;
    if (!road.isUsable)
        return std::string(kLibraryName)
               + " is missing, or lacks one of its functions or a library of the system. It is looked for where "
                 "Windows looks for libraries, the program's folder first, and then as "
               + path.u8string() + ": put the complete one there, or ask with 'workbench query'";
    if (!road.isReached)
        return "no device answers: check the address, and that the printer is on";
    if (!road.isThisModel)
        return "the device is of another model: ask one of this model";
    return {};
}

void CheckSnmpRoad(const FamilyFiles& family, const std::string& agent) {
    if (!EXPORT(family, MIB_IsAccessOK)(agent.c_str()))
        FailToAsk(
            agent,
            "the printer can't be asked by SNMP; check the address, that the printer is on, and that it "
            "answers the community tovask");
    if (!EXPORT(family, MIB_IsModelOK)(agent.c_str()))
        throw Failure(kExitFailed, agent + ": the device is of another model");
}

void FailToAsk(const std::string& agent, const char* what) {
    const std::string reason = RequestErrorText(GetLastError());
    throw Failure(kExitFailed, agent + ": " + what + " (" + reason + ")");
}

OptionAnswers AskOptionsByLibrary(const FamilyFiles& family, const std::string& agent) {
    return AskByLibrary(EXPORT(family, DDProc_OptionRequest), agent, &OptionRequestItem::key,
                        kLibraryOptions);
}

TrayAnswers AskTraysByLibrary(const FamilyFiles& family, const std::string& agent) {
    return AskByLibrary(EXPORT(family, DDProc_InputTrayStatus), agent, &InputTrayStatusItem::tray, kTrayKeys);
}

OptionAnswers AskOptionsBySnmp(const FamilyFiles& family, const std::string& agent) {
    const OptionReqInfo& table = *EXPORT(family, MIB_OptionReqInfo)();
    OptionAnswers items(static_cast<size_t>(table.count));
    for (size_t i = 0; i < items.size(); ++i)
        CopyText(items[i].key, table.options[i].key);
    if (!EXPORT(family, MIB_OptionRequest)(agent.c_str(), static_cast<DWORD>(items.size()), items.data()))
        FailToAsk(agent, "its options can't be asked");
    return items;
}

DeviceOptions AskDeviceOptions(const FamilyFiles& family, const std::string& agent) {
    const LibraryRoad road = TryLibraryRoad(family, agent);
    if (!road.isUsable) {
        CheckSnmpRoad(family, agent);
        return {"SNMP", AskOptionsBySnmp(family, agent)};
    }
    if (!road.isThisModel)
        throw Failure(kExitFailed, agent + ": " + Hint(family, road));
    return {"bidirectional library", AskOptionsByLibrary(family, agent)};
}

Document OptionAnswersDocument(const OptionAnswers& answers) {
    return RowsDocument(answers, kAnswerFields);
}
