// Attributes of the paper in a tray: see the header.
#include "trays/tray_settings.h"

#include "paramdata/device_table.h"

#include <cstring>

#define ATTRIBUTE_FIELD(name) offsetof(TrayPaperSetting, name), sizeof(TrayPaperSetting::name)
constexpr FeatureSwitch kNoFeature = static_cast<FeatureSwitch>(kFeatureSwitchCount);

// clang-format off
const TrayAttribute trayAttributes[] = {
    // box  label field                          column           hidden without
    {1860, 1859, ATTRIBUTE_FIELD(size),        nullptr,          kNoFeature},
    {1862, 1861, ATTRIBUTE_FIELD(orientation), nullptr,          kNoFeature},
    {1003, 1005, ATTRIBUTE_FIELD(type),        nullptr,          kNoFeature},
    {1086, 1084, ATTRIBUTE_FIELD(weight),      MediaWeightShown, kSwitchMediaWeight},
    {1091, 1089, ATTRIBUTE_FIELD(color),       MediaColorShown,  kSwitchMediaColor},
    {1094, 1097, ATTRIBUTE_FIELD(hole),        MediaHoleShown,   kSwitchMediaPrePunched},
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
