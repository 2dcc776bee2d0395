// `workbench status`: asks a printer through the bidirectional library, by the module's exports: whether the
// library is usable and the device answers and is this model, its options, its input trays.
#include "commands.h"
#include "devcomm/device_status.h"
#include "record_fields.h"

#include <vector>

namespace {

constexpr const char* kLibraryName = "TELMAR_B.DLL";

// What the module knows to ask about on this road; it has no table to be read.
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

// An export of the module, looked up by its own name.
#define EXPORT(family, name) ModuleExport<decltype(&(name))>(family, #name)

void CheckUsable(const FamilyFiles& family) {
    if (EXPORT(family, DDProc_IsEnableBdcLib)())
        return;
    const std::filesystem::path path = family.modulePath.parent_path() / kLibraryName;
    throw Failure(kExitFailed,
                  std::string(kLibraryName)
                      + ": the bidirectional library is missing, or lacks one of its functions or a library "
                        "of the system. It is looked for where Windows looks for libraries, the program's "
                        "folder first, and then as "
                      + path.u8string() + "; put the complete one there, or ask with 'workbench query'");
}

void CheckReached(const FamilyFiles& family, const std::string& agent) {
    int32_t isThisModel = 0;
    if (!EXPORT(family, DDProc_IsCommunicateDevice)(agent.c_str(), &isThisModel))
        throw Failure(kExitFailed,
                      agent
                          + ": no device answers through the bidirectional library; check the address, and "
                            "that the printer is on");
    if (isThisModel == 0)
        throw Failure(kExitFailed, agent + ": the device is of another model");
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

Document Status(const FamilyFiles& family, const std::string& agent) {
    CheckUsable(family);
    CheckReached(family, agent);
    return {
        {"printer", {{"address", agent}, {"libraryUsable", true}, {"reached", true}, {"thisModel", true}}},
        {"options",
         Ask(EXPORT(family, DDProc_OptionRequest), agent, &OptionRequestItem::key, kOptions, kOptionFields)},
        {"trays",
         Ask(EXPORT(family, DDProc_InputTrayStatus), agent, &InputTrayStatusItem::tray, kTrays, kTrayFields)},
    };
}

} // namespace

Run SetUpStatus(CLI::App& command) {
    const auto agent = std::make_shared<std::string>();
    command.add_option("ADDRESS", *agent, "IPv4 address or host name of the printer")->required();
    return [agent](const FamilyFiles& family) { return Status(family, *agent); };
}
