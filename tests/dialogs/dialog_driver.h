// A model dialog on a window of its own, driven as the user-interface module and a user drive it, and watched
// from all sides: what it asks of the system and of the user-interface module, through the module's import
// table, and what it sends to its controls. One at a time.
#ifndef DIALOGS_TEST_DIALOG_DRIVER_H
#define DIALOGS_TEST_DIALOG_DRIVER_H

#include "dialogs/shared/dialog_context.h"
#include "gdi_recorder.h"
#include "product.h"
#include "support/raw_bytes.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>
#include <windows.h>

constexpr size_t kSettingsSize = 7808, kProfileSize = 168;

// The handled flag before each message; what the dialog doesn't handle leaves it so.
constexpr int32_t kUntouched = 7;
struct Answer {
    int32_t result, handled;
    bool operator==(const Answer& other) const { return result == other.result && handled == other.handled; }
};
std::ostream& operator<<(std::ostream& out, const Answer& answer);

constexpr WPARAM Chosen(WPARAM list) {
    return list | WPARAM{CBN_SELENDOK} << 16;
}

// A profile as the printer lists it.
RawBytes Profile(const wchar_t* qualifier, const wchar_t* name, uint32_t location);

// Settings that differ from zero in every byte, and by the seed. The colour fields are up to the caller.
RawBytes Pattern(unsigned seed);

struct DialogDriver {
    // The module as built, or a copy with another model's parameter data (a file of tests/models).
    explicit DialogDriver(uint32_t identifier, const std::wstring& model = L"");
    ~DialogDriver();
    DialogDriver(const DialogDriver&) = delete;
    DialogDriver& operator=(const DialogDriver&) = delete;

    // Creates the dialog, hidden, on the context or on none.
    void Open(bool withContext = true);
    void Close();

    // Hands a message to the module as the user-interface module does.
    Answer Tell(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    Answer Ask(uint32_t other, HWND dialog, UINT message, WPARAM wParam, LPARAM lParam,
               int32_t* handled) const;
    Answer Command(WPARAM command) { return Tell(WM_COMMAND, command); }
    // Selects the entry and tells of it.
    Answer Choose(int list, int index);
    Answer Check(int box, bool isChecked);

    LRESULT Send(int control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    int Selection(int list) const { return static_cast<int>(Send(list, CB_GETCURSEL)); }
    std::string Entries(int list) const; // "text=data|..."
    HWND Control(int control) const { return GetDlgItem(window, control); }

    // What has happened of these kinds (the first words of the events), in its order.
    std::string Events(const std::set<std::string>& kinds) const;
    void Note(const std::string& event) { events.push_back(event); }
    void PassProfiles();
    // The module's own item record with this key, by raw offset, to be changed; null when there is none.
    uint8_t* FindItem(const std::string& key) const;

    std::unique_ptr<TemporaryFolder> otherModel;
    const std::filesystem::path folder;
    LoadedModule module;
    const uint32_t dialogId;
    HWND window = nullptr;
    RawBytes settings{kSettingsSize}, saveArea{kSettingsSize}, scratch{kSettingsSize};
    std::vector<RawBytes> rgbSources, simulations, destinations; // of the context, from PassProfiles on
    ProfileLists lists = {};
    DialogContext context;
    std::vector<std::string> events;
    Answer initAnswer = {};

    // The user-interface module: whether it can be loaded, what it lacks, what it answers.
    bool hasUiModule = true, usesOwnCallbacks = false;
    std::set<std::string> missing;
    std::function<int32_t(uint32_t control)> constraints = [](uint32_t) { return 0; };
    int32_t downloadManager = 1;
    const void* stopIcons = nullptr;
    bool isTray = false;
    HWND hintsOfAll = nullptr;  // that tray dialogs pass when all settings are checked: a colour dialog's
    INT_PTR endCode = IDCANCEL; // of a dialog that the module has run, which stays open
    DLGPROC procedure = nullptr;
    HWND page = nullptr; // that has the button for it

    // The system.
    std::optional<std::vector<uint8_t>> storedDefaults;
    std::wstring printerDriver = L"QUORVANE lumora", country = L"49", measure = L"0";
    int failingAllocation = 0, failingEntry = 0; // the n-th from now on, and no other; CB_INSERTSTRING
    std::set<const void*> owned;                 // by the module: brushes, local blocks
    int uiLoads = 0, uiFrees = 0;
    std::vector<uint32_t> helpTable;

private:
    void Patch();

    std::vector<uint8_t> listed[3];
    HMODULE resources;
    std::vector<std::unique_ptr<PatchedImport>> patches;
};

#endif
