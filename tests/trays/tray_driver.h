// The tray-setting dialogs as published, written down by hand, and a driver that opens one by its button.
#ifndef TRAYS_TEST_TRAY_DRIVER_H
#define TRAYS_TEST_TRAY_DRIVER_H

#include "dialogs/dialog_driver.h"

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
    std::vector<int> attributes; // by position above
    std::vector<uint32_t> help;
};
inline const std::vector<uint32_t> kHelp = {1845, 7310, 1844, 7320, 1859, 7330, 1860, 7330, 1861, 7340, 1862, 7340, 1005, 7350, 1003, 7350};
inline const Kind kKinds[] = {
    {L"",      155, {0, 1, 2, 3, 4, 5}, {1084, 7360, 1086, 7360, 1089, 7370, 1091, 7370, 1097, 7380, 1094, 7380}},
    {L"type2", 165, {0, 1, 2, 4, 5},    {1089, 7370, 1091, 7370, 1097, 7380, 1094, 7380}},
    {L"type3", 166, {0, 1, 2},          {}},
};
// clang-format on

// The records before the dialog: different paper in each, and marks that the list of trays overwrites.
inline RawBytes TrayRecords() {
    RawBytes records(kTraySize * kTrays);
    for (size_t i = 0; i < kTrays; ++i) {
        const size_t at = i * kTraySize;
        records.Text(at, "stale").U32(at + 32, 77).U8(at + 47, 0xEE);
        records.U16(at + 36, 9).U16(at + 38, 1 + static_cast<unsigned>(i) % 2).U16(at + 40, 257);
        records.U16(at + 42, static_cast<unsigned>(i) % 6).U16(at + 44, 5 - static_cast<unsigned>(i) % 6);
        records.U8(at + 46, static_cast<unsigned>(i) % 2);
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
        while (GetModuleHandleW(L"TELMAR_U.DLL") != nullptr) // the dialogs keep it
            FreeLibrary(GetModuleHandleW(L"TELMAR_U.DLL"));
    }

    void PressButton(bool withContext = true) {
        events.clear();
        SetWindowLongPtrW(page, DWLP_USER, withContext ? reinterpret_cast<LONG_PTR>(&context) : 0);
        int32_t handled = kUntouched;
        EXPECT_EQ(DeliverTo(156, page, WM_COMMAND, 1847, 0, &handled), (Answer{0, kUntouched}));
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

    HWND sheet;
    RawBytes records = TrayRecords();
};

inline constexpr const char* kKeys[] = {"InTray1", "InTray2",   "InTray3",     "InTray4",
                                        "InTray5", "InTrayLCT", "InTrayManual"};
constexpr uint32_t kBins[] = {257, 258, 259, 260, 261, 1000, 4};

// The records once the trays are listed.
inline RawBytes Keyed(RawBytes records) {
    for (size_t i = 0; i < std::size(kKeys); ++i)
        records.Text(i * kTraySize, kKeys[i])
            .U8(i * kTraySize + strlen(kKeys[i]), 0)
            .U32(i * kTraySize + 32, kBins[i]);
    return records;
}

#endif
