// The tray-setting dialogs: one engine, and a description of each kind at the end. One dialog is open at a
// time.
#include "trays/tray_dialog.h"

#include "base/dialog_ids.h"
#include "base/rows.h"
#include "base/window_services.h"
#include "dialogs/shared/dialog_controls.h"
#include "dialogs/shared/item_drawing.h"
#include "dialogs/shared/ui_module.h"
#include "paramdata/control_texts.h"
#include "paramdata/device_table.h"
#include "trays/tray_list_view.h"
#include "trays/tray_settings.h"

#include <commctrl.h>
#include <cstring>

namespace {

constexpr uint32_t kTrayDialogId = IDD_TRAYS_6_ATTRIBUTES; // for all kinds
constexpr uint16_t kChangedHintsId =
    TELMAR_TRAY_BUTTON_PAGE; // what DispHintControl gets after a change: the button's page
constexpr uint32_t kHelpTopic = 7300;
constexpr int kIconSize = 16;                                           // pixels
constexpr uint16_t kOrientationIcons[] = {IDI_PORTRAIT, IDI_LANDSCAPE}; // of the user-interface module

HWND trayHintToolWindow;

// A kind of the dialog, and what it keeps while it is open.
struct TrayDialog {
    Rows<MediaTypeList> attributes;
    const HelpId* helpIds;
    WNDPROC listProcedure;                     // the list view's own; null when it has not been replaced
    TrayPaperSetting saved[TELMAR_TRAY_COUNT]; // as at opening
};

HWND ListOf(HWND window) {
    return GetDlgItem(window, IDC_TRAY_LIST);
}

DialogContext* ContextOf(HWND window) {
    return reinterpret_cast<DialogContext*>(GetWindowLongPtrW(window, DWLP_USER));
}

TrayPaperSetting* SelectedTray(HWND window) {
    return TrayOfRow(window, ContextOf(window), SelectedTrayRow(window));
}

// --- Boxes

// The item of an entry; null without such an entry.
const ItemRecord* ItemAt(HWND window, uint16_t box, LRESULT index) {
    const LRESULT data =
        index < 0 ? CB_ERR : SendToControl(window, box, CB_GETITEMDATA, static_cast<WPARAM>(index));
    return data == CB_ERR ? nullptr : reinterpret_cast<const ItemRecord*>(data);
}

void FillBox(HWND window, MediaTypeList attribute) {
    const uint16_t box = trayAttributes[attribute].comboBox;
    SendToControl(window, box, CB_RESETCONTENT);
    WPARAM next = 0;
    for (const ItemRecord& item : Listed(AttributeValues(attribute))) {
        const LRESULT index =
            SendToControl(window, box, CB_INSERTSTRING, next++, reinterpret_cast<LPARAM>(item.display));
        if (index < 0)
            return;
        SendToControl(window, box, CB_SETITEMDATA, static_cast<WPARAM>(index),
                      reinterpret_cast<LPARAM>(&item));
    }
}

// Selects the first entry with the tray's value, or none.
void SelectInBox(HWND window, MediaTypeList attribute, const TrayPaperSetting& tray) {
    const TrayAttribute& row = trayAttributes[attribute];
    const int32_t value = LoadAttribute(tray, row);
    const LRESULT count = SendToControl(window, row.comboBox, CB_GETCOUNT);
    for (LRESULT i = 0; i < count; ++i) {
        const ItemRecord* item = ItemAt(window, row.comboBox, i);
        if (item != nullptr && static_cast<int32_t>(item->head.value) == value) {
            SendToControl(window, row.comboBox, CB_SETCURSEL, static_cast<WPARAM>(i));
            return;
        }
    }
    SendToControl(window, row.comboBox, CB_SETCURSEL, static_cast<WPARAM>(-1));
}

// Selects the values of the selected tray. Without one the boxes stay unchanged.
void SelectInBoxes(const TrayDialog& dialog, HWND window) {
    const TrayPaperSetting* tray = SelectedTray(window);
    if (tray == nullptr)
        return;
    for (const MediaTypeList attribute : dialog.attributes)
        SelectInBox(window, attribute, *tray);
}

void StoreChoice(HWND window, const TrayAttribute& attribute, TrayPaperSetting& tray) {
    const LRESULT selected = SendToControl(window, attribute.comboBox, CB_GETCURSEL);
    if (const ItemRecord* item = ItemAt(window, attribute.comboBox, selected))
        StoreAttribute(tray, attribute, static_cast<int32_t>(item->head.value));
}

// --- The dialog

// Disables what the user may not change.
void LockControls(const TrayDialog& dialog, HWND window) {
    if (IsSettingChangeAllowed(ContextOf(window)))
        return;
    EnableDlgControl(window, IDC_TRAY_LIST, false);
    for (const MediaTypeList attribute : dialog.attributes)
        EnableDlgControl(window, trayAttributes[attribute].comboBox, false);
}

// Hides the attributes that the model lacks.
void HideControls(const TrayDialog& dialog, HWND window) {
    for (const MediaTypeList attribute : dialog.attributes) {
        const TrayAttribute& row = trayAttributes[attribute];
        if (row.feature == kFeatureSwitchCount || SwitchValue(deviceTable, row.feature) != 0)
            continue;
        ShowDlgControl(window, row.label, false);
        ShowDlgControl(window, row.comboBox, false);
    }
}

// Sets the list's small images: icons of the user-interface module, which the image list copies.
void SetOrientationIcons(HWND window) {
    const auto instanceOf = UiCallback<TelmarGetImgResInst>("GetImgResInst");
    if (instanceOf == nullptr)
        return;
    const HINSTANCE instance = instanceOf();
    HIMAGELIST images = ImageList_Create(kIconSize, kIconSize, ILC_MASK | ILC_COLOR32, 2, 0);
    for (const uint16_t id : kOrientationIcons) {
        auto* icon = static_cast<HICON>(
            LoadImageW(instance, MAKEINTRESOURCEW(id), IMAGE_ICON, kIconSize, kIconSize, LR_DEFAULTCOLOR));
        if (icon == nullptr
            || ImageList_ReplaceIcon(images, -1, icon)
                   < 0) { // with one icon alone, both orientations would show it
            ImageList_Destroy(images);
            images = nullptr;
        }
        DestroyIcon(icon);
    }
    SendToControl(window, IDC_TRAY_LIST, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images));
    SendToControl(window, IDC_TRAY_LIST, LVM_DELETEALLITEMS);
}

