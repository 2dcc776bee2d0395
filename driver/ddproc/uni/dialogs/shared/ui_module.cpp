// The user-interface module: see the header.
#include "dialogs/shared/ui_module.h"

#include "base/module_handles.h"
#include "paramdata/control_texts.h"

DialogState dialogState;

namespace {

// Which icon control stands beside which control.
constexpr struct {
    uint16_t iconControl;
    uint16_t control;
} kStopIcons[] = {
    // clang-format off
    {1503, 1504}, {1402, 1354}, {1403, 1335}, {1601, 1599}, {1401, 1332},
    {1508, 1509}, {1505, 1353}, {1510, 1334}, {1594, 1592}, {1400, 1330},
    {1512, 1513}, {1515, 1516}, {1518, 1519}, {1587, 1584}, {1521, 1522},
    {1482, 1524}, {1629, 1627}, {1527, 1526}, {1530, 1393}, {1529, 1528},
    {1486, 1525}, {1636, 1634},
    // clang-format on
};
constexpr size_t kStopIconCount = sizeof(kStopIcons) / sizeof(kStopIcons[0]);

// A megabyte of almost nothing: zero in the file, filled when a dialog binds itself.
StopIconTable stopIcons;
static_assert(kStopIconCount < sizeof(StopIconTable::records) / sizeof(StopIconRecord));

void FillStopIcons() {
    for (size_t i = 0; i < kStopIconCount; ++i) {
        stopIcons.records[i].iconControl = kStopIcons[i].iconControl;
        stopIcons.records[i].control = kStopIcons[i].control;
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

uint16_t ControlBesideIcon(uint32_t iconControl) {
    for (const auto& row : kStopIcons)
        if (row.iconControl == iconControl)
            return row.control;
    return 0;
}

bool DrawIconControl(HWND dialog, uint32_t control, const DRAWITEMSTRUCT& item) {
    const auto draw = UiCallback<TelmarReqDrawStopInfoIcon>("ReqDrawStopInfoIcon");
    if (draw != nullptr)
        draw(dialog, control, &item, &stopIcons);
    return draw != nullptr;
}
