// Kinds of controls of the colour dialogs: see the header. Each kind is a row of kKinds.
#include "dialogs/color/color_controls.h"

#include "base/text.h"
#include "dialogs/shared/item_drawing.h"
#include "dialogs/shared/profile_text.h"

#include <iterator>

namespace {

constexpr LONG_PTR kFirstRgbProfile = 256;
constexpr LONG_PTR kFirstProfile = 128; // of destinations and simulations
constexpr LONG_PTR kSimulationItems = 6;
constexpr uint32_t kProfileChosen = 128; // value of a destination or simulation that is one of the printer's

// --- Lists -----------------------------------------------------------------------------------------------

LRESULT Send(const ColorControls& controls, uint16_t id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendDlgItemMessageW(controls.dialog, id, message, wParam, lParam);
}

// False when the list takes no more.
bool AddEntry(const ColorControls& controls, uint16_t id, const wchar_t* text, LONG_PTR data) {
    const LRESULT next = Send(controls, id, CB_GETCOUNT);
    const LRESULT index =
        Send(controls, id, CB_INSERTSTRING, static_cast<WPARAM>(next), reinterpret_cast<LPARAM>(text));
    if (index < 0)
        return false;
    Send(controls, id, CB_SETITEMDATA, static_cast<WPARAM>(index), data);
    return true;
}

void Select(const ColorControls& controls, uint16_t id, LONG_PTR index) {
    Send(controls, id, CB_SETCURSEL, static_cast<WPARAM>(index));
}

LONG_PTR SelectedIndex(const ColorControls& controls, uint16_t id) {
    return Send(controls, id, CB_GETCURSEL);
}

LONG_PTR DataAt(const ColorControls& controls, uint16_t id, LONG_PTR index) {
    return Send(controls, id, CB_GETITEMDATA, static_cast<WPARAM>(index));
}

// -1 without a selection.
LONG_PTR SelectedData(const ColorControls& controls, uint16_t id) {
    const LONG_PTR index = SelectedIndex(controls, id);
    return index < 0 ? -1 : DataAt(controls, id, index);
}

// Selects the first entry with this item data, or none. False when there is none.
bool SelectData(const ColorControls& controls, uint16_t id, LONG_PTR data) {
    const LRESULT count = Send(controls, id, CB_GETCOUNT);
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

ListedProfiles RgbProfiles(const ColorControls& controls) {
    const ProfileLists* lists = GetPrinterProfileLists(controls.context);
    const bool hasThem = lists != nullptr && !IsShortRgbListContext(controls.context);
    return {hasThem ? &lists->rgbSources : nullptr, kFirstRgbProfile};
}

// The printer's profiles that entries of a control can stand for.
ListedProfiles ProfilesOf(const ColorControls& controls, const ColorControl& control) {
    const ProfileLists* lists = GetPrinterProfileLists(controls.context);
    if (lists == nullptr)
        return {};
    switch (control.kind) {
    case ColorControlKind::kRgbSource:
    case ColorControlKind::kRgbItems:
        return RgbProfiles(controls);
    case ColorControlKind::kDestination:
        return {&lists->destinations, kFirstProfile};
    case ColorControlKind::kSimulation:
        return {&lists->simulations, kFirstProfile};
    default:
        return {};
    }
}

template <size_t Capacity>
bool SameName(const wchar_t (&a)[Capacity], const wchar_t (&b)[Capacity]) {
    return CompareStringOrdinal(a, static_cast<int>(TextLength(a)), b, static_cast<int>(TextLength(b)), TRUE)
           == CSTR_EQUAL;
}

ProfileEntry& ProfileAt(OemDevmode& settings, DevmodeField field) {
    return *static_cast<ProfileEntry*>(FieldAt(settings, field));
}

// Position of the profile that is remembered, by its name; -1 when the printer no longer has it.
LONG_PTR FindRemembered(const ListedProfiles& profiles, const ProfileEntry& remembered) {
    for (LONG_PTR i = 0;; ++i) {
        const ProfileEntry* profile = FindListedProfile(profiles, profiles.firstData + i);
        if (profile == nullptr)
            return -1;
        if (SameName(profile->name, remembered.name))
            return i;
    }
}

// Remembers a choice of a list of destinations or simulations: a profile, or none.
void StoreProfileChoice(OemDevmode& settings, const ColorControl& control, const ProfileEntry* profile,
                        uint32_t valueWithoutProfile) {
    Store(settings, control.field, profile != nullptr ? kProfileChosen : valueWithoutProfile);
    ProfileAt(settings, control.profile) = profile != nullptr ? *profile : ProfileEntry();
}

// Remembers an RGB source: the printer's profile, or the name of the item with this value.
void StoreRgbProfile(ProfileEntry& to, LONG_PTR value, const ItemRecord* items,
                     const ListedProfiles& profiles) {
    to = {};
    if (const ProfileEntry* profile = FindListedProfile(profiles, value)) {
        to = *profile;
        return;
    }
    for (const ItemRecord& item : Listed(items))
        if (value < kFirstRgbProfile && static_cast<LONG_PTR>(item.head.value) == value) {
            CopyText(to.qualifier, item.display);
            return;
        }
}

int16_t RgbValue(const OemDevmode& settings, DevmodeField field) {
    return static_cast<int16_t>(Load(settings, field));
}

// --- Kinds: filling --------------------------------------------------------------------------------------

void FillEntries(const ColorControls& controls, const ColorControl& control) {
    Send(controls, control.id, CB_RESETCONTENT);
    for (const ItemRecord& item : Listed(ItemsOf(controls, control)))
        if (!AddEntry(controls, control.id, item.display, static_cast<LONG_PTR>(item.head.value)))
            return;
    if (control.kind == ColorControlKind::kRgbItems)
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

// --- Kinds: storing --------------------------------------------------------------------------------------

void StoreItem(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    Store(settings, control.field, static_cast<uint32_t>(SelectedData(controls, control.id)));
}

void StoreRgbSource(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    StoreItem(controls, control, settings);
    StoreRgbProfile(ProfileAt(settings, control.profile), RgbValue(settings, control.field),
                    ItemsOf(controls, control), ProfilesOf(controls, control));
}

// No selection counts as the automatic destination; so does a profile that has gone meanwhile.
void StoreDestination(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    const LONG_PTR data = SelectedData(controls, control.id);
    StoreProfileChoice(settings, control, FindListedProfile(ProfilesOf(controls, control), data), 0);
}

// Behind the items stand the profiles. No selection, and a profile that has gone meanwhile, count as the
// first item.
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
    Store(settings, control.field, Send(controls, control.id, BM_GETCHECK) == BST_CHECKED ? 1 : 0);
}

// What graphics follow, and what follows from it.
void StoreGraphicsChoice(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    const bool likeImages = Send(controls, control.id, BM_GETCHECK) == BST_CHECKED;
    Store(settings, control.field, likeImages ? 1 : 0);
    for (const GraphicsSource& source : controls.graphicsSources) {
        const uint16_t list = likeImages ? source.imageList : source.textList;
        const LONG_PTR data = list != 0 ? SelectedData(controls, list) : 0;
        Store(settings, source.field, static_cast<uint32_t>(data));
        if (source.profile.size == 0)
            continue;
        StoreRgbProfile(ProfileAt(settings, source.profile), RgbValue(settings, source.field), source.items,
                        RgbProfiles(controls));
    }
}

// --- Kinds: showing --------------------------------------------------------------------------------------

// Selects the first entry, if there is one, and stores what it stands for.
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

// Selects the remembered profile, or falls back to the first entry.
void ShowProfile(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    const ListedProfiles profiles = ProfilesOf(controls, control);
    const LONG_PTR position = FindRemembered(profiles, ProfileAt(settings, control.profile));
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
    Send(controls, control.id, BM_SETCHECK, Load(settings, control.field) != 0 ? BST_CHECKED : BST_UNCHECKED);
}

void ShowGraphicsChoice(const ColorControls& controls, const ColorControl& control, OemDevmode& settings) {
    const bool likeImages = Load(settings, control.field) == 1;
    Send(controls, control.id, BM_SETCHECK, likeImages ? BST_CHECKED : BST_UNCHECKED);
    Send(controls, control.otherId, BM_SETCHECK, likeImages ? BST_UNCHECKED : BST_CHECKED);
}

// --- The kinds -------------------------------------------------------------------------------------------

using Handler = void(const ColorControls& controls, const ColorControl& control, OemDevmode& settings);

struct KindRow {
    ColorControlKind kind; // in the order of their numbers
    ColorControlAnswer answer;
    Handler* show;
    Handler* store;
};

// clang-format off
constexpr KindRow kKinds[] = {
    // kind                                list   notification   result  show                store
    {ColorControlKind::kItems,            {true,  CBN_SELENDOK,  1},     ShowItem,           StoreItem},
    {ColorControlKind::kItemsOrFirst,     {true,  CBN_SELENDOK,  1},     ShowItemOrFirst,    StoreItem},
    {ColorControlKind::kRgbSource,        {true,  CBN_SELENDOK,  1},     ShowRgbSource,      StoreRgbSource},
    {ColorControlKind::kRgbItems,         {true,  CBN_SELENDOK,  1},     ShowRgbSource,      StoreItem},
    {ColorControlKind::kDestination,      {true,  CBN_SELENDOK,  0},     ShowDestination,    StoreDestination},
    {ColorControlKind::kSimulation,       {true,  CBN_SELENDOK,  0},     ShowSimulation,     StoreSimulation},
    {ColorControlKind::kCheckBox,         {false, BN_CLICKED,    0},     ShowCheckBox,       StoreCheckBox},
    {ColorControlKind::kGraphicsChoice,   {false, BN_CLICKED,    1},     ShowGraphicsChoice, StoreGraphicsChoice},
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
