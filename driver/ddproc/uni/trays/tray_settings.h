// What the settings say of the paper in each tray, and the attributes that it is said by: which list offers
// an attribute's values, which controls of the tray-setting dialogs show it, where its value is stored.
#ifndef TRAYS_TRAY_SETTINGS_H
#define TRAYS_TRAY_SETTINGS_H

#include "paramdata/device_table.h"
#include "trays/media_type_lists.h"

// An attribute; its column of the tray list is the one behind its position.
struct TrayAttribute {
    uint16_t comboBox;
    uint16_t label;
    uint16_t offset; // of the value in the record
    uint16_t size;   // of the value; signed
    // The column follows the model's kind of dialog, too; the controls, where the kind has them, the feature
    // alone.
    uint32_t (*isColumnShown)(const DeviceTable* table); // null: always
    FeatureSwitch feature; // without it the controls are hidden; kFeatureSwitchCount: never
};

// By position: those of MediaTypeList.
extern const TrayAttribute trayAttributes[kMediaTypeListCount];

int32_t LoadAttribute(const TrayPaperSetting& tray, const TrayAttribute& attribute);

// Takes as many low octets of the value as the field has.
void StoreAttribute(TrayPaperSetting& tray, const TrayAttribute& attribute, int32_t value);

// The values that an attribute can take; null when nothing is known of them. Ends at an empty key.
const ItemRecord* AttributeValues(MediaTypeList attribute);

#endif
