// Fills, shows, stores and draws the controls of the colour dialogs. What a kind of control does is its row
// of kKinds; nothing else asks for the kind.
#include "dialogs/color/color_controls.h"

#include "base/keyed_list.h"
#include "base/window_services.h"
#include "dialogs/shared/item_drawing.h"
#include "dialogs/shared/profile_text.h"
#include "paramdata/color_keys.h"

#include <iterator>

namespace {

constexpr LONG_PTR kFirstRgbProfile = 256; // item data of the first profile; of RGB sources
constexpr LONG_PTR kFirstProfile = 128;    // of destinations and simulations
constexpr LONG_PTR kSimulationItems = kMaxSimulations;
constexpr uint32_t kProfileChosen = 128; // stored value of a destination or simulation profile

// --- Kinds -----------------------------------------------------------------------------------------------

using Handler = void(const ColorControls& controls, const ColorControl& control, OemDevmode& settings);

// The printer's profiles that a kind of list can show, from a first item data value on.
struct KindProfiles {
    const ProfileList ProfileLists::*list; // null: none
    LONG_PTR firstData;
    bool areInShortLists; // also offered in contexts with short RGB lists
};
constexpr KindProfiles kNoProfiles = {nullptr, 0, false};
constexpr KindProfiles kRgbProfiles = {&ProfileLists::rgbSources, kFirstRgbProfile, false};
constexpr KindProfiles kDestinationProfiles = {&ProfileLists::destinations, kFirstProfile, true};
constexpr KindProfiles kSimulationProfiles = {&ProfileLists::simulations, kFirstProfile, true};

struct KindRow {
    ColorControlKind kind; // in the order of the enumeration
    ColorControlAnswer answer;
    KindProfiles profiles;
    bool listsProfiles; // they are entries of the list; otherwise only drawn, if an entry has their item data
    Handler* show;
    Handler* store;
};
const KindRow& RowOf(const ColorControl& control);

// --- Lists -----------------------------------------------------------------------------------------------

// False when the list has no room for the entry.
bool AddEntry(const ColorControls& controls, uint16_t id, const wchar_t* text, LONG_PTR data) {
    const LRESULT next = SendToControl(controls.dialog, id, CB_GETCOUNT);
    const LRESULT index = SendToControl(controls.dialog, id, CB_INSERTSTRING, static_cast<WPARAM>(next),
                                        reinterpret_cast<LPARAM>(text));
    if (index < 0)
        return false;
    SendToControl(controls.dialog, id, CB_SETITEMDATA, static_cast<WPARAM>(index), data);
    return true;
}

void Select(const ColorControls& controls, uint16_t id, LONG_PTR index) {
    SendToControl(controls.dialog, id, CB_SETCURSEL, static_cast<WPARAM>(index));
}

LONG_PTR SelectedIndex(const ColorControls& controls, uint16_t id) {
    return SendToControl(controls.dialog, id, CB_GETCURSEL);
}

LONG_PTR DataAt(const ColorControls& controls, uint16_t id, LONG_PTR index) {
    return SendToControl(controls.dialog, id, CB_GETITEMDATA, static_cast<WPARAM>(index));
}

// -1 without a selection.
LONG_PTR SelectedData(const ColorControls& controls, uint16_t id) {
    const LONG_PTR index = SelectedIndex(controls, id);
    return index < 0 ? -1 : DataAt(controls, id, index);
}

// Selects the first entry with this item data, or none. False when there is none.
bool SelectData(const ColorControls& controls, uint16_t id, LONG_PTR data) {
    const LRESULT count = SendToControl(controls.dialog, id, CB_GETCOUNT);
    for (LRESULT i = 0; i < count; ++i)
        if (DataAt(controls, id, i) == data) {
            Select(controls, id, i);
            return true;
        }
    Select(controls, id, -1);
    return false;
}

// --- Items and profiles ----------------------------------------------------------------------------------

const ItemRecord* ItemsOf(const ColorControls& controls, const ColorControl& control) {
    return control.shortItems != nullptr && IsShortRgbListContext(controls.context) ? control.shortItems
                                                                                    : control.items;
}

ListedProfiles ProfilesOf(const ColorControls& controls, const KindProfiles& profiles) {
    const ProfileLists* lists = GetPrinterProfileLists(controls.context);
    const bool areOffered = lists != nullptr && profiles.list != nullptr
                            && (profiles.areInShortLists || !IsShortRgbListContext(controls.context));
    return {areOffered ? &(lists->*profiles.list) : nullptr, profiles.firstData};
}

ListedProfiles ProfilesOf(const ColorControls& controls, const ColorControl& control) {
    return ProfilesOf(controls, RowOf(control).profiles);
}

template <size_t Capacity>
bool SameName(const wchar_t (&a)[Capacity], const wchar_t (&b)[Capacity]) {
    return CompareStringOrdinal(a, static_cast<int>(TextLength(a)), b, static_cast<int>(TextLength(b)), TRUE)
           == CSTR_EQUAL;
}

ProfileEntry& ProfileAt(OemDevmode& settings, DevmodeField field) {
    return *static_cast<ProfileEntry*>(FieldAt(settings, field));
}

// Position of the stored profile, by its name; -1 when the printer no longer has it.
LONG_PTR FindStored(const ListedProfiles& profiles, const ProfileEntry& stored) {
    for (LONG_PTR i = 0;; ++i) {
        const ProfileEntry* profile = FindListedProfile(profiles, profiles.firstData + i);
        if (profile == nullptr)
            return -1;
        if (SameName(profile->name, stored.name))
            return i;
    }
}

// Stores a choice from a list of destinations or simulations: a profile, or null for an item.
void StoreProfileChoice(OemDevmode& settings, const ColorControl& control, const ProfileEntry* profile,
                        uint32_t valueWithoutProfile) {
    Store(settings, control.field, profile != nullptr ? kProfileChosen : valueWithoutProfile);
    ProfileAt(settings, control.profile) = profile != nullptr ? *profile : ProfileEntry();
}

// Stores an RGB source: a copy of the printer's profile, or the name of the item with this value.
void StoreRgbProfile(ProfileEntry& to, LONG_PTR value, const ItemRecord* items,
                     const ListedProfiles& profiles) {
    to = {};
    if (const ProfileEntry* profile = FindListedProfile(profiles, value)) {
        to = *profile;
        return;
    }
    const bool isItem = value >= 0 && value < kFirstRgbProfile;
    if (const ItemRecord* item = isItem ? FindByValue(items, static_cast<uint32_t>(value)) : nullptr)
        CopyText(to.qualifier, item->display);
}

int16_t RgbValue(const OemDevmode& settings, DevmodeField field) {
    return static_cast<int16_t>(Load(settings, field));
}

// --- Filling --------------------------------------------------------------------------------------------

void FillEntries(const ColorControls& controls, const ColorControl& control) {
    SendToControl(controls.dialog, control.id, CB_RESETCONTENT);
    for (const ItemRecord& item : Listed(ItemsOf(controls, control)))
        if (!AddEntry(controls, control.id, item.display, static_cast<LONG_PTR>(item.head.value)))
            return;
    if (!RowOf(control).listsProfiles)
        return;
    const ListedProfiles profiles = ProfilesOf(controls, control);
    LONG_PTR data = profiles.firstData;
    while (const ProfileEntry* profile = FindListedProfile(profiles, data)) {
        ProfileText text;
        if (!FormatProfileText(*profile, text) || !AddEntry(controls, control.id, text, data))
            return;
        ++data;
    }
}

// --- Storing --------------------------------------------------------------------------------------------

void StoreItem(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    Store(settings, control.field, static_cast<uint32_t>(SelectedData(controls, control.id)));
}

void StoreRgbSource(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    StoreItem(controls, control, settings);
    StoreRgbProfile(ProfileAt(settings, control.profile), RgbValue(settings, control.field),
                    ItemsOf(controls, control), ProfilesOf(controls, control));
}

// Without a selection, and when the printer has lost the profile, the automatic destination is stored.
void StoreDestination(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    const LONG_PTR data = SelectedData(controls, control.id);
    StoreProfileChoice(settings, control, FindListedProfile(ProfilesOf(controls, control), data), 0);
}

// The profiles follow the items. Without a selection, and when the printer has lost the profile, the first
// item is stored.
void StoreSimulation(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    const LONG_PTR index = SelectedIndex(controls, control.id);
    const ProfileEntry* profile = nullptr;
    LONG_PTR item = index < 0 ? 0 : index;
    if (index >= kSimulationItems) {
        const ListedProfiles profiles = ProfilesOf(controls, control);
        profile = FindListedProfile(profiles, profiles.firstData + index - kSimulationItems);
        item = 0;
    }
    StoreProfileChoice(settings, control, profile, static_cast<uint32_t>(DataAt(controls, control.id, item)));
}

void StoreCheckBox(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    Store(settings, control.field,
          SendToControl(controls.dialog, control.id, BM_GETCHECK) == BST_CHECKED ? 1 : 0);
}

// Stores which settings graphics follow, and the graphics settings derived from them.
void StoreGraphicsChoice(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    const bool likeImages = SendToControl(controls.dialog, control.id, BM_GETCHECK) == BST_CHECKED;
    Store(settings, control.field, likeImages ? 1 : 0);
    for (const GraphicsSource& source : controls.graphicsSources) {
        const uint16_t list = likeImages ? source.imageList : source.textList;
        const LONG_PTR data = list != 0 ? SelectedData(controls, list) : 0;
        Store(settings, source.field, static_cast<uint32_t>(data));
        if (source.profile.size == 0)
            continue;
        StoreRgbProfile(ProfileAt(settings, source.profile), RgbValue(settings, source.field), source.items,
                        ProfilesOf(controls, kRgbProfiles));
    }
}

// --- Showing --------------------------------------------------------------------------------------------

// Selects the first entry, if there is one, and stores it.
void FallBack(const ColorControls& controls, const ColorControl& control) {
    Select(controls, control.id, 0);
    if (SelectedIndex(controls, control.id) == 0)
        StoreControl(controls, control);
}

void ShowItem(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    SelectData(controls, control.id, static_cast<LONG_PTR>(Load(settings, control.field)));
}

void ShowItemOrFirst(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    if (!SelectData(controls, control.id, static_cast<LONG_PTR>(Load(settings, control.field))))
        FallBack(controls, control);
}

void ShowRgbSource(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    if (!SelectData(controls, control.id, RgbValue(settings, control.field)))
        FallBack(controls, control);
}

// Selects the stored profile, or falls back to the first entry.
void ShowProfile(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    const ListedProfiles profiles = ProfilesOf(controls, control);
    const LONG_PTR position = FindStored(profiles, ProfileAt(settings, control.profile));
    if (position < 0 || !SelectData(controls, control.id, profiles.firstData + position))
        FallBack(controls, control);
}

void ShowDestination(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    if (Load(settings, control.field) == 0)
        SelectData(controls, control.id, 0);
    else
        ShowProfile(controls, control, settings);
}

void ShowSimulation(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    const uint32_t value = Load(settings, control.field);
    if (value == kProfileChosen)
        ShowProfile(controls, control, settings);
    else if (value >= kSimulationItems || !SelectData(controls, control.id, static_cast<LONG_PTR>(value)))
        FallBack(controls, control);
}

void ShowCheckBox(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    SendToControl(controls.dialog, control.id, BM_SETCHECK,
                  Load(settings, control.field) != 0 ? BST_CHECKED : BST_UNCHECKED);
}

void ShowGraphicsChoice(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    const bool likeImages = Load(settings, control.field) == 1;
    SendToControl(controls.dialog, control.id, BM_SETCHECK, likeImages ? BST_CHECKED : BST_UNCHECKED);
    SendToControl(controls.dialog, control.otherId, BM_SETCHECK, likeImages ? BST_UNCHECKED : BST_CHECKED);
}

// --- Rows of the kinds -----------------------------------------------------------------------------------

// clang-format off
constexpr KindRow kKinds[] = {
    // kind                              list   notification  result  refresh   profiles              listed  show                store
    {ColorControlKind::kItems,          {true,  CBN_SELENDOK, 1,      false},   kNoProfiles,          false,  ShowItem,           StoreItem},
    {ColorControlKind::kItemsOrFirst,   {true,  CBN_SELENDOK, 1,      false},   kNoProfiles,          false,  ShowItemOrFirst,    StoreItem},
    {ColorControlKind::kRgbSource,      {true,  CBN_SELENDOK, 1,      false},   kRgbProfiles,         true,   ShowRgbSource,      StoreRgbSource},
    {ColorControlKind::kRgbItems,       {true,  CBN_SELENDOK, 1,      false},   kRgbProfiles,         false,  ShowRgbSource,      StoreItem},
    {ColorControlKind::kDestination,    {true,  CBN_SELENDOK, 0,      false},   kDestinationProfiles, true,   ShowDestination,    StoreDestination},
    {ColorControlKind::kSimulation,     {true,  CBN_SELENDOK, 0,      false},   kSimulationProfiles,  true,   ShowSimulation,     StoreSimulation},
    {ColorControlKind::kCheckBox,       {false, BN_CLICKED,   0,      false},   kNoProfiles,          false,  ShowCheckBox,       StoreCheckBox},
    {ColorControlKind::kGraphicsChoice, {false, BN_CLICKED,   1,      true},    kNoProfiles,          false,  ShowGraphicsChoice, StoreGraphicsChoice},
};
// clang-format on
static_assert(
    [] {
        size_t inOrder = 0;
        while (inOrder < std::size(kKinds) && kKinds[inOrder].kind == static_cast<ColorControlKind>(inOrder))
            ++inOrder;
        return inOrder == static_cast<size_t>(ColorControlKind::kCount);
    }(),
    "a row for each kind, in the order of the kinds");

const KindRow& RowOf(const ColorControl& control) {
    return kKinds[static_cast<size_t>(control.kind)];
}

} // namespace

ColorControlAnswer AnswerOf(const ColorControl& control) {
    return RowOf(control).answer;
}

void FillControl(const ColorControls& controls, const ColorControl& control) {
    if (RowOf(control).answer.isList)
        FillEntries(controls, control);
}

void ShowControl(const ColorControls& controls, const ColorControl& control) {
    if (OemDevmode* settings = GetDialogSettings(controls.context))
        RowOf(control).show(controls, control, *settings);
}

void StoreControl(const ColorControls& controls, const ColorControl& control) {
    if (OemDevmode* settings = GetDialogSettings(controls.context))
        RowOf(control).store(controls, control, *settings);
}

void DrawControlEntry(const ColorControls& controls, const ColorControl& control,
                      const DRAWITEMSTRUCT& item) {
    DrawListEntry(item, ItemsOf(controls, control), ProfilesOf(controls, control));
}
