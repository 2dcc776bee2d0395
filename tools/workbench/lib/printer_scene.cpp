// Passes a scene to the module's DrawPrinterView.
#include "workbench/lib/printer_scene.h"

void DrawScene(const FamilyFiles& family, const PrinterScene& scene, HDC to, SIZE size) {
    PrinterViewRequest request = {};
    request.showsPaperPath = scene.showsPaperPath;
    request.features = scene.options.features.data();
    request.settings = scene.options.settings.data();
    CopyText(request.inputSlotKey, scene.tray.c_str());
    for (const int flag : scene.outputFlags)
        request.outputFlags[flag - kFirstOutputFlag] = 1;
    const RECT rectangle = {0, 0, size.cx, size.cy};
    EXPORT(family, DrawPrinterView)(to, &rectangle, &request);
}
