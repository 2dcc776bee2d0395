// The text window. It is a dialog of the system's class. The loop of the model's dialog passes it no keys of
// dialogs, so a hook does.
#include "uimodule/text_window.h"

#include "uimodule/library_texts.h"
#include "uimodule/placement.h"
#include "uimodule/resource_ids.h"

namespace {

HWND open;
HHOOK keyHook; // while the window is open
bool isTranslating;

LRESULT CALLBACK TranslateKeys(int code, WPARAM wParam, LPARAM lParam) {
    auto* message = reinterpret_cast<MSG*>(lParam);
    const bool isOwn = code == MSGF_DIALOGBOX && !isTranslating && open != nullptr
                       && (message->hwnd == open || IsChild(open, message->hwnd));
    if (!isOwn)
        return CallNextHookEx(keyHook, code, wParam, lParam);
    isTranslating = true; // IsDialogMessage calls the hook again
    const BOOL isTranslated = IsDialogMessageW(open, message);
    isTranslating = false;
    return isTranslated;
}

INT_PTR CALLBACK TextProcedure(HWND window, UINT message, WPARAM wParam, LPARAM /*lParam*/) {
    switch (message) {
    case WM_INITDIALOG:
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(wParam) != IDOK && LOWORD(wParam) != IDCANCEL)
            return FALSE;
        DestroyWindow(window);
        return TRUE;
    case WM_HELP: // this is the help; the owner would replace it
        return TRUE;
    case WM_DESTROY:
        open = nullptr;
        UnhookWindowsHookEx(keyHook);
        return TRUE;
    default:
        return FALSE;
    }
}

} // namespace

HWND OpenTextWindow(HWND dialog, const wchar_t* title) {
    if (open != nullptr && GetWindow(open, GW_OWNER) != dialog)
        DestroyWindow(open);
    if (open == nullptr) {
        open = CreateDialogParamW(library, MAKEINTRESOURCEW(IDD_TEXT_WINDOW), dialog, TextProcedure, 0);
        if (open == nullptr)
            return nullptr;
        keyHook = SetWindowsHookExW(WH_MSGFILTER, TranslateKeys, nullptr, GetCurrentThreadId());
        PlaceNextTo(open, dialog);
    }
    SetWindowTextW(open, title);
    SetDlgItemTextW(open, IDC_TEXT, L"");
    return open;
}

void AppendParagraph(HWND textWindow, const wchar_t* text) {
    HWND edit = GetDlgItem(textWindow, IDC_TEXT);
    if (edit == nullptr)
        return;
    const auto end = static_cast<WPARAM>(GetWindowTextLengthW(edit));
    SendMessageW(edit, EM_SETSEL, end, static_cast<LPARAM>(end));
    if (end > 0)
        SendMessageW(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L"\r\n"));
    SendMessageW(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text));
}

void ShowTextWindow(HWND textWindow) {
    if (textWindow == nullptr)
        return;
    HWND edit = GetDlgItem(textWindow, IDC_TEXT);
    ShowWindow(textWindow, SW_SHOW);
    SetFocus(edit);
    SendMessageW(edit, EM_SETSEL, 0, 0);
    SendMessageW(edit, EM_SCROLLCARET, 0, 0);
}
