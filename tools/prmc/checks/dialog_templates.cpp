// Reads the resource scripts of the dialogs as C++: macros turn their statements into rows of a table.
#include "prmc/checks/dialog_templates.h"

#include "base/dialog_ids.h"

#include <algorithm>

namespace {

struct Control {
    constexpr Control() = default;
    constexpr Control(const char* /*text*/, int number, int, int, int wide, int, unsigned = 0)
        : id(number), width(wide) {}
    constexpr Control(const char* /*text*/, int number, const char* /*window class*/, unsigned /*style*/, int,
                      int, int wide, int, unsigned = 0)
        : id(number), width(wide) {}
    constexpr Control(int number, int, int, int wide, int, unsigned /*style*/)
        : id(number), width(wide), isList(true) {}

    int id = 0;
    int width = 0;
    bool isList = false;
};

constexpr int kMaxControls = 80;

struct Template {
    int id;
    int left, top, width, height;
    unsigned style;
    const char* title;
    int fontSize;
    const char* font;
    int weight, italic, charset;
    Control controls[kMaxControls]; // the first one is empty
};

// The words of the scripts. Numbers that say nothing about widths are 0.
constexpr unsigned DS_SETFONT = 0, DS_MODALFRAME = 0, DS_CENTER = 0, DS_CONTEXTHELP = 0, WS_POPUP = 0,
                   WS_CAPTION = 0, WS_SYSMENU = 0, WS_GROUP = 0, WS_TABSTOP = 0, WS_VSCROLL = 0,
                   WS_EX_CLIENTEDGE = 0, SS_ETCHEDHORZ = 0, SS_OWNERDRAW = 0, CBS_DROPDOWNLIST = 0,
                   CBS_OWNERDRAWFIXED = 0, CBS_HASSTRINGS = 0, LVS_REPORT = 0, LVS_OWNERDRAWFIXED = 0,
                   LVS_SINGLESEL = 0, LVS_SHOWSELALWAYS = 0, LVS_SHAREIMAGELISTS = 0;
constexpr int IDOK = IDC_OK_BUTTON, IDCANCEL = IDC_CANCEL_BUTTON, IDHELP = IDC_HELP_BUTTON;

// clang-format off
#define DIALOGEX ,
#define STYLE    ,
#define CAPTION  ,
#define FONT     ,
#define BEGIN    , { {
#define END      } } }, {
#define CONTROL         }, {
#define LTEXT           }, {
#define COMBOBOX        }, {
#define GROUPBOX        }, {
#define PUSHBUTTON      }, {
#define DEFPUSHBUTTON   }, {
#define AUTOCHECKBOX    }, {
#define AUTORADIOBUTTON }, {

constexpr Template kTemplates[] = { {
#include "resources/color_dialogs.rc"
#include "resources/tray_dialogs.rc"
} }; // the last one is empty
// clang-format on

} // namespace

int WidestControl(int control) {
    int width = 0;
    for (const Template& dialog : kTemplates)
        for (const Control& candidate : dialog.controls)
            if (candidate.id == control)
                width = std::max(width, candidate.width);
    return width;
}

int ListOfLabel(int label) {
    for (const Template& dialog : kTemplates)
        for (int i = 1; i < kMaxControls; ++i)
            if (label != 0 && dialog.controls[i - 1].id == label && dialog.controls[i].isList)
                return dialog.controls[i].id;
    return 0;
}

bool HasControl(int dialog, int control) {
    for (const Template& candidate : kTemplates)
        for (const Control& each : candidate.controls)
            if (candidate.id == dialog && each.id == control)
                return true;
    return false;
}
