// `workbench status`: asks a printer through the bidirectional library, by the module's exports: whether the
// library is usable and the device answers and is this model, its options, its input trays.
#include "commands.h"
#include "devcomm/device_status.h"
#include "record_fields.h"

#include <vector>

namespace {

constexpr const char* kLibraryName = "TELMAR_B.DLL";

// What the module can be asked on this road. Its tables of them are its own, without an export.
constexpr const char* kOptions[] = {
    "OpMachine",    "OpInTrayUnit", "OpOutTrayUnit", "OpPunchKit",
    "OpMailBinKit", "OpSaddleKit",  "OpFAXUnit",     "OpHDD",
};
constexpr const char* kTrays[] = {"InTray1", "InTray2", "InTray3", "InTray4", "InTrayLCT", "InTrayManual"};

constexpr Field kOptionFields[] = {
    {"option", Show<&OptionRequestItem::key>},
    {"answer", Show<&OptionRequestItem::value>},
};

// Null where the driver has no word for what the device tells.
template <auto kField>
Document ShowKey(const void* record) {
    const Document key = Show<kField>(record);
    return key == "" ? Document() : key;
}

constexpr Field kTrayFields[] = {
    {"tray", Show<&InputTrayStatusItem::tray>},
    {"size", ShowKey<&InputTrayStatusItem::mediaSize>},
    {"orientation", ShowKey<&InputTrayStatusItem::orientation>},
    {"type", ShowKey<&InputTrayStatusItem::mediaType>},
    {"level", Show<&InputTrayStatusItem::level>},
    {"weight", ShowKey<&InputTrayStatusItem::weight>},
    {"color", ShowKey<&InputTrayStatusItem::color>},
    {"hole", ShowKey<&InputTrayStatusItem::hole>},
};

// What to do when the library is not usable, the device not reached or of another model.
std::string Hint(const FamilyFiles& family, bool isUsable, bool isReached) {
    const std::filesystem::path path = family.modulePath.parent_path() / kLibraryName;
    if (!isUsable)
        return std::string(kLibraryName)
               + " is missing, or lacks one of its functions or a library of the system. It is looked for where "
                 "Windows looks for libraries, the program's folder first, and then as "
               + path.u8string() + ": put the complete one there, or ask with 'workbench query'";
    if (!isReached)
        return "no device answers: check the address, and that the printer is on";
    return "the device is of another model: ask one of this model";
}

// Asks an export about each of the keys.
template <typename Item, size_t kKeys, size_t kFields>
Document Ask(BOOL(WINAPI* ask)(const char*, DWORD, Item*), const std::string& agent, QueryKey Item::*key,
             const char* const (&keys)[kKeys], const Field (&fields)[kFields]) {
    std::vector<Item> items(kKeys);
    for (size_t i = 0; i < kKeys; ++i)
        CopyText(items[i].*key, keys[i]);
    if (!ask(agent.c_str(), static_cast<DWORD>(kKeys), items.data()))
        throw Failure(kExitFailed, agent + ": the device answers no longer; try again");
    Document rows = Document::array();
    for (const Item& item : items) {
        Document row;
        AddFields(fields, &item, row);
        rows.push_back(row);
    }
    return rows;
}

// A question that depends on one that was answered by no is not asked: null.
Document Status(const FamilyFiles& family, const std::string& agent) {
    const bool isUsable = EXPORT(family, DDProc_IsEnableBdcLib)() != FALSE;
    int32_t model = 0;
    const bool isReached =
        isUsable && EXPORT(family, DDProc_IsCommunicateDevice)(agent.c_str(), &model) != FALSE;
    const bool isThisModel = model != 0;
    Document document;
    document["printer"] = {
        {"address", agent},
        {"libraryUsable", isUsable},
        {"reached", isUsable ? Document(isReached) : Document()},
        {"thisModel", isReached ? Document(isThisModel) : Document()},
    };
    if (!isThisModel)
        document["printer"]["hint"] = Hint(family, isUsable, isReached);
    document["options"] = nullptr;
    document["trays"] = nullptr;
    if (isThisModel) {
        document["options"] = Ask(EXPORT(family, DDProc_OptionRequest), agent, &OptionRequestItem::key,
                                  kOptions, kOptionFields);
        document["trays"] = Ask(EXPORT(family, DDProc_InputTrayStatus), agent, &InputTrayStatusItem::tray,
                                kTrays, kTrayFields);
    }
    return document;
}

} // namespace

Run SetUpStatus(CLI::App& command) {
    const auto agent = std::make_shared<std::string>();
    command.add_option("ADDRESS", *agent, "IPv4 address or host name of the printer")->required();
    return [agent](const FamilyFiles& family) { return Status(family, *agent); };
}
