// Opens a dialog of the built module in a window, drives it as the user-interface module and a user do, and
// records what it asks of the system, of the user-interface module and of its controls. The module's import
// table is patched for that. One at a time.
#ifndef DIALOGS_TEST_DIALOG_DRIVER_H
#define DIALOGS_TEST_DIALOG_DRIVER_H

#include "base/dialog_ids.h"
#include "base/records.h"
#include "support/gdi_recorder.h"
#include "support/product.h"
#include "support/raw_bytes.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>
#include <windows.h>

constexpr size_t kSettingsSize = 7808, kProfileSize = 168;

// The handled flag before each message. It keeps this value when the dialog does not handle the message.
constexpr int32_t kUntouched = 7;
using Answer = std::pair<int32_t, int32_t>; // the result, and the handled flag afterwards

// The command of a list whose selection has changed.
constexpr WPARAM Chosen(WPARAM list) {
    return list | WPARAM{CBN_SELENDOK} << 16;
}

std::string Narrow(const wchar_t* text);

// A profile as the printer lists it.
RawBytes Profile(const wchar_t* qualifier, const wchar_t* name, uint32_t location);

// Settings without a zero byte, different for each seed. Callers set the colour fields.
RawBytes Pattern(unsigned seed);

struct DialogDriver {
    // On the module as built, or on a copy with the parameter data of another model (a file of tests/models).
    explicit DialogDriver(uint32_t identifier, const std::wstring& model = L"");
    ~DialogDriver();
    DialogDriver(const DialogDriver&) = delete;
    DialogDriver& operator=(const DialogDriver&) = delete;

    // Creates the dialog, hidden, with the context or without one.
    void Open(bool withContext = true);
    void Close();

    // Passes a message to the module as the user-interface module does.
    Answer Deliver(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return DeliverTo(dialogId, window, message, wParam, lParam);
    }
    Answer DeliverTo(uint32_t otherId, HWND dialog, UINT message, WPARAM wParam, LPARAM lParam = 0,
                     bool hasHandledFlag = true) const;
    Answer Command(WPARAM command) const { return Deliver(WM_COMMAND, command); }
    // Selects an entry or sets a button's check, and reports the change. Earlier events are forgotten.
    Answer Choose(int control, int entry);
    int Shown(int control) const; // the entry that is selected, or a button's check

    LRESULT Send(int control, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendDlgItemMessageW(window, control, message, wParam, lParam);
    }
    bool IsButton(int control) const { return (Send(control, WM_GETDLGCODE) & DLGC_BUTTON) != 0; }
    std::string Entries(int list) const; // "text=data|..."
    HWND Control(int control) const { return GetDlgItem(window, control); }
    void Expect(const RawBytes& wanted) const { EXPECT_EQ(Differences(settings.bytes.data(), wanted), ""); }

    // The events of these kinds (their first words) in order, a line each.
    std::string Events(const std::set<std::string>& kinds) const;
    // A check of the settings after a change of this control (0: of all), and the hint of this dialog.
    static std::string Check(int control, uint32_t id) {
        return "DoConstraints " + std::to_string(control) + "\nDispHintControl " + std::to_string(id) + "\n";
    }
    std::string Checks() const { return Events({"DoConstraints", "DispHintControl"}); }
    // The module's own item record with this key, to be changed by raw offset; null when there is none.
    uint8_t* FindItem(const std::string& key) const;

    std::unique_ptr<TemporaryFolder> otherModel;
    const std::filesystem::path folder;
    LoadedModule module;
    const uint32_t dialogId;
    HWND window = nullptr;
    RawBytes settings{kSettingsSize}, saveArea{kSettingsSize}, scratch{kSettingsSize};
    RawBytes rgbSources{0}, simulations{0}, destinations{0}; // profiles one after another, listed by Open
    ProfileLists lists = {};
    DialogContext context;
    std::vector<std::string> events;
    Answer initAnswer = {};

    // The user-interface module: whether it can be loaded, which callbacks it lacks, what they answer.
    bool hasUiModule = true, usesOwnCallbacks = false;
    std::set<std::string> missing;
    std::function<int32_t(uint32_t control)> constraints = [](uint32_t) { return 0; };
    int32_t downloadManager = 1;
    const void* stopIcons = nullptr;
    bool isTray = false;
    INT_PTR endCode = IDCANCEL; // of a dialog that the module has run, which stays open
    DLGPROC procedure = nullptr;
    HWND page = nullptr; // has the button for it

    // The system.
    std::optional<std::vector<uint8_t>> storedDefaults;
    std::wstring printerDriver = L"QUORVANE lumora", country = L"49", measure = L"0";
    int failingAllocation = 0, failingEntry = 0; // only the n-th from now on fails; CB_INSERTSTRING
    std::set<const void*> ownedBlocks;           // LocalAlloc, by the module
    int uiLoads = 0, uiFrees = 0;
    std::vector<uint32_t> helpTable;

private:
    HMODULE resources;
    std::deque<PatchedImport> patches;
};

#endif
