// The colour dialogs that the user-interface module opens, by the type of the feature switch "ColorSetting".
// Header only, for tools of either build.
#ifndef COMMON_COLOR_DIALOGS_H
#define COMMON_COLOR_DIALOGS_H

#include "base/dialog_ids.h"

#include <cstdint>

struct ColorDialogRow {
    uint32_t id;
    const char* contents;
};

// By the n of TYPEn. The first is that of any other type, too, and of a model without the switch.
inline constexpr ColorDialogRow kColorDialogsByType[] = {
    {IDD_COLOR_BASIC, "RGB sources of the model only; graphics follow text or images"},
    {IDD_COLOR_FULL, "lists for text, images and graphics each, output profiles and press simulation"},
    {IDD_COLOR_COMMON_DESTINATION,
     "one output profile for the page, press simulation; graphics follow text or images"},
    {IDD_COLOR_BASIC, "as without the switch"},
    {IDD_COLOR_SIMULATION, "press simulation, no output profiles; graphics follow text or images"},
    {IDD_COLOR_SINGLE_SOURCE, "one RGB source for the page; graphics follow text or images"},
};

#endif
