// The attributes of the paper in a tray: which controls of the tray-setting dialogs show an attribute, where
// its value is stored, in which models it appears.
#ifndef TRAYS_TRAY_SETTINGS_H
#define TRAYS_TRAY_SETTINGS_H

#include "paramdata/device_table.h"
#include "trays/media_type_lists.h"

// One attribute.
struct TrayAttribute {
    uint16_t comboBox;
    uint16_t label;
    uint16_t offset;                 // of the value in the record
    uint16_t size;                   // of the value; signed
    FeatureSwitch feature;           // that must be on for controls and column; kFeatureSwitchCount: none
    uint32_t firstTypeWithoutColumn; // dialogs of this type, up to kLastTrayDialogType, have no column
};

// By position, as in MediaTypeList.
extern const TrayAttribute trayAttributes[kMediaTypeListCount];

int32_t LoadAttribute(const TrayPaperSetting& tray, const TrayAttribute& attribute);

// Stores as many low bytes of the value as the field has.
void StoreAttribute(TrayPaperSetting& tray, const TrayAttribute& attribute, int32_t value);

// The values that an attribute can have, up to an empty key; null when there are no media type lists.
const ItemRecord* AttributeValues(MediaTypeList attribute);

// Whether the list view has a column for the attribute. A null table has none of those that need a feature.
bool IsColumnShown(const DeviceTable* table, MediaTypeList attribute);

#endif
