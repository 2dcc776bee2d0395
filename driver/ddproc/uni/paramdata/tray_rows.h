// The trays of the tray-setting dialog's list view.
#ifndef PARAMDATA_TRAY_ROWS_H
#define PARAMDATA_TRAY_ROWS_H

#include "base/records.h"

struct PrmFile;

// Builds the tray rows from the input tray list; "MediaTypeList_Tray" gives them their keys and display
// names. Nothing is built without either of the two.
void BuildTrayRows(PrmFile& file, DeviceTable& table);

#endif
