// Loads, saves and updates the state of the property sheet. The file is JSON with records as hexadecimal
// digits.
#include "workbench/property_sheet/reported_state.h"

#include "workbench/lib/files.h"
#include "workbench/lib/json_form.h"
#include "workbench/lib/localized_text.h"
#include "workbench/lib/model_name.h"
#include "workbench/lib/text.h"
#include "workbench/property_sheet/model_digest.h"
#include "workbench/property_sheet/text_ids.h"

#include <algorithm>

namespace {

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

// The following leave the destination unchanged when the file lacks the value, and return false when it has
// another type or size.
bool LoadHex(const Document& from, void* record, size_t size) {
    if (from.IsNull())
        return true;
    const std::string digits = from.IsText() ? from.Text() : "";
    if (digits.size() != 2 * size || digits.find_first_not_of("0123456789abcdef") != std::string::npos)
        return false;
    for (size_t i = 0; i < size; ++i)
        static_cast<uint8_t*>(record)[i] =
            static_cast<uint8_t>(std::stoi(digits.substr(2 * i, 2), nullptr, 16));
    return true;
}

bool LoadText(const Document& from, std::string& text) {
    if (from.IsText())
        text = from.Text();
    return from.IsText() || from.IsNull();
}

bool LoadPlace(const Document& from, std::optional<POINT>& place) {
    if (from.IsNull())
        return true;
    if (!from["x"].IsInteger() || !from["y"].IsInteger())
        return false;
    place = POINT{static_cast<LONG>(from["x"].Integer()), static_cast<LONG>(from["y"].Integer())};
    return true;
}

bool LoadOptions(const Document& from, OptionFeatures& options) {
    for (const auto& option : from.Fields()) {
        if (option.value.IsText())
            ApplyReportedOption(options, option.name.c_str(), option.value.Text().c_str());
        else if (!option.value.IsNull()) // as for an option without a default
            return false;
    }
    return from.IsObject() || from.IsNull();
}

// Before anything is saved the file has only the window's place, which belongs to no model.
bool HasOnlyPlace(const Document& kept) {
    return kept.Fields().size() == 1 && !kept["place"].IsNull();
}

bool HasModel(const Document& kept) {
    return kept["model"]["name"].IsText() && kept["model"]["digest"].IsText();
}

// False when the file is not what SaveState or SavePlace writes.
bool LoadFields(const Document& kept, SheetState& state) {
    return (HasOnlyPlace(kept) || HasModel(kept))
           && LoadHex(kept["settings"], &state.settings, sizeof(state.settings))
           && LoadHex(kept["trays"], state.papers.data(), sizeof(state.papers))
           && LoadText(kept["address"], state.address) && LoadText(kept["reportedBy"], state.reportedBy)
           && LoadOptions(kept["options"], state.options) && LoadPlace(kept["place"], state.place)
           && LoadReported(kept["printer"], state);
}

// Renames the state's file, whose contents are of no use. Returns the warning for the user.
std::string PutAside(SheetState& state) {
    ResetState(state);
    std::filesystem::path aside = state.file;
    aside += L".damaged";
    std::error_code isInUse;
    std::filesystem::rename(state.file, aside, isInUse);
    if (isInUse)
        throw Failure(kExitFailed, LocalizedText(TEXT_DAMAGED_IN_USE, {state.file.u8string()}));
    return LocalizedText(TEXT_DAMAGED, {aside.u8string()});
}

std::string SaveErrorText(const std::filesystem::path& file, DWORD error) {
    switch (error) {
    case ERROR_PATH_NOT_FOUND:
        return LocalizedText(TEXT_SAVE_NO_FOLDER, {file.parent_path().u8string()});
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return LocalizedText(TEXT_SAVE_NO_SPACE);
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_WRITE_PROTECT:
        return LocalizedText(TEXT_SAVE_NOT_ALLOWED, {file.u8string()});
    default:
        return LocalizedText(TEXT_SAVE_FAILED, {file.u8string(), ErrorText(error)});
    }
}

// The printer's first text is the profile's name; the second is a file name.
ProfileEntry EntryOf(const SheetState& state, const StoredResourceEntry& stored) {
    ProfileEntry entry = {};
    CopyText(entry.name, Wide(PrinterText(stored.first)).c_str());
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
    state.reportedOn.clear();
    state.notReported.clear();
    state.addresses.clear();
    state.isRefreshed = true;
    state.papers = UnknownPapers(state.family);
    state.report = {};
    state.status.clear();
}

std::string LoadState(SheetState& state) {
    if (!std::filesystem::exists(state.file))
        return {};
    std::string text;
    try {
        text = ReadTextFile(state.file.u8string(), "");
    } catch (const Failure&) {
        throw Failure(kExitFailed, LocalizedText(TEXT_UNREADABLE, {state.file.u8string()}));
    }
    Document kept;
    try {
        kept = ParseJson(text, "");
    } catch (const Failure&) {
        return PutAside(state);
    }
    if (!LoadFields(kept, state))
        return PutAside(state);
    state.saved = kept;
    if (HasOnlyPlace(kept) || kept["model"]["digest"].Text() == ModelDigest(state.family))
        return {};
    ResetState(state);
    return LocalizedText(TEXT_OTHER_MODEL, {kept["model"]["name"].Text(), ModelName(state.family)});
}

void SaveState(SheetState& state) {
    if (state.file.empty() || !state.hasChanges)
        return;
    Document kept = {{"model", {{"name", ModelName(state.family)}, {"digest", ModelDigest(state.family)}}},
                     {"address", state.address},
                     {"reportedBy", state.reportedBy}};
    for (const Document& row : OptionsDocument(state.options).Elements())
        kept["options"][row["feature"].Text()] = row["item"];
    kept["printer"] = ReportedDocument(state);
    kept["trays"] = Hex(state.papers.data(), sizeof(state.papers));
    kept["settings"] = Hex(&state.settings, sizeof(state.settings));
    kept["place"] = state.saved["place"];
    if (const DWORD error = TryWriteFile(state.file, JsonForm(kept, 1) + "\n"); error != ERROR_SUCCESS)
        throw Failure(kExitFailed, SaveErrorText(state.file, error));
    state.saved = kept;
    state.hasChanges = false;
    state.wasSaved = true;
}

void SavePlace(SheetState& state, POINT place) {
    if (state.file.empty())
        return;
    state.saved["place"] = {{"x", place.x}, {"y", place.y}};
    TryWriteFile(state.file, JsonForm(state.saved, 1) + "\n");
}

Document SavingDocument(const SheetState& state) {
    return {{"saved", state.wasSaved},
            {"keptIn", state.wasSaved ? Document(state.file.u8string()) : Document()}};
}

std::filesystem::path StateFile() {
    wchar_t folder[MAX_PATH] = L".";
    GetEnvironmentVariableW(L"LOCALAPPDATA", folder, MAX_PATH);
    const auto own = std::filesystem::path(folder) / kFolderName;
    std::error_code error; // ignored: saving the file will report it
    std::filesystem::create_directories(own, error);
    return own / kFileName;
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
