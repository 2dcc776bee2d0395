// The colour settings dialogs of the model, as descriptions for their engine.
#ifndef DIALOGS_COLOR_DESCRIPTIONS_H
#define DIALOGS_COLOR_DESCRIPTIONS_H

#include "dialogs/color_dialog.h"

extern const ColorDialog kFullColorDialog; // 128: text, image and graphics each with lists of their own

#endif
