// The display text of a colour profile in the printer.
#ifndef DIALOGS_SHARED_PROFILE_TEXT_H
#define DIALOGS_SHARED_PROFILE_TEXT_H

#include "base/records.h"

#include <windows.h>

constexpr size_t kProfileTextCapacity = 260;
using ProfileText = wchar_t[kProfileTextCapacity];

// Composes "name (qualifier) location", or "name location" without a qualifier. The location is its text in
// the device table, empty when the table lacks it. False, and the text unchanged, when memory runs out.
bool FormatProfileText(const ProfileEntry& profile, ProfileText& text);

#endif
