// Which combinations of settings are refused, and the hint that the user sees.
#ifndef UIMODULE_CONSTRAINTS_H
#define UIMODULE_CONSTRAINTS_H

#include "base/records.h"

#include <windows.h>

// A choice of this control is refused when it leaves the settings broken.
struct Constraint {
    uint16_t control;
    int32_t answer; // of DoConstraints
    bool (*isBroken)(const OemDevmode& settings);
    const wchar_t* hint;
};

// The first constraint of the control that the settings violate; null when there is none.
const Constraint* FindBroken(const OemDevmode& settings, uint32_t control);

using HintText = wchar_t[512];

// Appends one line for each combination that the settings violate and whose control the dialog has.
void DescribeConflicts(HintText& text, const OemDevmode& settings, HWND dialog);

#endif
