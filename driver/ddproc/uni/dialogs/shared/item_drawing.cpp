// Draws the entries of the owner-drawn lists.
#include "dialogs/shared/item_drawing.h"

#include "base/keyed_list.h"
#include "dialogs/shared/profile_text.h"

namespace {

constexpr int kTextLeft = 20; // room for an icon
constexpr int kTextTop = 1;

constexpr UINT kNoEntry = 0xFFFFFFFF;

struct EntryContent {
    const wchar_t* text; // null: the entry is empty
    bool hasIcon;
    uint16_t icon; // a system icon
};

bool IsSelected(const DRAWITEMSTRUCT& item) {
    return (item.itemState & ODS_SELECTED) != 0;
}

bool IsDisabled(const DRAWITEMSTRUCT& item) {
    return (item.itemState & ODS_DISABLED) != 0;
}

int BackgroundColor(const DRAWITEMSTRUCT& item) {
    const bool looksEnabled = !IsDisabled(item) || item.CtlType == ODT_LISTBOX;
    if (IsSelected(item))
        return looksEnabled ? COLOR_HIGHLIGHT : COLOR_INACTIVECAPTION;
    return looksEnabled ? COLOR_WINDOW : COLOR_BTNFACE;
}

int TextColor(const DRAWITEMSTRUCT& item) {
    if (IsSelected(item))
        return COLOR_HIGHLIGHTTEXT;
    return IsDisabled(item) ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT;
}

void FillBackground(const DRAWITEMSTRUCT& item) {
    HBRUSH brush = CreateSolidBrush(GetSysColor(BackgroundColor(item)));
    FillRect(item.hDC, &item.rcItem, brush);
    DeleteObject(brush);
}

// The icon is destroyed although LoadIcon returns a shared one that only the system should destroy. This
// looks wrong, but the sequence of calls is part of the module's contract, and the system keeps shared icons
// anyway.
void DrawItemIcon(const DRAWITEMSTRUCT& item, uint16_t identifier) {
    HICON icon = LoadIconW(nullptr, MAKEINTRESOURCEW(identifier));
    const int height = item.rcItem.bottom - item.rcItem.top;
    DrawIconEx(item.hDC, item.rcItem.left, item.rcItem.top, icon, height, height, 0, nullptr, DI_NORMAL);
    DestroyIcon(icon);
}

void DrawItemText(const DRAWITEMSTRUCT& item, const EntryContent& content) {
    const bool isInEditField = (item.itemState & ODS_COMBOBOXEDIT) != 0;
    const int indent = isInEditField && !content.hasIcon ? 0 : kTextLeft;
    const int mode = SetBkMode(item.hDC, TRANSPARENT);
    const COLORREF color = SetTextColor(item.hDC, GetSysColor(TextColor(item)));
    TextOutW(item.hDC, item.rcItem.left + indent, item.rcItem.top + kTextTop, content.text,
             static_cast<int>(TextLength(content.text)));
    SetTextColor(item.hDC, color);
    SetBkMode(item.hDC, mode);
}

bool ShowsFocus(const DRAWITEMSTRUCT& item) {
    return (item.itemAction & ODA_FOCUS) != 0
           || ((item.itemState & ODS_FOCUS) != 0 && GetFocus() == item.hwndItem);
}

const ItemRecord* FindByData(const ItemRecord* items, LONG_PTR data) {
    const auto value = static_cast<uint32_t>(data);
    return static_cast<LONG_PTR>(value) == data ? FindByValue(items, value) : nullptr;
}

EntryContent ContentOf(const ItemRecord* item) {
    if (item == nullptr)
        return {};
    return {item->display, item->head.iconFlag != 0, item->head.icon};
}

void DrawEntry(const DRAWITEMSTRUCT& item, const EntryContent& content) {
    if ((item.itemAction & (ODA_DRAWENTIRE | ODA_SELECT)) != 0) {
        FillBackground(item);
        if (content.text != nullptr && content.hasIcon)
            DrawItemIcon(item, content.icon);
        if (content.text != nullptr)
            DrawItemText(item, content);
    }
    if (ShowsFocus(item))
        DrawFocusRect(item.hDC, &item.rcItem);
}

} // namespace

const ProfileEntry* FindListedProfile(const ListedProfiles& profiles, LONG_PTR data) {
    const LONG_PTR position = data - profiles.firstData;
    if (profiles.list == nullptr || profiles.list->entries == nullptr || data < profiles.firstData
        || position >= static_cast<LONG_PTR>(profiles.list->count))
        return nullptr;
    return &profiles.list->entries[position];
}

void DrawRecordEntry(const DRAWITEMSTRUCT& item) {
    if (item.itemID == kNoEntry)
        DrawFocusRect(item.hDC, &item.rcItem);
    else
        DrawEntry(item, ContentOf(reinterpret_cast<const ItemRecord*>(item.itemData)));
}

void DrawListEntry(const DRAWITEMSTRUCT& item, const ItemRecord* items, const ListedProfiles& profiles) {
    if (item.itemID == kNoEntry) {
        DrawFocusRect(item.hDC, &item.rcItem);
        return;
    }
    const auto data = static_cast<LONG_PTR>(item.itemData);
    const ItemRecord* record = FindByData(items, data);
    const ProfileEntry* profile = record == nullptr ? FindListedProfile(profiles, data) : nullptr;
    ProfileText text;
    if (profile != nullptr && FormatProfileText(*profile, text))
        DrawEntry(item, {text, false, 0});
    else
        DrawEntry(item, ContentOf(record));
}
