// Finds the changed colour settings from the description of the model's colour dialog.
#include "workbench/property_sheet/color_settings.h"

#include "workbench/lib/localized_text.h"
#include "workbench/lib/model_dialogs.h"
#include "workbench/lib/settings_fields.h"
#include "workbench/lib/text.h"
#include "workbench/property_sheet/text_ids.h"

namespace {

// The names of a control's setting; group 0: of the whole page.
struct ColorSettingName {
    uint16_t control;
    UINT group;
    UINT name;
};

// clang-format off
constexpr ColorSettingName kColorSettingNames[] = {
    {IDC_IMAGE_RGB_SOURCE,     TEXT_IMAGES,   TEXT_RGB_SOURCE},
    {IDC_IMAGE_COLOR_MATCH,    TEXT_IMAGES,   TEXT_COLOR_MATCHING},
    {IDC_IMAGE_GRAY,           TEXT_IMAGES,   TEXT_GRAYS},
    {IDC_IMAGE_DESTINATION,    TEXT_IMAGES,   TEXT_OUTPUT_PROFILE},
    {IDC_IMAGE_HALFTONE,       TEXT_IMAGES,   TEXT_HALFTONE},
    {IDC_TEXT_RGB_SOURCE,      TEXT_TEXT,     TEXT_RGB_SOURCE},
    {IDC_TEXT_COLOR_MATCH,     TEXT_TEXT,     TEXT_COLOR_MATCHING},
    {IDC_TEXT_GRAY,            TEXT_TEXT,     TEXT_GRAYS},
    {IDC_TEXT_DESTINATION,     TEXT_TEXT,     TEXT_OUTPUT_PROFILE},
    {IDC_TEXT_HALFTONE,        TEXT_TEXT,     TEXT_HALFTONE},
    {IDC_GRAPHICS_RGB_SOURCE,  TEXT_GRAPHICS, TEXT_RGB_SOURCE},
    {IDC_GRAPHICS_COLOR_MATCH, TEXT_GRAPHICS, TEXT_COLOR_MATCHING},
    {IDC_GRAPHICS_GRAY,        TEXT_GRAPHICS, TEXT_GRAYS},
    {IDC_GRAPHICS_DESTINATION, TEXT_GRAPHICS, TEXT_OUTPUT_PROFILE},
    {IDC_GRAPHICS_HALFTONE,    TEXT_GRAPHICS, TEXT_HALFTONE},
    {IDC_GRAPHICS_LIKE_IMAGES, 0,             TEXT_GRAPHICS},
    {IDC_SIMULATION,           0,             TEXT_SIMULATION},
    {IDC_MATCH_PAPER_COLOR,    0,             TEXT_MATCH_PAPER_COLOR},
    {IDC_SIMULATION_GRAY,      TEXT_SIMULATION, TEXT_GRAYS},
    {IDC_PAGE_RGB_SOURCE,      0,             TEXT_RGB_SOURCE},
    {IDC_PAGE_DESTINATION,     0,             TEXT_OUTPUT_PROFILE},
};
// clang-format on

std::string NameOfControl(uint16_t control) {
    for (const ColorSettingName& row : kColorSettingNames)
        if (row.control == control)
            return row.group == 0
                       ? LocalizedText(row.name)
                       : LocalizedText(TEXT_SETTING_OF, {LocalizedText(row.group), LocalizedText(row.name)});
    return {};
}

// A value that no item has is that of one of the printer's profiles.
std::string ValueName(const ColorControl& control, const OemDevmode& settings) {
    const uint32_t value = Load(settings, control.field);
    if (control.kind == ColorControlKind::kCheckBox)
        return LocalizedText(value != 0 ? TEXT_YES : TEXT_NO);
    if (control.kind == ColorControlKind::kGraphicsChoice)
        return LocalizedText(value != 0 ? TEXT_SAME_AS_IMAGES : TEXT_SAME_AS_TEXT);
    if (const ItemRecord* item = FindByValue(control.items, value); item != nullptr)
        return FieldText(item->display);
    if (control.profile.size == sizeof(ProfileEntry)) {
        ProfileEntry profile;
        memcpy(&profile, FieldAt(settings, control.profile), sizeof(profile));
        if (profile.name[0] != 0)
            return FieldText(profile.name);
    }
    return std::to_string(value);
}

} // namespace

std::vector<ChangedColorSetting> ChangedColorSettings(const FamilyFiles& family, const OemDevmode& settings) {
    std::vector<ChangedColorSetting> changes;
    const ColorDialog* dialog = FindColorDialog(ColorDialogOf(*family.table).id, family.table.get());
    if (dialog == nullptr)
        return changes;
    for (const ColorControl& control : dialog->controls) {
        const std::string before = ValueName(control, defaultSettings);
        const std::string after = ValueName(control, settings);
        const uint32_t from = Load(defaultSettings, control.field);
        const uint32_t to = Load(settings, control.field);
        if (from != to || before != after) // the profile's name may be all that differs
            changes.push_back({NameOfControl(control.id), before, after,
                               LocalizedText(TEXT_FROM_TO, {std::to_string(from), std::to_string(to)})});
    }
    return changes;
}

void ResetColorSettings(OemDevmode& settings) {
    for (const SettingsField& field : SettingsFields())
        if (SameText(field.group, "color") || SameText(field.group, "profiles"))
            memcpy(reinterpret_cast<uint8_t*>(&settings) + field.offset,
                   reinterpret_cast<const uint8_t*>(&defaultSettings) + field.offset, field.bytes);
}
