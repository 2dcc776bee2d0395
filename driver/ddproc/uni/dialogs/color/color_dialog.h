// The colour settings dialogs: one engine, which a description makes one dialog or another.
#ifndef DIALOGS_COLOR_COLOR_DIALOG_H
#define DIALOGS_COLOR_COLOR_DIALOG_H

#include "dialogs/color/color_controls.h"
#include "dialogs/shared/dialog_controls.h"

#include <windows.h>

constexpr int kDefaultsButton = 1032;

struct ColorDialog {
    uint16_t id;
    uint32_t variant; // the model's type that asks for it; 0: any other
    uint32_t helpTopic;
    // It lists the printer's profiles: it can be told to read them anew, does so when it is activated, and
    // has buttons to manage them, on which the user-interface module acts.
    bool listsProfiles;
    Rows<ColorControl> controls; // in the order of filling, showing and storing
    Rows<GraphicsSource> graphicsSources;
    Rows<DevmodeField> defaults; // what the Defaults button takes
    const HelpId* helpIds;
    const uint32_t* lockList; // disabled when the user may not change settings; ends with 0
};

// Answers one message of the dialog. `handled`, which may be null, becomes 1 when the dialog has acted on it
// and stays as it is otherwise.
int32_t RunColorDialog(const ColorDialog& dialog, HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                       int32_t* handled);

#endif
