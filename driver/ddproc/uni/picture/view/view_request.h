// What the caller wants to see of the printer.
#ifndef PICTURE_VIEW_VIEW_REQUEST_H
#define PICTURE_VIEW_VIEW_REQUEST_H

#include "picture/capabilities/feature_table.h"

#pragma pack(push, 1)
// Flags count when they are not 0.
struct PrinterViewRequest {
    uint8_t showsPaperPath;          // 0: the machine only
    const FeatureRecord* features;   // may be null: nothing installed
    const FeatureSettings* settings; // may be null: nothing chosen
    char inputSlotKey[40];           // paper source in use, such as "InTray1"
    uint32_t outputFlags[9];         // output destination in use: flag 1 to flag 9
};
static_assert(sizeof(PrinterViewRequest) == 93 && offsetof(PrinterViewRequest, features) == 1
              && offsetof(PrinterViewRequest, settings) == 9
              && offsetof(PrinterViewRequest, inputSlotKey) == 17
              && offsetof(PrinterViewRequest, outputFlags) == 57);
#pragma pack(pop)

#endif
