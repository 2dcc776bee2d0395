// Handles the messages of the colour settings dialogs. color_controls.cpp does the work for each kind of
// control.
#include "dialogs/color/color_dialog.h"

#include "base/dialog_ids.h"
#include "dialogs/color/default_devmode.h"
#include "dialogs/shared/item_drawing.h"
#include "dialogs/shared/ui_module.h"
#include "paramdata/control_texts.h"
#include "paramdata/device_table.h"

#include <cstring>
#include <initializer_list>

namespace {

struct Answer {
    int32_t result;
    bool isHandled;
};
constexpr Answer kNotHandled = {0, false};
constexpr Answer kHandled0 = {0, true};
constexpr Answer kHandled1 = {1, true};

// An open dialog.
struct OpenDialog {
    const ColorDialog& description;
    ColorControls controls;

    HWND Window() const { return controls.dialog; }
    DialogContext* Context() const { return controls.context; }
};

OpenDialog Open(const ColorDialog& description, HWND window) {
    auto* context = reinterpret_cast<DialogContext*>(GetWindowLongPtrW(window, DWLP_USER));
    return {description, {window, context, description.graphicsSources}};
}

// --- The settings and the controls -----------------------------------------------------------------------

void FillAll(const OpenDialog& dialog) {
    for (const ColorControl& control : dialog.description.controls)
        FillControl(dialog.controls, control);
}

void ShowAll(const OpenDialog& dialog) {
    for (const ColorControl& control : dialog.description.controls)
        ShowControl(dialog.controls, control);
}

void StoreAll(const OpenDialog& dialog) {
    for (const ColorControl& control : dialog.description.controls)
        StoreControl(dialog.controls, control);
}

void Refresh(const OpenDialog& dialog) {
    FillAll(dialog);
    ShowAll(dialog);
}

// Stores the graphics settings that follow images or text, as the controls show those now.
void DeriveGraphics(const OpenDialog& dialog) {
    for (const ColorControl& control : dialog.description.controls)
        if (AnswerOf(control).isStoredByRefresh)
            StoreControl(dialog.controls, control);
}

void CopySettings(OemDevmode* to, const OemDevmode* from) {
    if (to != nullptr && from != nullptr)
        *to = *from;
}

// --- Changes ---------------------------------------------------------------------------------------------

// The old settings of a control, to be restored when a change is refused. Graphics settings that were derived
// from it are not restored; they stay until they are derived again.
struct Kept {
    uint32_t value;
    ProfileEntry profile;
};

Kept Keep(const OemDevmode& settings, const ColorControl& control) {
    Kept kept = {Load(settings, control.field), {}};
    memcpy(&kept.profile, FieldAt(settings, control.profile), control.profile.size);
    return kept;
}

void PutBack(OemDevmode& settings, const ColorControl& control, const Kept& kept) {
    Store(settings, control.field, kept.value);
    memcpy(FieldAt(settings, control.profile), &kept.profile, control.profile.size);
}

// --- Messages --------------------------------------------------------------------------------------------

Answer OnInitDialog(const ColorDialog& description, HWND window, LPARAM parameter) {
    SetWindowLongPtrW(window, DWLP_USER, parameter);
    dialogState.currentDialogId = description.id;
    const OpenDialog dialog = Open(description, window);
    if (LoadUiModule())
        BindUiModule(window, dialog.Context(), {0, colorDialogTexts, &dialogState.hintToolWindow});
    CopySettings(GetDialogSaveArea(dialog.Context()), GetDialogSettings(dialog.Context()));
    Refresh(dialog);
    const auto isInstalled = UiCallback<TelmarIsInstalledDLManager>("IsInstalledDLManager");
    if (description.listsProfiles && isInstalled != nullptr && isInstalled() == 0)
        EnableDlgControl(window, IDC_DOWNLOAD_MANAGER, false);
    if (!IsSettingChangeAllowed(dialog.Context()))
        DisableControls(window, description.lockList);
    return kHandled0;
}

// A control has been changed; `clicked` is the window that the user clicked.
Answer OnChange(const OpenDialog& dialog, const ColorControl& control, uint16_t clicked) {
    OemDevmode* settings = GetDialogSettings(dialog.Context());
    const Kept kept = settings != nullptr ? Keep(*settings, control) : Kept();
    StoreControl(dialog.controls, control);
    if (IsChangeRefused(dialog.Window(), dialogState.hintToolWindow, clicked) && settings != nullptr) {
        PutBack(*settings, control, kept);
        ShowControl(dialog.controls, control);
    }
    ShowHints(dialog.Window(), dialog.Context(), static_cast<uint16_t>(dialogState.currentDialogId));
    return {AnswerOf(control).result, true};
}

// Moving the focus can activate the dialog and so refresh it before the defaults are copied.
void TakeDefaults(const OpenDialog& dialog) {
    const OemDevmode* defaults = GetDefaultOemDevmode(deviceTable, dialog.Context());
    FocusDlgControl(dialog.Window(), IDC_DEFAULTS);
    OemDevmode* settings = GetDialogSettings(dialog.Context());
    if (defaults == nullptr || settings == nullptr)
        return;
    for (const DevmodeField& field : dialog.description.defaults)
        memcpy(FieldAt(*settings, field), FieldAt(*defaults, field), field.size);
    CheckSettings(dialog.Window(), dialog.Context());
    ShowAll(dialog);
}

Answer OnButton(const OpenDialog& dialog, WPARAM button) {
    switch (button) {
    case IDOK:
        StoreAll(dialog);
        EndDialog(dialog.Window(), IDOK);
        return kHandled1;
    case IDCANCEL:
        CopySettings(GetDialogSettings(dialog.Context()), GetDialogSaveArea(dialog.Context()));
        EndDialog(dialog.Window(), IDCANCEL);
        return kHandled1;
    case IDHELP:
        ShowDialogHelp(dialog.Window(), HELP_CONTEXT, dialog.description.helpTopic);
        return kHandled0;
    case IDC_DEFAULTS:
        TakeDefaults(dialog);
        return kHandled0;
    case IDC_DOWNLOAD_MANAGER:
    case IDC_MANAGE_PROFILES: // left to the user-interface module
        return {dialog.description.listsProfiles ? 1 : 0, false};
    default:
        return kNotHandled;
    }
}

// A command matches only as a whole, notification code and control.
Answer OnCommand(const OpenDialog& dialog, WPARAM command) {
    for (const ColorControl& control : dialog.description.controls)
        for (const uint16_t id : {control.id, control.otherId})
            if (id != 0 && command == MAKEWPARAM(id, AnswerOf(control).notification))
                return OnChange(dialog, control, id);
    return OnButton(dialog, command);
}

Answer OnRefresh(const OpenDialog& dialog) {
    if (!dialog.description.listsProfiles)
        return kNotHandled;
    Refresh(dialog);
    DeriveGraphics(dialog);
    return kHandled1;
}

Answer OnActivate(const OpenDialog& dialog, WPARAM wParam) {
    if (LOWORD(wParam) == WA_INACTIVE || dialog.Context() == nullptr)
        return kNotHandled;
    CheckSettings(dialog.Window(), dialog.Context());
    if (dialog.description.listsProfiles)
        FillAll(dialog);
    ShowAll(dialog);
    return kHandled0;
}

// Whether an icon control belongs to a control or a profile button of this dialog.
bool HasIcon(const ColorDialog& description, uint32_t icon) {
    const uint16_t owner = ControlOfIcon(icon);
    if (owner == IDC_DOWNLOAD_MANAGER || owner == IDC_MANAGE_PROFILES)
        return description.listsProfiles;
    for (const ColorControl& control : description.controls)
        if (owner != 0 && control.id == owner)
            return true;
    return false;
}

const ColorControl* FindList(const ColorDialog& description, UINT id) {
    for (const ColorControl& control : description.controls)
        if (control.id == id && AnswerOf(control).isList)
            return &control;
    return nullptr;
}

// Arrives before WM_INITDIALOG, so there is no context yet.
Answer OnMeasureItem(const ColorDialog& description, MEASUREITEMSTRUCT& item) {
    if (FindList(description, item.CtlID) == nullptr)
        return kNotHandled;
    item.itemHeight = kEntryHeight;
    return kHandled1;
}

// An entry of a list is drawn only when the caller passes a handled flag; the answer is 1 in either case.
Answer OnDrawItem(const OpenDialog& dialog, const DRAWITEMSTRUCT& item, bool isAsked) {
    if (const ColorControl* list = FindList(dialog.description, item.CtlID)) {
        if (isAsked)
            DrawControlEntry(dialog.controls, *list, item);
        return kHandled1;
    }
    const bool isDrawn =
        HasIcon(dialog.description, item.CtlID) && DrawIconControl(dialog.Window(), item.CtlID, item);
    return isDrawn ? kHandled1 : kNotHandled;
}

Answer Run(const ColorDialog& description, HWND window, UINT message, WPARAM wParam, LPARAM lParam,
           bool isAsked) {
    const OpenDialog dialog = Open(description, window);
    switch (message) {
    case WM_INITDIALOG:
        return OnInitDialog(description, window, lParam);
    case WM_COMMAND:
        return OnCommand(dialog, wParam);
    case TELMAR_WM_REFRESH:
        return OnRefresh(dialog);
    case WM_ACTIVATE:
        return OnActivate(dialog, wParam);
    case WM_DESTROY:
        ReleaseUiModule();
        return kHandled0;
    case WM_MEASUREITEM:
        return OnMeasureItem(description, *reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
    case WM_DRAWITEM:
        return OnDrawItem(dialog, *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam), isAsked);
    case WM_HELP:
        AnswerHelp(lParam, description.helpIds);
        return kHandled0;
    case WM_CONTEXTMENU:
        AnswerContextMenu(wParam, description.helpIds);
        return kHandled0;
    default:
        return kNotHandled;
    }
}

} // namespace

int32_t RunColorDialog(const ColorDialog& dialog, HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                       int32_t* handled) {
    const Answer answer = Run(dialog, window, message, wParam, lParam, handled != nullptr);
    if (answer.isHandled && handled != nullptr)
        *handled = 1;
    return answer.result;
}
