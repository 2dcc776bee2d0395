// What belongs to a control of the colour dialogs: its label, its stop-icon control and its help topic. The
// stop-icon table, the help tables and the lists of locked controls are all made from these rows.
#ifndef DIALOGS_SHARED_CONTROL_PARTS_H
#define DIALOGS_SHARED_CONTROL_PARTS_H

#include "base/dialog_ids.h"

#include <cstddef>
#include <cstdint>

constexpr uint32_t kNoHelp = 0xFFFFFFFF; // topic of a control that is in the help table but has no help

struct ControlParts {
    uint16_t control;
    uint16_t label; // 0: none
    uint16_t icon;  // 0: none
    uint32_t topic;
};

// clang-format off
#define WITH_LABEL_AND_ICON(control) control, control##_LABEL, control##_ICON
inline constexpr ControlParts kControlParts[] = {
    // The rows with an icon are in the order of the stop-icon table.
    {WITH_LABEL_AND_ICON(IDC_IMAGE_RGB_SOURCE),     6650},
    {WITH_LABEL_AND_ICON(IDC_IMAGE_COLOR_MATCH),    6660},
    {WITH_LABEL_AND_ICON(IDC_IMAGE_GRAY),           6670},
    {WITH_LABEL_AND_ICON(IDC_IMAGE_DESTINATION),    6860},
    {WITH_LABEL_AND_ICON(IDC_IMAGE_HALFTONE),       6675},
    {WITH_LABEL_AND_ICON(IDC_TEXT_RGB_SOURCE),      6690},
    {WITH_LABEL_AND_ICON(IDC_TEXT_COLOR_MATCH),     6700},
    {WITH_LABEL_AND_ICON(IDC_TEXT_GRAY),            6710},
    {WITH_LABEL_AND_ICON(IDC_TEXT_DESTINATION),     6865},
    {WITH_LABEL_AND_ICON(IDC_TEXT_HALFTONE),        6720},
    {WITH_LABEL_AND_ICON(IDC_GRAPHICS_RGB_SOURCE),  6740},
    {WITH_LABEL_AND_ICON(IDC_GRAPHICS_COLOR_MATCH), 6750},
    {WITH_LABEL_AND_ICON(IDC_GRAPHICS_GRAY),        6760},
    {WITH_LABEL_AND_ICON(IDC_GRAPHICS_DESTINATION), 6870},
    {WITH_LABEL_AND_ICON(IDC_GRAPHICS_HALFTONE),    6770},
    {WITH_LABEL_AND_ICON(IDC_SIMULATION),           6810},
    {WITH_LABEL_AND_ICON(IDC_SIMULATION_GRAY),      6855},
    {IDC_MATCH_PAPER_COLOR, 0, IDC_MATCH_PAPER_COLOR_ICON, 6830},
    {IDC_DOWNLOAD_MANAGER,  0, IDC_DOWNLOAD_MANAGER_ICON,  6840},
    {IDC_MANAGE_PROFILES,   0, IDC_MANAGE_PROFILES_ICON,   6850},
    {WITH_LABEL_AND_ICON(IDC_PAGE_DESTINATION),     6820},
    {WITH_LABEL_AND_ICON(IDC_PAGE_RGB_SOURCE),      kNoHelp},
    // Without an icon
    {IDC_IMAGE_GROUP,            0, 0, 6640},
    {IDC_TEXT_GROUP,             0, 0, 6680},
    {IDC_GRAPHICS_GROUP,         0, 0, 6730},
    {IDC_GRAPHICS_LIKE_IMAGES,   0, 0, 6780},
    {IDC_GRAPHICS_LIKE_TEXT,     0, 0, 6790},
    {IDC_SIMULATION_GROUP,       0, 0, kNoHelp},
    {IDC_PAGE_DESTINATION_GROUP, 0, 0, kNoHelp},
    {IDC_FOOTER_LINE,            0, 0, kNoHelp},
    {IDC_DEFAULTS,               0, 0, 9510},
};
#undef WITH_LABEL_AND_ICON
// clang-format on

// Icon controls.
constexpr size_t CountIcons() {
    size_t count = 0;
    for (const ControlParts& row : kControlParts)
        count += row.icon != 0 ? 1 : 0;
    return count;
}

#endif
