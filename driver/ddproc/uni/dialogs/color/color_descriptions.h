// The colour settings dialogs of the model, described for their engine.
#ifndef DIALOGS_COLOR_COLOR_DESCRIPTIONS_H
#define DIALOGS_COLOR_COLOR_DESCRIPTIONS_H

#include "dialogs/color/color_dialog.h"
#include "paramdata/device_table.h"

// The dialog with this identifier, in the variant for the model's "ColorSetting" type; null when there is
// none. A null table has type 0. The result lives as long as the module.
const ColorDialog* FindColorDialog(uint32_t id, const DeviceTable* table);

#endif
