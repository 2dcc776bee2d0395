// One picture of the printer: the installed units and the paper path.
#ifndef WORKBENCH_LIB_PRINTER_SCENE_H
#define WORKBENCH_LIB_PRINTER_SCENE_H

#include "workbench/lib/option_features.h"

constexpr SIZE kSceneSize = {200, 200}; // pixels; the size that the module's bitmaps are drawn for

constexpr int kFirstOutputFlag = 1;
constexpr int kLastOutputFlag = 9;

struct PrinterScene {
    OptionFeatures options;
    bool showsPaperPath = true;
    std::string tray;             // key of the paper source in use; empty: none
    std::vector<int> outputFlags; // numbers of those that are set
};

// Has the module draw the scene at the origin of the context, in this size.
void DrawScene(const FamilyFiles& family, const PrinterScene& scene, HDC to, SIZE size);

#endif
