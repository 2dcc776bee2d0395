// The controls of the colour dialogs: what each shows, where its choice is stored, and what its kind does
// with it.
#ifndef DIALOGS_COLOR_COLOR_CONTROLS_H
#define DIALOGS_COLOR_COLOR_CONTROLS_H

#include "base/rows.h"
#include "dialogs/shared/dialog_context.h"
#include "paramdata/devmode_fields.h"

#include <windows.h>

enum class ColorControlKind {
    kItems,          // list of a table's items; an unknown value selects nothing
    kItemsOrFirst,   // list of a table's items; an unknown value becomes the first item's
    kRgbSource,      // items, then the printer's RGB source profiles
    kRgbItems,       // RGB source items only; an unknown value becomes the first item's
    kDestination,    // the automatic destination, then the printer's destination profiles
    kSimulation,     // items, then the printer's simulation profiles
    kCheckBox,       // 0 or 1
    kGraphicsChoice, // two radio buttons: graphics take the settings of images or of text
    kCount
};

// One control. When one of the printer's profiles is chosen, a copy of its record is stored with the value.
struct ColorControl {
    uint16_t id; // kGraphicsChoice: the button for the settings of images
    ColorControlKind kind;
    DevmodeField field;
    DevmodeField profile;         // holds the copy; size 0: no copy is kept
    const ItemRecord* items;      // null: none
    const ItemRecord* shortItems; // used in contexts with short RGB lists; null: `items` there, too
    uint16_t otherId = 0;         // kGraphicsChoice: the button for the settings of text
};

// A graphics setting that follows images or text: it takes the item data of one of two lists.
struct GraphicsSource {
    DevmodeField field;
    uint16_t imageList; // 0: no list, the value is 0
    uint16_t textList;
    DevmodeField profile;    // holds the copy of an RGB source profile; size 0: no copy is kept
    const ItemRecord* items; // of the RGB source
};

// The controls of an open dialog.
struct ColorControls {
    HWND dialog;
    DialogContext* context;
    Rows<GraphicsSource> graphicsSources;
};

// How the dialog treats a kind of control.
struct ColorControlAnswer {
    bool isList;
    uint16_t notification;  // reports a change
    int32_t result;         // of the message that reports it
    bool isStoredByRefresh; // the refresh message stores it, and so what is derived from it
};
ColorControlAnswer AnswerOf(const ColorControl& control);

// Fills a list. Does nothing for other kinds.
void FillControl(const ColorControls& controls, const ColorControl& control);

// Shows the stored setting. A profile or value that its list no longer offers is replaced by the first entry,
// also in the settings; lists of kind kItems select nothing instead.
void ShowControl(const ColorControls& controls, const ColorControl& control);

// Stores the control's current choice.
void StoreControl(const ColorControls& controls, const ColorControl& control);

// Draws an entry of a list.
void DrawControlEntry(const ColorControls& controls, const ColorControl& control, const DRAWITEMSTRUCT& item);

#endif
