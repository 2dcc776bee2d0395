// Building blocks of the model's dialogs: one grid, one look. All measures are dialog units.
// A label comes directly before its list, so that its access key leads there and a screen reader reads it. An icon
// control stands above the right end of its list or beside its button, and shows when a choice there is refused.
// Labels leave room for translations: texts may be two fifths longer than the English ones.
#pragma once
#include <windows.h>
#include <commctrl.h>

#define MARGIN 7
#define SPACING 4
#define COLUMN_WIDTH 150
#define COLUMN_1 MARGIN
#define COLUMN_2 (COLUMN_1 + COLUMN_WIDTH + SPACING)
#define COLUMN_3 (COLUMN_2 + COLUMN_WIDTH + SPACING)
#define TWO_COLUMNS (2 * COLUMN_WIDTH + SPACING)
#define THREE_COLUMNS (3 * COLUMN_WIDTH + 2 * SPACING)

#define LINE_HEIGHT 10                          // a label, a radio button, an icon
#define ROW_HEIGHT 24                           // a label and, below it, its list with entries of 16 pixels
#define ROW_PITCH (ROW_HEIGHT + SPACING)
#define DROPPED_HEIGHT 120                      // of a list, with its entries
#define ICON_WIDTH 11                           // as wide as LINE_HEIGHT is high
#define BUTTON_WIDTH 50
#define BUTTON_HEIGHT 14

// A modal dialog over a property sheet, with the question mark that asks for help on a control; `width` is that of its
// columns. It ends with its footer, a line and the bottom buttons, whose top is at `footer`.
#define MODEL_DIALOG(id, title, width, footer) \
    id DIALOGEX 0, 0, width + 2 * MARGIN, footer + FOOTER_HEIGHT \
    STYLE DS_SETFONT | DS_MODALFRAME | DS_CENTER | DS_CONTEXTHELP | WS_POPUP | WS_CAPTION | WS_SYSMENU \
    CAPTION title \
    FONT 8, "MS Shell Dlg", 0, 0, 1
#define FOOTER_HEIGHT (MARGIN + BUTTON_HEIGHT + MARGIN)
#define FOOTER_LINE(id, width, top) \
    CONTROL "", id, "Static", SS_ETCHEDHORZ | WS_GROUP, MARGIN, top, width, 1
#define BOTTOM_BUTTON(left, top) left, top + MARGIN, BUTTON_WIDTH, BUTTON_HEIGHT
#define FROM_RIGHT(width, count) (MARGIN + width + SPACING - count * (BUTTON_WIDTH + SPACING))
#define OK_CANCEL_HELP(width, top) \
    DEFPUSHBUTTON "OK", IDOK, BOTTOM_BUTTON(FROM_RIGHT(width, 3), top), WS_GROUP \
    PUSHBUTTON "Cancel", IDCANCEL, BOTTOM_BUTTON(FROM_RIGHT(width, 2), top) \
    PUSHBUTTON "Help", IDHELP, BOTTOM_BUTTON(FROM_RIGHT(width, 1), top)

// A group; its rows of lists count from 0.
#define GROUP_INSET 7
#define GROUP_TITLE 11
#define IN_GROUP(column) (column + GROUP_INSET)
#define ROW_TOP(group, row) (group + GROUP_TITLE + row * ROW_PITCH)
#define ROWS_HEIGHT(rows) (GROUP_TITLE + rows * ROW_PITCH - SPACING + GROUP_INSET)
#define LINES_HEIGHT(lines) (GROUP_TITLE + lines * (LINE_HEIGHT + SPACING) - SPACING + GROUP_INSET)
#define GROUP(text, id, column, top, width, height) \
    GROUPBOX text, id, column, top, width, height, WS_GROUP

#define ICON(id, left, top) \
    CONTROL "", id, "Static", SS_OWNERDRAW, left, top, ICON_WIDTH, LINE_HEIGHT
#define LABELLED_LIST(text, label, list, left, top, width, label_width) \
    LTEXT text, label, left, top, label_width, 8 \
    COMBOBOX list, left, top + LINE_HEIGHT, width, DROPPED_HEIGHT, \
        CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP
#define ICON_LIST(text, label, list, icon, left, top, width) \
    ICON(icon, left + width - ICON_WIDTH, top) \
    LABELLED_LIST(text, label, list, left, top, width, width - ICON_WIDTH - 2)
#define GROUP_LIST(text, label, list, icon, column, group, row) \
    ICON_LIST(text, label, list, icon, IN_GROUP(column), ROW_TOP(group, row), COLUMN_WIDTH - 2 * GROUP_INSET)
