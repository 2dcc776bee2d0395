// The supplies of a printer as the printer page draws them.
#ifndef WORKBENCH_PROPERTY_SHEET_SUPPLIES_H
#define WORKBENCH_PROPERTY_SHEET_SUPPLIES_H

#include "workbench/lib/supply_words.h"

// Draws the row of a list view with two columns: the name, then a bar in the supply's colour and the level.
void DrawSupplyRow(const DRAWITEMSTRUCT& item, const ShownSupply& supply);

// The width in pixels that the second column needs in the list view.
int SupplyLevelWidth(HWND list, int textHeight, const std::vector<ShownSupply>& supplies);

#endif
