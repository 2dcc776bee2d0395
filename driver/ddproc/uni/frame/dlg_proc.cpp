// DDProc_DlgProc: dispatches the messages of the model's dialogs, and runs the tray-settings button.
#include "base/records.h"

#include "base/module_handles.h"
#include "dialogs/color/color_descriptions.h"
#include "dialogs/shared/ui_module.h"
#include "paramdata/device_table.h"
#include "trays/tray_dialog.h"

namespace {

void OpenTraySettings(HWND page, DialogContext* context) {
    SetWindowLongPtrW(page, DWLP_USER, reinterpret_cast<LONG_PTR>(context));
    LoadUiModule();
    const auto run = UiCallback<TelmarMyDialogBox>("MyDialogBox");
    const TrayDialogEntry* tray = FindTrayDialog(SwitchValue(deviceTable, kSwitchDlgMediaType));
    if (run == nullptr || tray == nullptr)
        return;
    const INT_PTR end =
        run(ResourceModule(), page, tray->templateId, tray->procedure, reinterpret_cast<LPARAM>(context));
    if (end == IDOK)
        SendMessageW(GetParent(page), TELMAR_WM_TRAYS_CHANGED, reinterpret_cast<WPARAM>(page), 0);
}

// The page of the button has no other messages of the module. Its identifier is then looked up among the
// colour dialogs as any other, without a match.
void RunTrayButton(HWND page, UINT message, WPARAM wParam) {
    auto* context = reinterpret_cast<DialogContext*>(GetWindowLongPtrW(page, DWLP_USER));
    if (message == WM_COMMAND && context != nullptr && wParam == TELMAR_TRAY_BUTTON)
        OpenTraySettings(page, context);
}

} // namespace

int32_t WINAPI DDProc_DlgProc(uint32_t dialogId, HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                              int32_t* handled) {
    // By contract the page is never reported as handled, even when its button was pressed. It falls through:
    // no colour dialog has its identifier.
    if (dialogId == TELMAR_TRAY_BUTTON_PAGE)
        RunTrayButton(window, message, wParam);
    if (const ColorDialog* dialog = FindColorDialog(dialogId, deviceTable))
        return RunColorDialog(*dialog, window, message, wParam, lParam, handled);
    return 0;
}
