// Builds the tables of the model from the parameter data file, in order, and releases them.
#include "frame/device_data.h"

#include "base/module_handles.h"
#include "paramdata/color_tables.h"
#include "paramdata/control_texts.h"
#include "paramdata/default_settings.h"
#include "paramdata/device_table.h"
#include "paramdata/prm_file.h"
#include "trays/media_type_lists.h"

namespace {

void BuildAll(PrmFile& file) {
    deviceTable = BuildDeviceTable(file);
    if (deviceTable == nullptr)
        return;
    BuildDefaultSettings(file, *deviceTable);
    ApplyControlTexts(file, "Property_0", propertyTexts);
    ApplyControlTexts(file, "Dlg_ColorSetting", colorDialogTexts);
    FillColorTables(file);
    ApplyControlTexts(file, "Dlg_PaperSourceTraySetting", trayDialogTexts);
    ApplyColumnTitles(trayDialogTexts);
    mediaTypeLists = BuildMediaTypeLists(&file, deviceTable);
    BuildDestinationList(file, kTextObjects);
    BuildDestinationList(file, kImageObjects);
    BuildDestinationList(file, kGraphicsObjects);
}

} // namespace

void InitDeviceData(HINSTANCE module) {
    wchar_t path[kPathCapacity];
    if (!SiblingPath(module, L"TELMAR_D.PRM", path))
        return;
    PrmFile* file = PrmOpenW(path);
    if (file == nullptr)
        return;
    BuildAll(*file);
    PrmClose(file);
}

void FreeDeviceData() {
    FreeDeviceTable(deviceTable);
    deviceTable = nullptr;
    FreeMediaTypeLists(mediaTypeLists);
    mediaTypeLists = nullptr;
}
