// The rows of the list view in the tray-setting dialogs.
#ifndef PARAMDATA_TRAY_ROWS_H
#define PARAMDATA_TRAY_ROWS_H

#include "base/records.h"

struct PrmFile;

// Builds a row for each paper source of the device table; "MediaTypeList_Tray" gives the rows their keys and
// display names. Builds nothing when one of the two is missing.
void BuildTrayRows(PrmFile& file, DeviceTable& table);

#endif
