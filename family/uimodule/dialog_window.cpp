// The procedure in front of a dialog's own.
#include "uimodule/dialog_window.h"

#include "base/dialog_ids.h"
#include "uimodule/exports.h"
#include "uimodule/help.h"
#include "uimodule/library_texts.h"
#include "uimodule/list_fit.h"
#include "uimodule/list_tips.h"
#include "uimodule/profile_windows.h"

#include <commctrl.h>
#include <windowsx.h>

namespace {

constexpr const wchar_t* kProcedure = L"TELMAR_U procedure"; // window property: the dialog's own procedure

HHOOK destroyHook;
int attachedDialogs;
bool isPaperChosen; // the module handles a choice, and selects the tray once more
bool isBecomingActive;

const DialogContext* ContextOf(HWND dialog) {
    return reinterpret_cast<const DialogContext*>(GetWindowLongPtrW(dialog, DWLP_USER));
}

WNDPROC ProcedureOf(HWND dialog) {
    return reinterpret_cast<WNDPROC>(GetPropW(dialog, kProcedure));
}

// Commands that the module does not need. False for all others.
bool TakeCommand(HWND dialog, WPARAM command) {
    switch (command) {
    case IDHELP:
        ShowHelp(dialog);
        return true;
    case IDC_MANAGE_PROFILES:
        ShowProfiles(dialog, ContextOf(dialog));
        return true;
    case IDC_DOWNLOAD_MANAGER:
        ShowDownloadManager(dialog);
        return true;
    default:
        return false;
    }
}

// The module answers with a fixed height.
bool TakeMeasureItem(HWND dialog, MEASUREITEMSTRUCT& item) {
    if (item.CtlID != IDC_TRAY_LIST)
        return false;
    item.itemHeight = TrayRowHeight(GetDlgItem(dialog, IDC_TRAY_LIST));
    return true;
}

bool TakeHelp(HWND dialog, const HELPINFO& info) {
    ShowHelpOn(dialog, info.iContextType == HELPINFO_WINDOW ? static_cast<HWND>(info.hItemHandle) : nullptr);
    return true;
}

bool IsOnFrame(HWND dialog, LPARAM point) {
    return point != -1 && SendMessageW(dialog, WM_NCHITTEST, 0, point) != HTCLIENT; // -1: by the keyboard
}

// The title bar has the system's menu.
bool TakeContextMenu(HWND dialog, WPARAM wParam, LPARAM point) {
    HWND window = reinterpret_cast<HWND>(wParam);
    if (window == dialog && IsOnFrame(dialog, point))
        DefWindowProcW(dialog, WM_CONTEXTMENU, wParam, point);
    else
        OfferHelpOn(dialog, window, {GET_X_LPARAM(point), GET_Y_LPARAM(point)});
    return true;
}

bool TakeNotification(NMHDR& notification) {
    if (notification.code != TTN_GETDISPINFOW)
        return false;
    DescribeCutText(reinterpret_cast<NMTTDISPINFOW&>(notification));
    return true;
}

bool TakeMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_COMMAND:
        return TakeCommand(dialog, wParam);
    case WM_MEASUREITEM:
        return TakeMeasureItem(dialog, *reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
    case WM_NOTIFY:
        return TakeNotification(*reinterpret_cast<NMHDR*>(lParam));
    case WM_HELP:
        return TakeHelp(dialog, *reinterpret_cast<const HELPINFO*>(lParam));
    case WM_CONTEXTMENU:
        return TakeContextMenu(dialog, wParam, lParam);
    case WM_SETCURSOR:
        FollowPointer(dialog, reinterpret_cast<HWND>(wParam), HIWORD(lParam));
        return false;
    default:
        return false;
    }
}

// The module checks the settings when the paper of a tray has changed, not when another tray is selected.
void CheckSelectedTray(HWND dialog) {
    auto* context = reinterpret_cast<DialogContext*>(GetWindowLongPtrW(dialog, DWLP_USER));
    DoConstraints(nullptr, dialog, nullptr, 0, -1, nullptr);
    DispHintControl(dialog, context, IDD_TRAYS_6_ATTRIBUTES);
}

bool IsTraySelected(UINT message, LPARAM lParam) {
    const auto* change = reinterpret_cast<const NMLISTVIEW*>(lParam);
    return message == WM_NOTIFY && change->hdr.code == LVN_ITEMCHANGED && change->hdr.idFrom == IDC_TRAY_LIST
           && (change->uNewState & LVIS_SELECTED) != 0;
}

LRESULT HandleMessage(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    if (TakeMessage(dialog, message, wParam, lParam))
        return TRUE;
    const UINT notification = message == WM_COMMAND ? HIWORD(wParam) : 0;
    if (notification == CBN_DROPDOWN)
        FitDroppedWidth(reinterpret_cast<HWND>(lParam));
    const bool wasPaperChosen = isPaperChosen;
    const bool wasBecomingActive = isBecomingActive;
    isPaperChosen = wasPaperChosen || notification == CBN_SELENDOK;
    isBecomingActive = wasBecomingActive || message == WM_ACTIVATE;
    const LRESULT result = CallWindowProcW(ProcedureOf(dialog), dialog, message, wParam, lParam);
    isPaperChosen = wasPaperChosen;
    isBecomingActive = wasBecomingActive;
    if ((message == WM_SHOWWINDOW && wParam != FALSE) || notification == CBN_SELENDOK)
        FitTrayColumns(dialog); // the module has filled the list
    if (IsTraySelected(message, lParam) && !isPaperChosen)
        CheckSelectedTray(dialog);
    return result;
}

// A message loop below, such as that of a menu, may end the dialog, which then frees this library. A
// reference prevents that while the library's code runs. It can't be given back when it is the last one: the
// library then stays loaded until the process ends.
LRESULT CALLBACK FrontProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    HMODULE held = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<const wchar_t*>(library),
                       &held);
    const LRESULT result = HandleMessage(dialog, message, wParam, lParam);
    if (held != nullptr && attachedDialogs > 0)
        FreeLibrary(held);
    return result;
}

void Detach(HWND dialog) {
    SetWindowLongPtrW(dialog, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ProcedureOf(dialog)));
    RemovePropW(dialog, kProcedure);
    if (--attachedDialogs == 0)
        UnhookWindowsHookEx(destroyHook);
}

// Runs before the window gets WM_DESTROY.
LRESULT CALLBACK WatchDestruction(int code, WPARAM wParam, LPARAM lParam) {
    const LRESULT result =
        CallNextHookEx(destroyHook, code, wParam, lParam); // other than 0: the window stays
    HWND window = code == HCBT_DESTROYWND ? reinterpret_cast<HWND>(wParam) : nullptr;
    if (window != nullptr && result == 0 && ProcedureOf(window) != nullptr)
        Detach(window);
    return result;
}

} // namespace

bool IsBecomingActive() {
    return isBecomingActive;
}

void AttachToDialog(HWND dialog) {
    const auto procedure = reinterpret_cast<HANDLE>(GetWindowLongPtrW(dialog, GWLP_WNDPROC));
    if (ProcedureOf(dialog) != nullptr || !SetPropW(dialog, kProcedure, procedure))
        return;
    if (attachedDialogs == 0)
        destroyHook = SetWindowsHookExW(WH_CBT, WatchDestruction, nullptr, GetCurrentThreadId());
    if (destroyHook == nullptr) {
        RemovePropW(dialog, kProcedure);
        return;
    }
    ++attachedDialogs;
    AddListTips(dialog);
    SetWindowLongPtrW(dialog, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(FrontProcedure));
}
