// The text under which a colour profile of the printer is listed.
#ifndef DIALOGS_SHARED_PROFILE_TEXT_H
#define DIALOGS_SHARED_PROFILE_TEXT_H

#include "base/records.h"

#include <windows.h>

constexpr size_t kProfileTextCapacity = 260;
using ProfileText = wchar_t[kProfileTextCapacity];

// "name (qualifier) location", or "name location" without a qualifier; the location as the device table names
// it, empty when it doesn't. False, and the text as it was, when there is no memory.
bool FormatProfileText(const ProfileEntry& profile, ProfileText& text);

#endif
