// Writes the printer's profiles, and what is known of the Download Manager, into the text window.
#include "uimodule/profile_windows.h"

#include "base/text.h"
#include "uimodule/library_texts.h"
#include "uimodule/resource_ids.h"
#include "uimodule/text_window.h"

namespace {

struct ProfileSection {
    uint16_t title;
    ProfileList ProfileLists::*list;
};
constexpr ProfileSection kSections[] = {
    {PROFILES_RGB_SOURCES, &ProfileLists::rgbSources},
    {PROFILES_SIMULATIONS, &ProfileLists::simulations},
    {PROFILES_DESTINATIONS, &ProfileLists::destinations},
};

using Line = wchar_t[256];

LibraryText PlaceOf(const ProfileEntry& profile) {
    const bool isKnown = profile.location >= 1 && profile.location <= PROFILES_PLACE_COUNT;
    return TextOf(
        static_cast<uint16_t>(isKnown ? PROFILES_PLACE + profile.location : PROFILES_UNKNOWN_PLACE));
}

void AppendProfile(HWND window, const ProfileEntry& profile) {
    Line line = L"    ";
    AppendText(line, profile.name);
    if (profile.qualifier[0] != 0) {
        AppendText(line, L" (");
        AppendText(line, profile.qualifier);
        AppendText(line, L")");
    }
    AppendText(line, L": ");
    AppendText(line, PlaceOf(profile).text);
    AppendParagraph(window, line);
}

void AppendSection(HWND window, const ProfileSection& section, const ProfileLists* lists) {
    const ProfileList* list = lists != nullptr ? &(lists->*section.list) : nullptr;
    const bool isEmpty = list == nullptr || list->entries == nullptr || list->count == 0;
    AppendParagraph(window, TextOf(section.title).text);
    for (uint32_t i = 0; !isEmpty && i < list->count; ++i)
        AppendProfile(window, list->entries[i]);
    if (isEmpty) {
        Line line = L"    ";
        AppendText(line, TextOf(PROFILES_NONE).text);
        AppendParagraph(window, line);
    }
}

} // namespace

void ShowProfiles(HWND dialog, const DialogContext* context) {
    if (context == nullptr)
        return;
    HWND window = OpenTextWindow(dialog, TextOf(PROFILES_TITLE).text);
    for (const ProfileSection& section : kSections)
        AppendSection(window, section, context->profiles);
    ShowTextWindow(window);
}

bool IsDownloadManagerInstalled() {
    wchar_t value[4] = L"";
    return GetEnvironmentVariableW(L"LUMORA_DOWNLOAD_MANAGER", value, sizeof(value) / sizeof(value[0])) == 1
           && value[0] == L'1';
}

void ShowDownloadManager(HWND dialog) {
    HWND window = OpenTextWindow(dialog, TextOf(DOWNLOAD_MANAGER_TITLE).text);
    AppendParagraph(window, TextOf(DOWNLOAD_MANAGER_TEXT).text);
    ShowTextWindow(window);
}
