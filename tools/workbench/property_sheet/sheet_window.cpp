// Creates the property sheet and runs its message loop.
#include "workbench/property_sheet/sheet_window.h"

#include "workbench/lib/model_name.h"
#include "workbench/lib/text.h"

#include <commctrl.h>

namespace {

constexpr std::unique_ptr<PropertyPage> (*kPages[])(SheetState& state) = {MakePrinterPage, MakePaperPage,
                                                                          MakeQualityPage, MakeVersionPage};

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
    header.dwFlags = PSH_PROPSHEETPAGE | PSH_MODELESS;
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

bool SheetWindow::HandleMessages(DWORD maxWait) {
    MsgWaitForMultipleObjectsEx(0, nullptr, maxWait, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    MSG message;
    while (CurrentPage() != nullptr && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (SendMessageW(window, PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(&message)) == 0) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    return CurrentPage() != nullptr;
}
