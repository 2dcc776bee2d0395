// Owner-drawn entries of the dialogs' lists: background, icon, text and focus.
#ifndef DIALOGS_ITEM_DRAWING_H
#define DIALOGS_ITEM_DRAWING_H

#include "dialogs/dialog_context.h"
#include "paramdata/device_table.h"

#include <windows.h>

constexpr UINT kEntryHeight = 16; // pixels

// What an entry shows.
struct EntryContent {
    const wchar_t* text; // null: nothing
    bool hasIcon;
    uint16_t icon; // of the system
};

// Content of a table's item; nothing for null.
EntryContent ContentOf(const ItemRecord* item);

// Draws an entry with this content. An item identifier of -1 stands for an empty list: focus only.
void DrawEntry(const DRAWITEMSTRUCT& item, const EntryContent& content);

// Printer's profiles in a list: the entry with item data `firstData` + i stands for profile i.
struct ListedProfiles {
    const ProfileList* list; // null: none
    LONG_PTR firstData;
};

// The profile that an entry's item data stands for; null when there is none.
const ProfileEntry* FindListedProfile(const ListedProfiles& profiles, LONG_PTR data);

// Draws an entry whose item data is the value of an item of the table, or else stands for a profile.
void DrawListEntry(const DRAWITEMSTRUCT& item, const ItemRecord* items, const ListedProfiles& profiles);

#endif
