// Creates the property sheet and runs its message loop.
#include "workbench/property_sheet/sheet_window.h"

#include "workbench/lib/localized_text.h"
#include "workbench/lib/model_name.h"
#include "workbench/lib/text.h"
#include "workbench/property_sheet/page_ids.h"
#include "workbench/property_sheet/text_ids.h"

#include <algorithm>

#include <commctrl.h>

namespace {

constexpr std::unique_ptr<PropertyPage> (*kPages[])(SheetState& state) = {MakePrinterPage, MakePaperPage,
                                                                          MakeQualityPage, MakeVersionPage};

constexpr int kApplyButton = 0x3021; // of all property sheets

// The last place of the sheet that is being opened, for PrepareSheet.
const std::optional<POINT>* nextPlace;

// Wherever it was, the sheet is completely on a monitor, next to the task bar.
void MoveSheet(HWND sheet, const std::optional<POINT>& lastPlace) {
    POINT place = {};
    GetCursorPos(&place);
    place = lastPlace.value_or(place);
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromPoint(place, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& area = monitor.rcWork;
    RECT frame = {};
    GetWindowRect(sheet, &frame);
    const SIZE size = {frame.right - frame.left, frame.bottom - frame.top};
    if (!lastPlace.has_value())
        place = {(area.left + area.right - size.cx) / 2, (area.top + area.bottom - size.cy) / 2};
    place.x = std::max(area.left, std::min(place.x, area.right - size.cx));
    place.y = std::max(area.top, std::min(place.y, area.bottom - size.cy));
    SetWindowPos(sheet, nullptr, place.x, place.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// Before the sheet is shown. The system has its buttons in its own languages only.
int CALLBACK PrepareSheet(HWND sheet, UINT message, LPARAM /*lParam*/) {
    if (message != PSCB_INITIALIZED)
        return 0;
    for (const auto& [button, text] : {std::pair(IDCANCEL, TEXT_CANCEL), {kApplyButton, TEXT_APPLY}})
        SetDlgItemTextW(sheet, button, Wide(LocalizedText(text)).c_str());
    MoveSheet(sheet, *nextPlace);
    return 0;
}

} // namespace

SheetWindow::SheetWindow(SheetState& state) {
    InitCommonControls();
    std::vector<PROPSHEETPAGEW> descriptions;
    for (const auto make : kPages) {
        pages.push_back(make(state));
        descriptions.push_back(pages.back()->Description());
    }
    PROPSHEETHEADERW header = {};
    header.dwSize = sizeof(header);
    header.dwFlags = PSH_PROPSHEETPAGE | PSH_MODELESS | PSH_USECALLBACK | PSH_USEICONID;
    header.hInstance = GetModuleHandleW(nullptr);
    header.pszIcon = MAKEINTRESOURCEW(PROGRAM_ICON);
    header.pfnCallback = PrepareSheet;
    nextPlace = &state.place;
    const std::wstring name = Wide(ModelName(state.family));
    header.pszCaption = name.c_str();
    header.nPages = static_cast<UINT>(descriptions.size());
    header.ppsp = descriptions.data();
    window = reinterpret_cast<HWND>(PropertySheetW(&header));
    if (window == nullptr || window == reinterpret_cast<HWND>(INT_PTR{-1}))
        throw Failure(kExitFailed, "the property sheet cannot be opened; it needs a display");
}

SheetWindow::~SheetWindow() {
    DestroyWindow(window);
}

HWND SheetWindow::CurrentPage() const {
    return reinterpret_cast<HWND>(SendMessageW(window, PSM_GETCURRENTPAGEHWND, 0, 0));
}

POINT SheetWindow::Place() const {
    RECT frame = {};
    GetWindowRect(window, &frame);
    return {frame.left, frame.top};
}

// The sheet itself receives keys while no control has the focus.
bool SheetWindow::IsKeyOfPage(const MSG& message) const {
    return message.message == WM_KEYDOWN && (message.hwnd == window || IsChild(window, message.hwnd))
           && std::any_of(pages.begin(), pages.end(),
                          [&](const auto& page) { return page->TakesKey(message.hwnd, message.wParam); });
}

bool SheetWindow::HandleMessages(DWORD maxWait) {
    MsgWaitForMultipleObjectsEx(0, nullptr, maxWait, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    MSG message;
    while (CurrentPage() != nullptr && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (!IsKeyOfPage(message)
            && SendMessageW(window, PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(&message)) == 0) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    return CurrentPage() != nullptr;
}
