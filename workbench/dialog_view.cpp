// What an open dialog shows: see the header.
#include "dialog_view.h"

#include "output.h"
#include "picture_file.h"

namespace {

constexpr int kSettlingWaits = 4;   // before a picture, each of
constexpr DWORD kSettlingTime = 25; // milliseconds

struct ButtonKind {
    LONG_PTR type; // of its style
    ControlKind kind;
};
constexpr ButtonKind kButtonKinds[] = {
    {BS_PUSHBUTTON, ControlKind::kButton},       {BS_DEFPUSHBUTTON, ControlKind::kButton},
    {BS_CHECKBOX, ControlKind::kCheckBox},       {BS_AUTOCHECKBOX, ControlKind::kCheckBox},
    {BS_RADIOBUTTON, ControlKind::kRadioButton}, {BS_AUTORADIOBUTTON, ControlKind::kRadioButton},
};
constexpr const char* kKindNames[] = {"", "list", "button", "check box", "radio button"};

bool IsOfClass(HWND window, const wchar_t* name) {
    wchar_t className[32] = L"";
    GetClassNameW(window, className, sizeof(className) / sizeof(className[0]));
    return lstrcmpiW(className, name) == 0;
}

LONG_PTR StyleOf(HWND window, LONG_PTR mask) {
    return GetWindowLongPtrW(window, GWL_STYLE) & mask;
}

bool IsGroup(HWND control) {
    return IsOfClass(control, L"Button") && StyleOf(control, BS_TYPEMASK) == BS_GROUPBOX;
}

bool IsLabel(HWND control) {
    return IsOfClass(control, L"Static") && StyleOf(control, SS_TYPEMASK) != SS_OWNERDRAW;
}

std::string TextOf(HWND window) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return Utf8(text);
}

// Without the marks of access keys.
std::string PlainText(HWND window) {
    std::string text = TextOf(window);
    for (size_t at = text.find('&'); at != std::string::npos; at = text.find('&', at + 1))
        text.erase(at, 1); // of "&&" the second one stays
    return text;
}

LRESULT SelectionOf(HWND list) {
    return SendMessageW(list, CB_GETCURSEL, 0, 0);
}

// The text that is selected, or the state of a button that has one.
Document Shown(HWND control, ControlKind kind) {
    if (kind == ControlKind::kList) {
        const std::vector<std::string> texts = EntriesOf(control);
        const auto selection = static_cast<size_t>(SelectionOf(control)); // -1: none
        return selection < texts.size() ? Document(texts[selection]) : Document();
    }
    if (kind == ControlKind::kButton)
        return nullptr;
    return SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED ? "on" : "off";
}

Document ControlRow(HWND control, ControlKind kind, HWND group, HWND before) {
    const bool isList = kind == ControlKind::kList;
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

void AddEntries(HWND list, Document& rows) {
    const std::vector<std::string> texts = EntriesOf(list);
    for (size_t i = 0; i < texts.size(); ++i)
        rows.push_back({{"list", GetDlgCtrlID(list)},
                        {"index", i},
                        {"data", SendMessageW(list, CB_GETITEMDATA, i, 0)},
                        {"text", texts[i]}});
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

// Has everything drawn, and the system put it onto the screen, which it may do only while this thread waits.
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

ControlKind KindOf(HWND control) {
    if (IsOfClass(control, L"ComboBox"))
        return ControlKind::kList;
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
    const LRESULT count = SendMessageW(list, CB_GETCOUNT, 0, 0);
    for (WPARAM i = 0; static_cast<LRESULT>(i) < count; ++i) {
        const LRESULT length = SendMessageW(list, CB_GETLBTEXTLEN, i, 0);
        std::wstring text(static_cast<size_t>(length < 0 ? 0 : length) + 1, L'\0');
        SendMessageW(list, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text.data()));
        text.pop_back();
        texts.push_back(Utf8(text));
    }
    return texts;
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
    DialogView view = {TextOf(dialog), HintOf(dialog), Document::array(), Document::array(),
                       Document::array()};
    HWND group = nullptr;
    HWND before = nullptr;
    for (HWND control : ControlsOf(dialog)) {
        const ControlKind kind = KindOf(control);
        group = IsGroup(control) ? control : group;
        if (kind != ControlKind::kNone)
            view.controls.push_back(ControlRow(control, kind, group, before));
        if (kind == ControlKind::kList)
            AddEntries(control, view.entries);
        if (!IsWindowEnabled(control))
            view.disabled.push_back(GetDlgCtrlID(control));
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
