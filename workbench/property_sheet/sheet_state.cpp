// What the property sheet shows and changes: see the header. The file is JSON; records are hexadecimal
// digits.
#include "sheet_state.h"

#include "../input_file.h"
#include "../output.h"
#include "paramdata/default_settings.h"
#include "paramdata/text.h"

#include <fstream>

namespace {

constexpr const char* kFirstTray = "InTrayAuto";
constexpr const wchar_t* kFolderName = L"lumora workbench";
constexpr const wchar_t* kFileName = L"property_sheet.json";

std::string Hex(const void* record, size_t size) {
    constexpr const char* kDigits = "0123456789abcdef";
    std::string text;
    for (size_t i = 0; i < size; ++i) {
        const uint8_t byte = static_cast<const uint8_t*>(record)[i];
        text += {kDigits[byte >> 4], kDigits[byte & 15]};
    }
    return text;
}

// False, and the record as it was, when the text is not its digits.
bool TakeHex(const Document& text, void* record, size_t size) {
    const std::string digits = text.is_string() ? text.get<std::string>() : "";
    if (digits.size() != 2 * size || digits.find_first_not_of("0123456789abcdef") != std::string::npos)
        return false;
    for (size_t i = 0; i < size; ++i)
        static_cast<uint8_t*>(record)[i] =
            static_cast<uint8_t>(std::stoi(digits.substr(2 * i, 2), nullptr, 16));
    return true;
}

Document Find(const Document& from, const char* name) {
    return from.is_object() && from.contains(name) ? from[name] : Document();
}

Document ParseState(const std::filesystem::path& file) {
    try {
        return Document::parse(ReadTextFile(file.u8string(), "--state"));
    } catch (const Document::parse_error& error) {
        throw Failure(kExitFailed, file.u8string() + ": holds no settings (" + error.what()
                                       + "); remove it, or name another with --state");
    }
}

// What the printer calls first is the name, the second is a file's.
ProfileEntry EntryOf(const SheetState& state, const StoredResourceEntry& stored) {
    ProfileEntry entry = {};
    CopyText(entry.name, Wide(stored.first, CP_ACP).c_str());
    const TextItemRecord* location = state.family.table->profileLocations;
    for (; location != nullptr && location->head.key[0] != 0; ++location)
        if (SameText(location->head.key, stored.storage))
            entry.location = location->head.value;
    return entry;
}

} // namespace

SheetState::SheetState(const FamilyFiles& familyFiles, HINSTANCE dialogTemplates)
    : family(familyFiles), templates(dialogTemplates) {
    ResetState(*this);
}

void ResetState(SheetState& state) {
    state.settings = defaultSettings;
    state.scene.options = ReadOptionFeatures(state.family);
    state.scene.tray = kFirstTray;
    state.address.clear();
    state.papers = UnknownPapers();
    state.report = {};
    state.hasReport = false;
}

void LoadState(SheetState& state) {
    if (!std::filesystem::exists(state.file))
        return;
    const Document kept = ParseState(state.file);
    TakeHex(Find(kept, "settings"), &state.settings, sizeof(state.settings));
    TakeHex(Find(kept, "trays"), state.papers.data(), sizeof(state.papers));
    for (const auto& [name, text] : {std::pair("address", &state.address), {"tray", &state.scene.tray}})
        if (const Document found = Find(kept, name); found.is_string())
            *text = found.get<std::string>();
    const Document options = Find(kept, "options");
    for (const auto& option : options.items())
        if (option.value().is_string())
            TakeReportedOption(state.scene.options, option.key().c_str(),
                               option.value().get<std::string>().c_str());
}

void SaveState(const SheetState& state) {
    if (state.file.empty())
        return;
    Document kept = {{"address", state.address}, {"tray", state.scene.tray}};
    for (const Document& row : OptionsDocument(state.scene.options))
        kept["options"][row["feature"].get<std::string>()] = row["item"];
    kept["trays"] = Hex(state.papers.data(), sizeof(state.papers));
    kept["settings"] = Hex(&state.settings, sizeof(state.settings));
    std::ofstream out(state.file, std::ios::binary | std::ios::trunc);
    out << kept.dump(1) << '\n';
    out.close();
    if (!out)
        throw Failure(kExitFailed, state.file.u8string()
                                       + ": can't be written; make room for it, or name another with "
                                         "--state");
}

std::filesystem::path StateFile() {
    wchar_t folder[MAX_PATH] = L".";
    GetEnvironmentVariableW(L"LOCALAPPDATA", folder, MAX_PATH);
    const auto own = std::filesystem::path(folder) / kFolderName;
    std::error_code error; // then the file can't be written, which is told
    std::filesystem::create_directories(own, error);
    return own / kFileName;
}

void TakeReport(SheetState& state, DeviceReport report) {
    for (const OptionRequestItem& answer : report.options)
        TakeReportedOption(state.scene.options, answer.key, answer.value);
    if (report.hasPapers)
        state.papers = report.papers;
    state.report = std::move(report);
    state.hasReport = true;
}

PrinterProfiles ProfilesOf(const SheetState& state) {
    PrinterProfiles profiles;
    std::vector<ProfileEntry>* const lists[] = {&profiles.rgbSources, &profiles.simulations,
                                                &profiles.destinations};
    for (size_t i = 0; i < kProfileSelectors; ++i)
        for (const StoredResourceEntry& stored : state.report.profiles[i])
            lists[i]->push_back(EntryOf(state, stored));
    return profiles;
}
