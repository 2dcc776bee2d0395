// Drawing of the entries of owner-drawn lists.
#ifndef DIALOGS_SHARED_ITEM_DRAWING_H
#define DIALOGS_SHARED_ITEM_DRAWING_H

#include "base/records.h"

#include <windows.h>

constexpr UINT kEntryHeight = 16; // pixels

// The printer's profiles in a list. The entry with item data `firstData` + i is profile i.
struct ListedProfiles {
    const ProfileList* list; // null: none
    LONG_PTR firstData;
};

// The profile with this item data; null when there is none.
const ProfileEntry* FindListedProfile(const ListedProfiles& profiles, LONG_PTR data);

// Both draw background, icon, text and focus rectangle. The item identifier -1 means that the list is empty
// or nothing is selected; only the focus rectangle is drawn then, and the item data is not read.

// The item data is a pointer to the item's record, or null for an empty entry.
void DrawRecordEntry(const DRAWITEMSTRUCT& item);

// The item data is the value of an item of the table; otherwise that of a profile.
void DrawListEntry(const DRAWITEMSTRUCT& item, const ItemRecord* items, const ListedProfiles& profiles);

#endif
