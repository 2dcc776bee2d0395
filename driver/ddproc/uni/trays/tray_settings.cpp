// The attributes of the paper in a tray, and access to their values.
#include "trays/tray_settings.h"

#include "base/dialog_ids.h"
#include "paramdata/device_table.h"

#include <cstring>

#define ATTRIBUTE_FIELD(name) offsetof(TrayPaperSetting, name), sizeof(TrayPaperSetting::name)
constexpr FeatureSwitch kNoFeature = static_cast<FeatureSwitch>(kFeatureSwitchCount);
constexpr uint32_t kAlways = kLastTrayDialogType + 1; // dialogs of every type have the column

// clang-format off
const TrayAttribute trayAttributes[] = {
    // box                  label                       field                         feature                 no column from dialog type
    {IDC_TRAY_SIZE,        IDC_TRAY_SIZE_LABEL,        ATTRIBUTE_FIELD(size),        kNoFeature,             kAlways},
    {IDC_TRAY_ORIENTATION, IDC_TRAY_ORIENTATION_LABEL, ATTRIBUTE_FIELD(orientation), kNoFeature,             kAlways},
    {IDC_TRAY_TYPE,        IDC_TRAY_TYPE_LABEL,        ATTRIBUTE_FIELD(type),        kNoFeature,             kAlways},
    {IDC_TRAY_WEIGHT,      IDC_TRAY_WEIGHT_LABEL,      ATTRIBUTE_FIELD(weight),      kSwitchMediaWeight,     2},
    {IDC_TRAY_COLOR,       IDC_TRAY_COLOR_LABEL,       ATTRIBUTE_FIELD(color),       kSwitchMediaColor,      3},
    {IDC_TRAY_PRE_PUNCHED, IDC_TRAY_PRE_PUNCHED_LABEL, ATTRIBUTE_FIELD(hole),        kSwitchMediaPrePunched, 3},
};
// clang-format on

int32_t LoadAttribute(const TrayPaperSetting& tray, const TrayAttribute& attribute) {
    const uint8_t* field = reinterpret_cast<const uint8_t*>(&tray) + attribute.offset;
    if (attribute.size == sizeof(int8_t))
        return static_cast<int8_t>(*field);
    int16_t value = 0;
    memcpy(&value, field, sizeof(value));
    return value;
}

void StoreAttribute(TrayPaperSetting& tray, const TrayAttribute& attribute, int32_t value) {
    memcpy(reinterpret_cast<uint8_t*>(&tray) + attribute.offset, &value, attribute.size);
}

const ItemRecord* AttributeValues(MediaTypeList attribute) {
    return mediaTypeLists != nullptr ? mediaTypeLists->lists[attribute] : nullptr;
}

bool IsColumnShown(const DeviceTable* table, MediaTypeList attribute) {
    const TrayAttribute& row = trayAttributes[attribute];
    if (row.feature == kNoFeature)
        return true;
    const uint32_t type = SwitchValue(table, kSwitchDlgMediaType);
    const bool isOmitted = type >= row.firstTypeWithoutColumn && type <= kLastTrayDialogType;
    return !isOmitted && SwitchValue(table, row.feature) != 0;
}
