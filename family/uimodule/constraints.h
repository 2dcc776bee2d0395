// Which combinations of settings are refused, and what the user is told.
#ifndef UIMODULE_CONSTRAINTS_H
#define UIMODULE_CONSTRAINTS_H

#include "base/records.h"

#include <windows.h>

// A choice of the control that leaves the settings so is refused.
struct Constraint {
    uint16_t control;
    int32_t answer; // of DoConstraints
    bool (*isBroken)(const OemDevmode& settings);
    const wchar_t* hint;
};

// The first constraint of the control that the settings break; null when they break none.
const Constraint* FindBroken(const OemDevmode& settings, uint32_t control);

using HintText = wchar_t[512];

// Appends what the settings break of the dialog's own controls: a line for each combination.
void DescribeConflicts(HintText& text, const OemDevmode& settings, HWND dialog);

#endif