// Keeps the list view's own procedure also when the dialog is initialised again.
void ReplaceListProcedure(TrayDialog& dialog, HWND list, WNDPROC procedure) {
    const auto before = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
    if (before != procedure)
        dialog.listProcedure = before;
}

void OnInitDialog(TrayDialog& dialog, HWND window, LPARAM parameter, WNDPROC listProcedure) {
    SetWindowLongPtrW(window, DWLP_USER, parameter);
    DialogContext* context = ContextOf(window);
    ReplaceListProcedure(dialog, ListOf(window), listProcedure);
    dialogState.currentDialogId = kTrayDialogId;
    if (LoadUiModule()) {
        BindUiModule(window, context, {kTrayDialogId, trayDialogTexts, &trayHintToolWindow});
        SetOrientationIcons(window);
    }
    if (const TrayPaperSetting* trays = GetTraySettings(context))
        memcpy(dialog.saved, trays, sizeof(dialog.saved));
    SetUpTrayColumns(window);
    FillTrayRows(window, context);
    SelectTrayRow(window, 0);
    for (const MediaTypeList attribute : dialog.attributes)
        FillBox(window, attribute);
    SelectInBoxes(dialog, window);
    HideControls(dialog, window);
    LockControls(dialog, window);
}

// The user has chosen a value for the selected tray.
void OnChange(const TrayDialog& dialog, HWND window, MediaTypeList attribute) {
    const int row = SelectedTrayRow(window);
    DialogContext* context = ContextOf(window);
    TrayPaperSetting* tray = TrayOfRow(window, context, row);
    if (tray == nullptr)
        return;
    const TrayAttribute& changed = trayAttributes[attribute];
    const int32_t kept = LoadAttribute(*tray, changed);
    StoreChoice(window, changed, *tray);
    if (IsChangeRefused(window, trayHintToolWindow, changed.comboBox)) {
        StoreAttribute(*tray, changed, kept);
        SelectInBox(window, attribute, *tray);
    }
    ShowHints(window, context, kChangedHintsId);
    LockControls(dialog, window);
    FillTrayRows(window, context);
    SelectTrayRow(window, row);
    SendToControl(window, IDC_TRAY_LIST, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

// Restores the attributes of this kind of dialog. Keys and bin numbers, which the list has set, stay.
void RestoreTrays(const TrayDialog& dialog, HWND window) {
    TrayPaperSetting* trays = GetTraySettings(ContextOf(window));
    for (size_t i = 0; trays != nullptr && i < TELMAR_TRAY_COUNT; ++i)
        for (const MediaTypeList attribute : dialog.attributes)
            StoreAttribute(trays[i], trayAttributes[attribute],
                           LoadAttribute(dialog.saved[i], trayAttributes[attribute]));
}

INT_PTR OnCommand(const TrayDialog& dialog, HWND window, WPARAM command) {
    for (const MediaTypeList attribute : dialog.attributes)
        if (command == MAKEWPARAM(trayAttributes[attribute].comboBox, CBN_SELENDOK)) {
            OnChange(dialog, window, attribute);
            return 1;
        }
    switch (command) {
    case IDOK:
        EndDialog(window, IDOK);
        return 0;
    case IDCANCEL:
        RestoreTrays(dialog, window);
        EndDialog(window, IDCANCEL);
        return 1;
    case IDHELP:
        ShowDialogHelp(window, HELP_CONTEXT, kHelpTopic);
        return 0;
    default:
        return 0;
    }
}

void OnActivate(const TrayDialog& dialog, HWND window, WPARAM wParam) {
    if (ContextOf(window) == nullptr || LOWORD(wParam) == WA_INACTIVE)
        return;
    CheckSettings(window, ContextOf(window));
    SelectInBoxes(dialog, window);
    LockControls(dialog, window);
}

// Whether the control is an attribute's box in any kind of the dialog.
bool IsAttributeBox(UINT control) {
    for (const TrayAttribute& attribute : trayAttributes)
        if (attribute.comboBox == control)
            return true;
    return false;
}

INT_PTR OnDrawItem(HWND window, const DRAWITEMSTRUCT& item) {
    const bool isBox = IsAttributeBox(item.CtlID);
    if (isBox)
        DrawRecordEntry(item);
    else if (item.CtlID == IDC_TRAY_LIST)
        DrawTrayRow(window, ContextOf(window), item);
    return isBox || item.CtlID == IDC_TRAY_LIST ? 1 : 0;
}

// Comes before WM_INITDIALOG.
INT_PTR OnMeasureItem(MEASUREITEMSTRUCT& item) {
    if (item.CtlID != IDC_TRAY_LIST && !IsAttributeBox(item.CtlID))
        return 0;
    item.itemHeight = kEntryHeight;
    return 1;
}

// The list gives up its images first, since it destroys those that it has.
void OnDestroy(TrayDialog& dialog, HWND window) {
    const LRESULT images = SendToControl(window, IDC_TRAY_LIST, LVM_SETIMAGELIST, LVSIL_SMALL);
    if (images != 0)
        ImageList_Destroy(reinterpret_cast<HIMAGELIST>(images));
    if (dialog.listProcedure != nullptr)
        SetWindowLongPtrW(ListOf(window), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(dialog.listProcedure));
    dialog.listProcedure = nullptr;
}

INT_PTR RunTrayDialog(TrayDialog& dialog, WNDPROC listProcedure, HWND window, UINT message, WPARAM wParam,
                      LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        OnInitDialog(dialog, window, lParam, listProcedure);
        return 0;
    case WM_COMMAND:
        return OnCommand(dialog, window, wParam);
    case WM_NOTIFY:
        if (reinterpret_cast<const NMHDR*>(lParam)->code == LVN_ITEMCHANGED)
            SelectInBoxes(dialog, window);
        return 0;
    case WM_ACTIVATE:
        OnActivate(dialog, window, wParam);
        return 0;
    case WM_DRAWITEM:
        return OnDrawItem(window, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
    case WM_MEASUREITEM:
        return OnMeasureItem(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
    case WM_HELP:
        AnswerHelp(lParam, dialog.helpIds);
        return 0;
    case WM_CONTEXTMENU:
        AnswerContextMenu(wParam, dialog.helpIds);
        return 0;
    case WM_DESTROY:
        OnDestroy(dialog, window);
        return 0;
    default:
        return 0;
    }
}

// --- The kinds

// The order of the attributes is that in which boxes are filled and locked.
constexpr MediaTypeList kAttributes1[] = {kMediaSize,   kMediaOrientation, kMediaType,
                                          kMediaWeight, kMediaColor,       kMediaPrePunched};
constexpr MediaTypeList kAttributes2[] = {kMediaSize, kMediaOrientation, kMediaType, kMediaColor,
                                          kMediaPrePunched};
constexpr MediaTypeList kAttributes3[] = {kMediaSize, kMediaOrientation, kMediaType};

// clang-format off
#define HELP(control, topic) {control##_LABEL, topic}, {control, topic}
#define HELP_HEAD   {IDC_TRAY_LIST_LABEL, 7310}, {IDC_TRAY_LIST, 7320}, \
                    HELP(IDC_TRAY_SIZE, 7330), HELP(IDC_TRAY_ORIENTATION, 7340), HELP(IDC_TRAY_TYPE, 7350)
#define HELP_WEIGHT HELP(IDC_TRAY_WEIGHT, 7360)
#define HELP_TAIL   HELP(IDC_TRAY_COLOR, 7370), HELP(IDC_TRAY_PRE_PUNCHED, 7380)
constexpr HelpId kHelp1[] = {HELP_HEAD, HELP_WEIGHT, HELP_TAIL, {0, 0}};
constexpr HelpId kHelp2[] = {HELP_HEAD, HELP_TAIL, {0, 0}};
constexpr HelpId kHelp3[] = {HELP_HEAD, {0, 0}};
// clang-format on

// Constant-initialised: the module runs no constructors.
TrayDialog trayDialogs[] = {
    {kAttributes1, kHelp1, nullptr, {}},
    {kAttributes2, kHelp2, nullptr, {}},
    {kAttributes3, kHelp3, nullptr, {}},
};

// Windows does not pass the kind of dialog to its procedures, so each kind has its own.
template <size_t Kind>
LRESULT CALLBACK ListProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
    return RepaintTrayRows(trayDialogs[Kind].listProcedure, list, message, wParam, lParam);
}
template <size_t Kind>
INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return RunTrayDialog(trayDialogs[Kind], ListProcedure<Kind>, window, message, wParam, lParam);
}

// By the switch's value, from 1 on.
constexpr TrayDialogEntry kEntries[] = {
    {IDD_TRAYS_6_ATTRIBUTES, DialogProcedure<0>},
    {IDD_TRAYS_5_ATTRIBUTES, DialogProcedure<1>},
    {IDD_TRAYS_3_ATTRIBUTES, DialogProcedure<2>},
};
constexpr uint32_t kEntryCount = sizeof(kEntries) / sizeof(kEntries[0]);

} // namespace

const TrayDialogEntry* FindTrayDialog(uint32_t type) {
    return type >= 1 && type <= kEntryCount ? &kEntries[type - 1] : nullptr;
}
