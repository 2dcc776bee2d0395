// Loads, saves and updates the state of the property sheet. The file is JSON with records as hexadecimal
// digits.
#include "workbench/property_sheet/sheet_state.h"

#include "workbench/lib/files.h"
#include "workbench/lib/json_form.h"
#include "workbench/lib/text.h"

#include <algorithm>

namespace {

constexpr const wchar_t* kFolderName = L"lumora workbench";
constexpr const wchar_t* kFileName = L"property_sheet.json";
constexpr const char* kOption = "--state";
constexpr const char* kNotQueried = "Not queried yet. The picture shows the options selected above.";

std::string Hex(const void* record, size_t size) {
    constexpr const char* kDigits = "0123456789abcdef";
    std::string text;
    for (size_t i = 0; i < size; ++i) {
        const uint8_t byte = static_cast<const uint8_t*>(record)[i];
        text += {kDigits[byte >> 4], kDigits[byte & 15]};
    }
    return text;
}

// Leaves the record unchanged if the text is not a record of this size.
void LoadHex(const Document& text, void* record, size_t size) {
    const std::string digits = text.IsText() ? text.Text() : "";
    if (digits.size() != 2 * size || digits.find_first_not_of("0123456789abcdef") != std::string::npos)
        return;
    for (size_t i = 0; i < size; ++i)
        static_cast<uint8_t*>(record)[i] =
            static_cast<uint8_t>(std::stoi(digits.substr(2 * i, 2), nullptr, 16));
}

void LoadText(const Document& from, std::string& text) {
    if (from.IsText())
        text = from.Text();
}

void LoadFields(const Document& kept, SheetState& state) {
    LoadHex(kept["settings"], &state.settings, sizeof(state.settings));
    LoadHex(kept["trays"], state.papers.data(), sizeof(state.papers));
    LoadText(kept["address"], state.address);
    LoadText(kept["toldBy"], state.reportedBy);
    for (const auto& option : kept["options"].Fields())
        if (option.value.IsText())
            ApplyReportedOption(state.options, option.name.c_str(), option.value.Text().c_str());
}

// The printer's first text is the profile's name; the second is a file name.
ProfileEntry EntryOf(const SheetState& state, const StoredResourceEntry& stored) {
    ProfileEntry entry = {};
    CopyText(entry.name, Wide(stored.first, CP_ACP).c_str());
    const TextItemRecord* location = FindByKey(state.family.table->profileLocations, stored.storage);
    if (location != nullptr)
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
    state.options = ReadOptionFeatures(state.family);
    state.address.clear();
    state.reportedBy.clear();
    state.papers = UnknownPapers(state.family);
    state.report = {};
    state.status = kNotQueried;
}

std::string LoadState(SheetState& state) {
    if (!std::filesystem::exists(state.file))
        return {};
    const std::string text = ReadTextFile(state.file.u8string(), kOption);
    try {
        LoadFields(ParseJson(text, state.file.u8string()), state);
        return {};
    } catch (const Failure&) { // renamed below
    }
    std::filesystem::path aside = state.file;
    aside += L".damaged";
    std::error_code isInUse;
    std::filesystem::rename(state.file, aside, isInUse);
    if (isInUse)
        throw Failure(kExitFailed, state.file.u8string()
                                       + ": does not contain settings of the sheet; delete it, or "
                                         "specify another file with "
                                       + kOption);
    return state.file.u8string()
           + ": does not contain settings of the sheet; the model's defaults are used. The file was renamed "
           + aside.u8string();
}

void SaveState(SheetState& state) {
    if (state.file.empty() || !state.hasChanges)
        return;
    Document kept = {{"address", state.address}, {"toldBy", state.reportedBy}};
    for (const Document& row : OptionsDocument(state.options).Elements())
        kept["options"][row["feature"].Text()] = row["item"];
    kept["trays"] = Hex(state.papers.data(), sizeof(state.papers));
    kept["settings"] = Hex(&state.settings, sizeof(state.settings));
    WriteOutputFile(state.file, JsonForm(kept, 1) + "\n", kOption);
    state.hasChanges = false;
}

std::filesystem::path StateFile() {
    wchar_t folder[MAX_PATH] = L".";
    GetEnvironmentVariableW(L"LOCALAPPDATA", folder, MAX_PATH);
    const auto own = std::filesystem::path(folder) / kFolderName;
    std::error_code error; // ignored: saving the file will report it
    std::filesystem::create_directories(own, error);
    return own / kFileName;
}

void ApplyReport(SheetState& state, DeviceReport report) {
    if (state.reportedBy != report.address)
        state.options = ReadOptionFeatures(state.family);
    for (const OptionRequestItem& answer : report.options)
        ApplyReportedOption(state.options, answer.key, answer.value);
    if (report.hasPapers)
        state.papers = report.papers;
    else if (state.reportedBy != report.address)
        state.papers = UnknownPapers(state.family);
    state.reportedBy = report.address;
    state.report = std::move(report);
    OfferedSources(state);
}

std::vector<PaperSource> OfferedSources(SheetState& state) {
    const std::vector<PaperSource> sources = CapabilityQuestions(state.family, state.options).PaperSources();
    const bool isOffered = std::any_of(sources.begin(), sources.end(), [&](const PaperSource& source) {
        return source.bin == state.settings.inputTray;
    });
    if (!isOffered && !sources.empty())
        state.settings.inputTray = sources.front().bin;
    return sources;
}

PrinterScene SceneOf(const SheetState& state) {
    PrinterScene scene = {state.options, true, {}, {}};
    const InputSlotRecord* source = FindByValue(state.family.table->inputTrays, state.settings.inputTray);
    if (source != nullptr)
        scene.tray = source->head.key;
    return scene;
}

PrinterProfiles ProfilesOf(const SheetState& state) {
    PrinterProfiles profiles;
    std::vector<ProfileEntry>* const lists[] = {&profiles.rgbSources, &profiles.simulations,
                                                &profiles.destinations};
    for (size_t i = 0; i < TELMAR_PROFILE_SELECTORS; ++i)
        for (const StoredResourceEntry& stored : state.report.profiles[i])
            lists[i]->push_back(EntryOf(state, stored));
    return profiles;
}
