// Owner-drawn entries of the dialogs' lists: background, icon, text and focus.
#ifndef DIALOGS_SHARED_ITEM_DRAWING_H
#define DIALOGS_SHARED_ITEM_DRAWING_H

#include "dialogs/shared/dialog_context.h"
#include "paramdata/device_table.h"

#include <windows.h>

constexpr UINT kEntryHeight = 16; // pixels

// Printer's profiles in a list: the entry with item data `firstData` + i stands for profile i.
struct ListedProfiles {
    const ProfileList* list; // null: none
    LONG_PTR firstData;
};

// The profile that an entry's item data stands for; null when there is none.
const ProfileEntry* FindListedProfile(const ListedProfiles& profiles, LONG_PTR data);

// An item identifier of -1 stands for an empty list, or for no selection: focus only, and no item data is
// read.

// Draws an entry whose item data is the item's record itself, or null: background only.
void DrawRecordEntry(const DRAWITEMSTRUCT& item);

// Draws an entry whose item data is the value of an item of the table, or else stands for a profile.
void DrawListEntry(const DRAWITEMSTRUCT& item, const ItemRecord* items, const ListedProfiles& profiles);

#endif
