// The controls of the colour dialogs: what each shows, where its choice is stored, and what its kind does
// with it.
#ifndef DIALOGS_COLOR_COLOR_CONTROLS_H
#define DIALOGS_COLOR_COLOR_CONTROLS_H

#include "base/rows.h"
#include "dialogs/shared/dialog_context.h"
#include "paramdata/device_table.h"
#include "paramdata/devmode_fields.h"

#include <windows.h>

enum class ColorControlKind {
    kItems,          // list of a table's items; a value that it lacks selects nothing
    kItemsOrFirst,   // the same, but a value that it lacks becomes the first item's
    kRgbSource,      // items, then the printer's RGB source profiles
    kRgbItems,       // items of RGB sources alone; a value that they lack becomes the first item's
    kDestination,    // the automatic destination, then the printer's destination profiles
    kSimulation,     // items, then the printer's simulation profiles
    kCheckBox,       // 0 or 1
    kGraphicsChoice, // two radio buttons: graphics take the image or the text settings
    kCount
};

// One control. A choice of one of the printer's profiles is remembered as a copy of it, too.
struct ColorControl {
    uint16_t id; // of the two radio buttons: image settings
    ColorControlKind kind;
    DevmodeField field;
    DevmodeField profile;         // where the profile is remembered; size 0: nowhere
    const ItemRecord* items;      // null: none
    const ItemRecord* shortItems; // instead, where only the short RGB lists are offered; null: the same
    uint16_t otherId = 0;         // of the two radio buttons: text settings
};

// What graphics take when they follow the image or the text settings: the item data of one of two lists, or 0
// where there is none.
struct GraphicsSource {
    DevmodeField field;
    uint16_t imageList; // 0: none
    uint16_t textList;
    DevmodeField profile;    // where an RGB source is remembered; size 0: nowhere
    const ItemRecord* items; // of the RGB source
};

// The controls of an open dialog.
struct ColorControls {
    HWND dialog;
    DialogContext* context;
    Rows<GraphicsSource> graphicsSources;
};

// What a kind of control is to the dialog: which command tells of a change, and what the dialog then answers.
struct ColorControlAnswer {
    bool isList;
    uint16_t notification;
    int32_t result;
};
ColorControlAnswer AnswerOf(const ColorControl& control);

// Fills a list; other kinds have nothing to fill.
void FillControl(const ColorControls& controls, const ColorControl& control);

// Shows the setting. What a list of profiles no longer offers becomes its first entry, in the settings, too.
void ShowControl(const ColorControls& controls, const ColorControl& control);

// Stores the control's choice.
void StoreControl(const ColorControls& controls, const ColorControl& control);

// Draws an entry of a list.
void DrawControlEntry(const ColorControls& controls, const ColorControl& control, const DRAWITEMSTRUCT& item);

#endif
