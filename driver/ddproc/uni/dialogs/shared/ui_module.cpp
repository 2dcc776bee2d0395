// Loads the user-interface module and calls back into it.
#include "dialogs/shared/ui_module.h"

#include "base/module_handles.h"
#include "dialogs/shared/control_parts.h"
#include "paramdata/control_texts.h"

DialogState dialogState;

namespace {

// A block in the user-interface module's own format: nearly a megabyte, almost all of it zeros. The size
// looks wrong but is part of the contract. Filled when a dialog is initialised, so that the file does not
// carry it.
StopIconTable stopIcons;
static_assert(CountIcons() < sizeof(StopIconTable::records) / sizeof(StopIconRecord));

void FillStopIcons() {
    StopIconRecord* record = stopIcons.records;
    for (const ControlParts& row : kControlParts)
        if (row.icon != 0) {
            record->iconControl = row.icon;
            record->control = row.control;
            ++record;
        }
}

} // namespace

bool LoadUiModule() {
    wchar_t path[kPathCapacity];
    dialogState.uiModule =
        SiblingPath(ModuleInstance(), L"TELMAR_U.DLL", path) ? LoadLibraryW(path) : nullptr;
    return dialogState.uiModule != nullptr;
}

void ReleaseUiModule() {
    if (dialogState.uiModule != nullptr)
        FreeLibrary(dialogState.uiModule);
    dialogState.uiModule = nullptr;
}

void BindUiModule(HWND dialog, DialogContext* context, const UiBinding& binding) {
    FillStopIcons();
    if (const auto replace = UiCallback<TelmarReplaceDlgDispStringCmnItem>("ReplaceDlgDispStringCmnItem"))
        replace(dialog, propertyTexts, binding.commonItemsId, context);
    if (const auto replace = UiCallback<TelmarReplaceDlgDispString>("ReplaceDlgDispString"))
        replace(dialog, binding.texts);
    if (const auto create = UiCallback<TelmarCreateToolWnd>("CreateToolWnd"))
        *binding.hintWindow = create(dialog);
    if (const auto store = UiCallback<TelmarStoreStopIconRect>("StoreStopIconRect"))
        store(dialog, &stopIcons);
    dialogState.doConstraintsEntry = UiCallback<TelmarDoConstraints>("DoConstraints");
    dialogState.dispHintControlEntry = UiCallback<TelmarDispHintControl>("DispHintControl");
    CheckSettings(dialog, context);
}

void CheckSettings(HWND dialog, DialogContext* context) {
    IsChangeRefused(dialog, dialogState.hintToolWindow, 0);
    ShowHints(dialog, context, static_cast<uint16_t>(dialogState.currentDialogId));
}

bool IsChangeRefused(HWND dialog, HWND hintWindow, uint32_t control) {
    if (dialogState.uiModule == nullptr || dialogState.doConstraintsEntry == nullptr)
        return false;
    const int32_t result = dialogState.doConstraintsEntry(nullptr, dialog, hintWindow, control, -1, nullptr);
    return result == TELMAR_CHANGE_REFUSED || result == TELMAR_CHANGE_REFUSED_ALSO;
}

void ShowHints(HWND dialog, DialogContext* context, uint16_t dialogId) {
    if (dialogState.uiModule != nullptr && dialogState.dispHintControlEntry != nullptr)
        dialogState.dispHintControlEntry(dialog, context, dialogId);
}

uint16_t ControlOfIcon(uint32_t iconControl) {
    for (const ControlParts& row : kControlParts)
        if (row.icon != 0 && row.icon == iconControl)
            return row.control;
    return 0;
}

bool DrawIconControl(HWND dialog, uint32_t control, const DRAWITEMSTRUCT& item) {
    const auto draw = UiCallback<TelmarReqDrawStopInfoIcon>("ReqDrawStopInfoIcon");
    if (draw != nullptr)
        draw(dialog, control, &item, &stopIcons);
    return draw != nullptr;
}
