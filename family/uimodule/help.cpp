// The help: which text explains which controls.
#include "uimodule/help.h"

#include "base/dialog_ids.h"
#include "base/text.h"
#include "uimodule/library_texts.h"
#include "uimodule/resource_ids.h"
#include "uimodule/text_window.h"
#include "uimodule/window_parts.h"

namespace {

constexpr size_t kMaxControls = 4;

struct HelpText {
    uint16_t text;
    uint16_t controls[kMaxControls]; // 0: none
};

// In the order of the help. A dialog's help has the texts of which it shows a control.
// clang-format off
constexpr HelpText kHelp[] = {
    {HELP_COLORS,           {IDC_IMAGE_GROUP}},
    {HELP_RGB_SOURCE,       {IDC_IMAGE_RGB_SOURCE,  IDC_TEXT_RGB_SOURCE,  IDC_GRAPHICS_RGB_SOURCE,  IDC_PAGE_RGB_SOURCE}},
    {HELP_COLOR_MATCH,      {IDC_IMAGE_COLOR_MATCH, IDC_TEXT_COLOR_MATCH, IDC_GRAPHICS_COLOR_MATCH}},
    {HELP_GRAY,             {IDC_IMAGE_GRAY,        IDC_TEXT_GRAY,        IDC_GRAPHICS_GRAY}},
    {HELP_DESTINATION,      {IDC_IMAGE_DESTINATION, IDC_TEXT_DESTINATION, IDC_GRAPHICS_DESTINATION, IDC_PAGE_DESTINATION}},
    {HELP_HALFTONE,         {IDC_IMAGE_HALFTONE,    IDC_TEXT_HALFTONE,    IDC_GRAPHICS_HALFTONE}},
    {HELP_GRAPHICS_FOLLOW,  {IDC_GRAPHICS_LIKE_IMAGES, IDC_GRAPHICS_LIKE_TEXT}},
    {HELP_SIMULATION,       {IDC_SIMULATION}},
    {HELP_SIMULATION_GRAY,  {IDC_SIMULATION_GRAY}},
    {HELP_PAPER_COLOR,      {IDC_MATCH_PAPER_COLOR}},
    {HELP_DOWNLOAD_MANAGER, {IDC_DOWNLOAD_MANAGER}},
    {HELP_MANAGE_PROFILES,  {IDC_MANAGE_PROFILES}},
    {HELP_TRAYS,            {IDC_TRAY_LIST_LABEL}},
    {HELP_TRAY_LIST,        {IDC_TRAY_LIST}},
    {HELP_TRAY_SIZE,        {IDC_TRAY_SIZE}},
    {HELP_TRAY_ORIENTATION, {IDC_TRAY_ORIENTATION}},
    {HELP_TRAY_TYPE,        {IDC_TRAY_TYPE}},
    {HELP_TRAY_WEIGHT,      {IDC_TRAY_WEIGHT}},
    {HELP_TRAY_COLOR,       {IDC_TRAY_COLOR}},
    {HELP_TRAY_PRE_PUNCHED, {IDC_TRAY_PRE_PUNCHED}},
    {HELP_STOP_SIGN,        {IDC_IMAGE_GROUP}},
    {HELP_DEFAULTS,         {IDC_DEFAULTS}},
    {HELP_BUTTONS,          {IDC_OK_BUTTON, IDC_CANCEL_BUTTON}},
};
// clang-format on

// When its dialog is.
bool IsShown(HWND control) {
    return control != nullptr && (GetWindowLongPtrW(control, GWL_STYLE) & WS_VISIBLE) != 0;
}

bool ShowsAnyControl(HWND dialog, const HelpText& row) {
    for (const uint16_t control : row.controls)
        if (control != 0 && IsShown(GetDlgItem(dialog, control)))
            return true;
    return false;
}

// The text on a control; null when there is none.
const HelpText* FindHelp(HWND control) {
    const int id = GetDlgCtrlID(control);
    for (const HelpText& row : kHelp)
        for (const uint16_t candidate : row.controls)
            if (candidate != 0 && candidate == id)
                return &row;
    return nullptr;
}

// A label has the help of its list, which comes next.
const HelpText* FindHelpOfLabel(HWND control) {
    const HelpText* own = FindHelp(control);
    HWND next = GetWindow(control, GW_HWNDNEXT);
    return own == nullptr && next != nullptr && IsKind(control, L"Static", 0, 0) ? FindHelp(next) : own;
}

HWND OpenHelp(HWND dialog) {
    wchar_t title[128] = L"";
    GetWindowTextW(dialog, title, sizeof(title) / sizeof(title[0]) / 2);
    AppendText(title, L" - ");
    AppendText(title, TextOf(HELP_TITLE).text);
    return OpenTextWindow(dialog, title);
}

} // namespace

void ShowHelp(HWND dialog) {
    HWND window = OpenHelp(dialog);
    bool isFirst = true;
    for (const HelpText& row : kHelp) {
        if (!ShowsAnyControl(dialog, row))
            continue;
        if (!isFirst)
            AppendParagraph(window, L"");
        AppendParagraph(window, TextOf(row.text).text);
        isFirst = false;
    }
    ShowTextWindow(window);
}

void ShowHelpOn(HWND dialog, HWND control) {
    const HelpText* help = control != nullptr ? FindHelpOfLabel(control) : nullptr;
    if (help == nullptr) {
        ShowHelp(dialog);
        return;
    }
    HWND window = OpenHelp(dialog);
    AppendParagraph(window, TextOf(help->text).text);
    ShowTextWindow(window);
}

void OfferHelpOn(HWND dialog, HWND control, POINT at) {
    if (at.x == -1 && at.y == -1) {
        const RECT frame = FrameOf(control);
        at = {frame.left, frame.bottom};
    }
    HMENU menu = CreatePopupMenu();
    AppendMenuW(menu, MF_STRING, HELP_MENU, TextOf(HELP_MENU).text);
    if (TrackPopupMenu(menu, TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON, at.x, at.y, 0, dialog, nullptr)
        != 0)
        ShowHelpOn(dialog, control);
    DestroyMenu(menu);
}
