// Which bitmaps make up the printer's picture, and in which order.
#ifndef PICTURE_VIEW_VIEW_RULES_H
#define PICTURE_VIEW_VIEW_RULES_H

#include "base/records.h"
#include "picture/capabilities/option_summary.h"

// Resource ids in the order of drawing; what comes later lies over what came earlier.
struct ViewBitmaps {
    uint16_t parts[4];
    size_t partCount;
    uint16_t highlights[2]; // colour images; the mask of each has the id behind
    size_t highlightCount;
};

// The units that are installed and, when the request asks for it, the paper's way in and out.
ViewBitmaps ChooseBitmaps(const OptionSummary& options, const PrinterViewRequest& request);

#endif
