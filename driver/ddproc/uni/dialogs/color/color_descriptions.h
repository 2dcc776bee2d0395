// The colour settings dialogs of the model, as descriptions for their engine.
#ifndef DIALOGS_COLOR_COLOR_DESCRIPTIONS_H
#define DIALOGS_COLOR_COLOR_DESCRIPTIONS_H

#include "dialogs/color/color_dialog.h"

// The dialog with this identifier, in the variant that the type of the model's "ColorSetting" asks for; null
// when there is none. Lives as long as the module.
const ColorDialog* FindColorDialog(uint32_t id, uint32_t type);

#endif
