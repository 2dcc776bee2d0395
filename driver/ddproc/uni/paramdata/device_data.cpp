// Device data initialisation: the order in which the parameter data file becomes tables.
#include "paramdata/device_data.h"

#include "frame/module_handles.h"
#include "paramdata/color_tables.h"
#include "paramdata/control_texts.h"
#include "paramdata/default_settings.h"
#include "paramdata/device_table.h"
#include "paramdata/prm_file.h"
#include "paramdata/text.h"
#include "trays/media_type_lists.h"

#include <cstring>

DeviceTable* deviceTable;
MediaTypeLists* mediaTypeLists;

namespace {

// Takes the list view's column titles from the tray dialogs' texts.
void ApplyColumnTitles() {
    for (const ControlTextRecord* row = trayDialogTexts; row->key[0] != 0; ++row) {
        if (row->identifiers[0] != -1 || row->display[0] == 0)
            continue;
        for (MediaTypeColumn* column = mediaTypeColumns; column->key[0] != 0; ++column) {
            if (strcmp(column->key, row->key) != 0)
                continue;
            CopyText(column->title, row->display);
            break;
        }
    }
}

void BuildAll(PrmFile& file) {
    deviceTable = BuildDeviceTable(file);
    if (deviceTable == nullptr)
        return;
    BuildDefaultSettings(file, *deviceTable);
    ApplyControlTexts(file, "Property_0", propertyTexts);
    ApplyControlTexts(file, "Dlg_ColorSetting", colorDialogTexts);
    FillColorTables(file);
    ApplyControlTexts(file, "Dlg_PaperSourceTraySetting", trayDialogTexts);
    ApplyColumnTitles();
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
