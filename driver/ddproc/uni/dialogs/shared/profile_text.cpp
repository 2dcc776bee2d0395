// Profile texts: see the header.
#include "dialogs/shared/profile_text.h"

#include "base/text.h"
#include "paramdata/device_table.h"

namespace {

const TextItemRecord* FindLocation(uint32_t value) {
    for (const TextItemRecord& location :
         Listed(deviceTable != nullptr ? deviceTable->profileLocations : nullptr))
        if (location.head.value == value)
            return &location;
    return nullptr;
}

} // namespace

bool FormatProfileText(const ProfileEntry& profile, ProfileText& text) {
    static_assert(sizeof(ProfileText) == 520);
    auto* block = static_cast<ProfileText*>(LocalAlloc(LPTR, sizeof(ProfileText)));
    if (block == nullptr)
        return false;
    ProfileText& composed = *block;
    CopyText(composed, profile.name);
    if (profile.qualifier[0] != 0) {
        AppendText(composed, L" (");
        AppendText(composed, profile.qualifier);
        AppendText(composed, L")");
    }
    AppendText(composed, L" ");
    if (const TextItemRecord* location = FindLocation(profile.location))
        AppendText(composed, location->display);
    CopyText(text, composed);
    LocalFree(block);
    return true;
}
