// Which combinations of settings are refused, and the hints that the user sees.
#ifndef UIMODULE_CONSTRAINTS_H
#define UIMODULE_CONSTRAINTS_H

#include "base/records.h"

#include <windows.h>

// What a dialog edits. A null context has no settings.
struct DialogChoices {
    HWND dialog;
    const DialogContext* context;
};

// One line for each combination; lines that find no room are left out. A tool tip shows no more characters.
using HintText = wchar_t[1024];

// Checks the choice of a control, which the dialog shows and its settings contain. Returns the answer of
// DoConstraints: 0, or, with the reasons in `hint`, that the choice is refused.
int32_t CheckChoice(const DialogChoices& choices, uint32_t control, HintText& hint);

// The reasons why the choices of a dialog do not go together; empty when they do.
void DescribeConflicts(const DialogChoices& choices, HintText& hint);

#endif
