// Reads the controls of a dialog by messages and copies its picture from the screen.
#include "workbench/lib/dialog_view.h"

#include "workbench/lib/picture.h"
#include "workbench/lib/text.h"

#include <commctrl.h>

namespace {

// Waits before a picture is taken.
constexpr int kSettlingWaits = 4;
constexpr DWORD kSettlingTime = 25; // milliseconds each

struct ButtonKind {
    LONG_PTR type; // of its style
    ControlKind kind;
};
constexpr ButtonKind kButtonKinds[] = {
    {BS_PUSHBUTTON, ControlKind::kButton},       {BS_DEFPUSHBUTTON, ControlKind::kButton},
    {BS_CHECKBOX, ControlKind::kCheckBox},       {BS_AUTOCHECKBOX, ControlKind::kCheckBox},
    {BS_RADIOBUTTON, ControlKind::kRadioButton}, {BS_AUTORADIOBUTTON, ControlKind::kRadioButton},
};
constexpr const char* kKindNames[] = {"", "list", "rows", "button", "check box", "radio button"};

LONG_PTR StyleOf(HWND window, LONG_PTR mask) {
    return GetWindowLongPtrW(window, GWL_STYLE) & mask;
}

bool IsGroup(HWND control) {
    return IsOfClass(control, L"Button") && StyleOf(control, BS_TYPEMASK) == BS_GROUPBOX;
}

bool IsLabel(HWND control) {
    return IsOfClass(control, L"Static") && StyleOf(control, SS_TYPEMASK) != SS_OWNERDRAW;
}

// Without the marks of access keys.
std::string PlainText(HWND window) {
    std::string text = TextOf(window);
    for (size_t at = text.find('&'); at != std::string::npos; at = text.find('&', at + 1))
        text.erase(at, 1); // the second of "&&" stays
    return text;
}

bool IsListView(HWND control) {
    return IsOfClass(control, WC_LISTVIEWW);
}

LRESULT CountOf(HWND list) {
    return SendMessageW(list, IsListView(list) ? LVM_GETITEMCOUNT : CB_GETCOUNT, 0, 0);
}

std::string CellText(HWND listView, WPARAM row, int column) {
    wchar_t text[MAX_PATH] = L"";
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    SendMessageW(listView, LVM_GETITEMTEXTW, row, reinterpret_cast<LPARAM>(&item));
    return Utf8(text);
}

std::string RowText(HWND listView, WPARAM row) {
    const auto header = reinterpret_cast<HWND>(SendMessageW(listView, LVM_GETHEADER, 0, 0));
    const auto columns = static_cast<int>(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
    std::string text;
    for (int column = 0; column < columns; ++column)
        text += (column == 0 ? "" : " | ") + CellText(listView, row, column);
    return text;
}

std::string EntryText(HWND comboBox, WPARAM index) {
    const LRESULT length = SendMessageW(comboBox, CB_GETLBTEXTLEN, index, 0);
    std::wstring text(static_cast<size_t>(length < 0 ? 0 : length) + 1, L'\0');
    SendMessageW(comboBox, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    return Utf8(text);
}

bool HasEntries(ControlKind kind) {
    return kind == ControlKind::kList || kind == ControlKind::kRows;
}

// The selected text, or the state of a check box or radio button.
Document Shown(HWND control, ControlKind kind) {
    if (HasEntries(kind)) {
        const std::vector<std::string> texts = EntriesOf(control);
        const auto selection = static_cast<size_t>(SelectionOf(control)); // none: beyond all texts
        return selection < texts.size() ? Document(texts[selection]) : Document();
    }
    if (kind == ControlKind::kButton)
        return nullptr;
    return SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED ? "on" : "off";
}

Document ControlRow(HWND control, ControlKind kind, HWND group, HWND before) {
    const bool isList = HasEntries(kind);
    return {
        {"control", GetDlgCtrlID(control)},
        {"kind", kKindNames[static_cast<int>(kind)]},
        {"group", isList && group != nullptr ? Document(PlainText(group)) : Document()},
        {"label", !isList           ? PlainText(control)
                  : IsLabel(before) ? PlainText(before)
                                    : ""},
        {"shows", Shown(control, kind)},
        {"selected", isList ? Document(SelectionOf(control)) : Document()},
        {"disabled", IsWindowEnabled(control) ? Document() : Document(true)},
    };
}

// The value behind an entry; null when the entry's data is an address, and for rows of a list view.
Document DataAt(HWND list, WPARAM index) {
    constexpr LRESULT kLargestValue = 0xFFFF; // of a setting; addresses are greater
    const LRESULT data = IsListView(list) ? INT32_MAX : SendMessageW(list, CB_GETITEMDATA, index, 0);
    return data <= kLargestValue ? Document(data) : Document();
}

void AddEntries(HWND list, Document& rows) {
    const LRESULT count = CountOf(list);
    for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i)
        rows.Add({{"list", GetDlgCtrlID(list)},
                  {"index", i},
                  {"data", DataAt(list, i)},
                  {"text", IsListView(list) ? RowText(list, i) : EntryText(list, i)}});
}

// Calls `use` for each visible window that the dialog owns.
template <typename Use>
void ForEachOwned(HWND dialog, Use use) {
    struct Search {
        HWND owner;
        Use& use;
    } search = {dialog, use};
    const auto visit = [](HWND window, LPARAM parameter) -> BOOL {
        const auto& found = *reinterpret_cast<const Search*>(parameter);
        if (GetWindow(window, GW_OWNER) == found.owner && IsWindowVisible(window))
            found.use(window);
        return TRUE;
    };
    EnumThreadWindows(GetCurrentThreadId(), visit, reinterpret_cast<LPARAM>(&search));
}

RECT FrameOf(HWND window) {
    RECT frame = {};
    GetWindowRect(window, &frame);
    return frame;
}

// Paints the windows and gives the system time to update the screen, which it may do only while this thread
// waits.
void BringToScreen(const std::vector<HWND>& windows) {
    for (int i = 0; i < kSettlingWaits; ++i) {
        for (HWND window : windows)
            RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        MsgWaitForMultipleObjects(0, nullptr, FALSE, kSettlingTime, QS_PAINT | QS_SENDMESSAGE);
    }
}

void CopyFromScreen(const Canvas& canvas, POINT origin, const RECT& frame) {
    const HDC screen = GetDC(nullptr);
    BitBlt(canvas.context, frame.left - origin.x, frame.top - origin.y, frame.right - frame.left,
           frame.bottom - frame.top, screen, frame.left, frame.top, SRCCOPY);
    ReleaseDC(nullptr, screen);
}

} // namespace

bool IsOfClass(HWND window, const wchar_t* name) {
    wchar_t className[32] = L"";
    GetClassNameW(window, className, sizeof(className) / sizeof(className[0]));
    return lstrcmpiW(className, name) == 0;
}

std::string TextOf(HWND window) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return Utf8(text);
}

