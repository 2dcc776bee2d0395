// A dialog's help table and its list of locked controls, made at compile time from one description of its
// layout and the parts of each control.
#ifndef DIALOGS_COLOR_LAYOUT_TABLES_H
#define DIALOGS_COLOR_LAYOUT_TABLES_H

#include "dialogs/color/color_controls.h"
#include "dialogs/shared/control_parts.h"
#include "dialogs/shared/dialog_controls.h"

#include <initializer_list>

// Which tables a row of the layout goes into. The published orders of the two differ in places.
enum class In : uint8_t { kHelpAndLocks, kHelp, kLocks, kLocksWithoutLabel };

struct LayoutRow {
    uint16_t control; // with its label, which comes first
    In tables = In::kHelpAndLocks;
};

// Both end with zeros.
template <size_t Controls>
struct HelpTable {
    HelpId rows[2 * Controls + 1];
};
template <size_t Controls>
struct LockList {
    uint32_t controls[2 * Controls + 1];
};

// Every control of a layout has a row; without one the table does not compile.
constexpr const ControlParts& PartsOf(uint16_t control) {
    size_t i = 0;
    while (kControlParts[i].control != control)
        ++i;
    return kControlParts[i];
}

template <size_t Count>
constexpr HelpTable<Count> HelpOf(const LayoutRow (&layout)[Count]) {
    HelpTable<Count> help = {};
    size_t end = 0;
    for (const LayoutRow& row : layout) {
        const ControlParts& parts = PartsOf(row.control);
        if (row.tables != In::kHelpAndLocks && row.tables != In::kHelp)
            continue;
        if (parts.label != 0)
            help.rows[end++] = {parts.label, parts.topic};
        help.rows[end++] = {parts.control, parts.topic};
    }
    return help;
}

template <size_t Count>
constexpr LockList<Count> LocksOf(const LayoutRow (&layout)[Count]) {
    LockList<Count> locks = {};
    size_t end = 0;
    for (const LayoutRow& row : layout) {
        const ControlParts& parts = PartsOf(row.control);
        if (row.tables == In::kHelp)
            continue;
        if (parts.label != 0 && row.tables != In::kLocksWithoutLabel)
            locks.controls[end++] = parts.label;
        locks.controls[end++] = parts.control;
    }
    return locks;
}

// The controls of settings and the Defaults button alone, without labels and groups.
template <size_t Count>
constexpr LockList<Count> SettingLocksOf(const ColorControl (&controls)[Count]) {
    LockList<Count> locks = {};
    size_t end = 0;
    for (const ColorControl& control : controls)
        for (const uint16_t id : {control.id, control.otherId})
            if (id != 0)
                locks.controls[end++] = id;
    locks.controls[end] = IDC_DEFAULTS;
    return locks;
}

#endif
