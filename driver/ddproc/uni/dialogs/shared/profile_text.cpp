// Composes the display text of a colour profile.
#include "dialogs/shared/profile_text.h"

#include "base/keyed_list.h"
#include "paramdata/device_table.h"

namespace {

const TextItemRecord* FindLocation(uint32_t value) {
    return deviceTable != nullptr ? FindByValue(deviceTable->profileLocations, value) : nullptr;
}

} // namespace

bool FormatProfileText(const ProfileEntry& profile, ProfileText& text) {
    static_assert(sizeof(ProfileText) == 520); // the block's size is part of the contract
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
