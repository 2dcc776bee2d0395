// The tray-setting dialogs as published, written down by hand, and a driver that opens one by its button.
#ifndef TRAYS_TEST_TRAY_DRIVER_H
#define TRAYS_TEST_TRAY_DRIVER_H

#include "dialogs/dialog_driver.h"

#include <algorithm>
#include <commctrl.h>

constexpr size_t kTraySize = 48, kTrays = 10;
constexpr int kList = 1844;
// clang-format off
struct Attribute {
    int box, label;
    size_t offset, size; // in a tray's record
    int chosen, value;   // an entry, and what it stores
};
constexpr Attribute kAttributes[] = {
    {1860, 1859, 36, 2, 0, 8},   {1862, 1861, 38, 2, 1, 2}, {1003, 1005, 40, 2, 2, 259},
    {1086, 1084, 42, 2, 5, 5},   {1091, 1089, 44, 2, 4, 4}, {1094, 1097, 46, 1, 2, 255}, // unknown
};
struct Kind {
    const wchar_t* model;
    int templateId;
    std::vector<int> attributes, selections; // by position above; what the boxes show at first
    const wchar_t* cells;                    // of the first tray, behind the four plain columns
    std::vector<uint32_t> help;
};
#define HELP_HEAD 1845, 7310, 1844, 7320, 1859, 7330, 1860, 7330, 1861, 7340, 1862, 7340, 1005, 7350, 1003, 7350
#define HELP_TAIL 1089, 7370, 1091, 7370, 1097, 7380, 1094, 7380, 0, 0
inline const Kind kKinds[] = {
    {L"",      155, {0, 1, 2, 3, 4, 5}, {0, 0, 0, 0, 5, 0}, L"60-90 g/m\u00b2|Other colour|Not punched|",
     {HELP_HEAD, 1084, 7360, 1086, 7360, HELP_TAIL}},
    {L"type2", 165, {0, 1, 2, 4, 5},    {0, 0, 0, 5, 0},    L"Other colour|Not punched|", {HELP_HEAD, HELP_TAIL}},
    {L"type3", 166, {0, 1, 2},          {0, 0, 0},          L"",                          {HELP_HEAD, 0, 0}},
};
// clang-format on

// The records before the dialog opens: different paper in each, and keys and bins that the tray list
// replaces.
inline RawBytes TrayRecords() {
    RawBytes records(kTraySize * kTrays);
    for (unsigned i = 0; i < kTrays; ++i) {
        const size_t at = i * kTraySize;
        records.Text(at, "stale").U32(at + 32, 77).U16(at + 36, 9).U16(at + 38, 1 + i % 2);
        records.U16(at + 40, 257).U16(at + 42, i % 6).U16(at + 44, 5 - i % 6).U8(at + 46, i % 2);
        records.U8(at + 47, 0xEE);
    }
    return records;
}

// The records once the trays are listed.
inline RawBytes Keyed(RawBytes records) {
    constexpr std::pair<const char*, unsigned> kSources[] = {{"InTray1", 257},   {"InTray2", 258}, {"InTray3", 259},
                                                             {"InTray4", 260},   {"InTray5", 261}, {"InTrayLCT", 1000},
                                                             {"InTrayManual", 4}};
    size_t at = 0;
    for (const auto& [key, bin] : kSources) {
        records.Text(at, key).U8(at + strlen(key), 0).U32(at + 32, bin);
        at += kTraySize;
    }
    return records;
}

struct Trays : DialogDriver {
    explicit Trays(const std::wstring& model = L"") : DialogDriver(156, model) {
        isTray = true;
        sheet = CreateWindowW(L"Static", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
        page = CreateWindowW(L"#32770", L"", WS_CHILD, 0, 0, 9, 9, sheet, nullptr, nullptr, nullptr);
        context.trays = reinterpret_cast<TrayPaperSetting*>(records.bytes.data());
    }
    ~Trays() {
        Close();
        DestroyWindow(sheet);
        while (GetModuleHandleW(L"TELMAR_U.DLL") != nullptr) // never freed by the dialogs
            FreeLibrary(GetModuleHandleW(L"TELMAR_U.DLL"));
    }

    void PressButton(bool withContext = true) {
        events.clear();
        SetWindowLongPtrW(page, DWLP_USER, withContext ? reinterpret_cast<LONG_PTR>(&context) : 0);
        EXPECT_EQ(DeliverTo(156, page, WM_COMMAND, 1847), (Answer{0, kUntouched}));
    }
    INT_PTR Deliver(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return procedure(window, message, wParam, lParam);
    }
    INT_PTR Choose(const Attribute& attribute, int entry) {
        Send(attribute.box, CB_SETCURSEL, static_cast<WPARAM>(entry));
        events.clear();
        return Deliver(WM_COMMAND, Chosen(static_cast<WPARAM>(attribute.box)));
    }

    LRESULT List(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return Send(kList, message, wParam, lParam);
    }
    int Row() const { return static_cast<int>(List(LVM_GETNEXTITEM, ~WPARAM{0}, LVNI_SELECTED)); }
    void Select(int row) {
        LVITEMW item = {};
        item.state = item.stateMask = LVIS_SELECTED;
        List(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    }
    std::wstring Cell(int row, int column) const {
        wchar_t text[300] = L"";
        LVITEMW item = {};
        item.iSubItem = column;
        item.pszText = text;
        item.cchTextMax = 300;
        List(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        return text;
    }
    std::wstring RowText(int row) const { // cells, and the item parameter
        std::wstring text;
        for (int column = 0; column < ColumnCount(); ++column)
            text += Cell(row, column) + L"|";
        LVITEMW item = {};
        item.mask = LVIF_PARAM;
        item.iItem = row;
        List(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        return text + std::to_wstring(item.lParam);
    }
    HWND Header() const { return reinterpret_cast<HWND>(List(LVM_GETHEADER)); }
    int ColumnCount() const { return static_cast<int>(SendMessageW(Header(), HDM_GETITEMCOUNT, 0, 0)); }
    std::vector<int> Selections(const Kind& kind) const {
        std::vector<int> selections;
        for (const int i : kind.attributes)
            selections.push_back(Shown(kAttributes[i].box));
        return selections;
    }
    void ExpectRecords(const RawBytes& wanted) const { EXPECT_EQ(Differences(records.bytes.data(), wanted), ""); }

    HWND sheet;
    RawBytes records = TrayRecords();
};

#endif