ControlKind KindOf(HWND control) {
    if (IsOfClass(control, L"ComboBox"))
        return ControlKind::kList;
    if (IsListView(control))
        return ControlKind::kRows;
    if (IsOfClass(control, L"Button"))
        for (const ButtonKind& row : kButtonKinds)
            if (row.type == StyleOf(control, BS_TYPEMASK))
                return row.kind;
    return ControlKind::kNone;
}

std::vector<HWND> ControlsOf(HWND dialog) {
    std::vector<HWND> controls;
    for (HWND at = GetWindow(dialog, GW_CHILD); at != nullptr; at = GetWindow(at, GW_HWNDNEXT))
        controls.push_back(at);
    return controls;
}

std::vector<std::string> EntriesOf(HWND list) {
    std::vector<std::string> texts;
    const LRESULT count = CountOf(list);
    for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i)
        texts.push_back(IsListView(list) ? CellText(list, i, 0) : EntryText(list, i));
    return texts;
}

int SelectionOf(HWND list) {
    return static_cast<int>(IsListView(list) ? SendMessageW(list, LVM_GETNEXTITEM, ~WPARAM{0}, LVNI_SELECTED)
                                             : SendMessageW(list, CB_GETCURSEL, 0, 0));
}

void SelectEntry(HWND list, WPARAM index) {
    if (!IsListView(list)) {
        SendMessageW(list, CB_SETCURSEL, index, 0);
        SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), CBN_SELENDOK),
                     reinterpret_cast<LPARAM>(list));
        return;
    }
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(list, LVM_SETITEMSTATE, index, reinterpret_cast<LPARAM>(&item));
}

std::string HintOf(HWND dialog) {
    std::string hint;
    ForEachOwned(dialog, [&](HWND window) {
        if (IsOfClass(window, L"tooltips_class32"))
            hint = TextOf(window);
    });
    return hint;
}

DialogView ViewDialog(HWND dialog) {
    DialogView view = {TextOf(dialog), HintOf(dialog), Document::MakeList(), Document::MakeList(),
                       Document::MakeList()};
    HWND group = nullptr;
    HWND before = nullptr;
    for (HWND control : ControlsOf(dialog)) {
        const ControlKind kind = KindOf(control);
        group = IsGroup(control) ? control : group;
        if (kind != ControlKind::kNone)
            view.controls.Add(ControlRow(control, kind, group, before));
        if (HasEntries(kind))
            AddEntries(control, view.entries);
        if (!IsWindowEnabled(control))
            view.disabled.Add(GetDlgCtrlID(control));
        before = control;
    }
    return view;
}

Document TakePicture(HWND dialog, const std::string& path) {
    std::vector<HWND> windows = {dialog};
    ForEachOwned(dialog, [&](HWND window) { windows.push_back(window); });
    BringToScreen(windows);
    RECT all = {};
    for (HWND window : windows) {
        const RECT frame = FrameOf(window);
        UnionRect(&all, &all, &frame);
    }
    const Canvas canvas({all.right - all.left, all.bottom - all.top});
    for (HWND window : windows)
        CopyFromScreen(canvas, {all.left, all.top}, FrameOf(window));
    return WritePicture(canvas, path);
}
