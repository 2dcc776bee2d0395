// The engine of the colour settings dialogs, and the description that turns it into one of them.
#ifndef DIALOGS_COLOR_COLOR_DIALOG_H
#define DIALOGS_COLOR_COLOR_DIALOG_H

#include "dialogs/color/color_controls.h"
#include "dialogs/shared/dialog_controls.h"

#include <windows.h>

struct ColorDialog {
    uint16_t id;
    uint32_t type; // the model's "ColorSetting" type that selects this variant; 0: any other
    uint32_t helpTopic;
    // It lists the printer's profiles: the refresh message and activation fill the lists again, and it has
    // the buttons for profiles, which the user-interface module serves.
    bool listsProfiles;
    Rows<ColorControl> controls; // in the order of filling, showing and storing
    Rows<GraphicsSource> graphicsSources;
    Rows<DevmodeField> defaults; // copied by the Defaults button
    const HelpId* helpIds;
    const uint32_t* lockList; // disabled when the user may not change settings; ends with 0
};

// Handles one message of the dialog and returns the result for it. `handled` may be null; it is set to 1 when
// the dialog has acted on the message and is left unchanged otherwise.
int32_t RunColorDialog(const ColorDialog& dialog, HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                       int32_t* handled);

#endif
