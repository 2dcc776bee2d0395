// Chooses the bitmaps of the printer's picture and their order.
#ifndef PICTURE_VIEW_VIEW_RULES_H
#define PICTURE_VIEW_VIEW_RULES_H

#include "base/records.h"
#include "picture/capabilities/option_summary.h"

// Resource identifiers in the order of drawing; later bitmaps are drawn over earlier ones.
struct ViewBitmaps {
    uint16_t parts[4];
    size_t partCount;
    uint16_t highlights[2]; // colour images; the mask of each has the next identifier
    size_t highlightCount;
};

// The installed units and, if the request asks for the paper path, the highlights of its two ends.
ViewBitmaps ChooseBitmaps(const OptionSummary& options, const PrinterViewRequest& request);

#endif
