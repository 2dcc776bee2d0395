// The supplies of a printer as the printer page shows them: names, levels in words, and which of them need
// attention.
#ifndef WORKBENCH_PROPERTY_SHEET_SUPPLIES_H
#define WORKBENCH_PROPERTY_SHEET_SUPPLIES_H

#include "workbench/lib/printer_queries.h"

enum class Need { kNow, kSoon, kLater, kUnknown };

struct ShownSupply {
    std::string name;
    std::string level;
    Need need;
    MrkSupRequestItem answer;
};

// Those that report a level, the most urgent first. What has changed since `before`, which may be empty, is
// marked with its previous level.
std::vector<ShownSupply> ShownSupplies(const Supplies& supplies, const Supplies& before);

// Draws the row of a list view with two columns: the name, then a bar in the supply's colour and the level.
void DrawSupplyRow(const DRAWITEMSTRUCT& item, const ShownSupply& supply);

// The width in pixels that the second column needs in the list view.
int SupplyLevelWidth(HWND list, int textHeight, const std::vector<ShownSupply>& supplies);

#endif
