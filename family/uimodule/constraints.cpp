// The tables of refused combinations of settings, and their checks.
#include "uimodule/constraints.h"

#include "base/dialog_ids.h"
#include "base/text.h"
#include "base/window_services.h"
#include "dialogs/shared/dialog_context.h"
#include "paramdata/devmode_fields.h"
#include "uimodule/library_texts.h"
#include "uimodule/resource_ids.h"

namespace {

// --- Colours

enum class Is : uint8_t { kEqual, kNotEqual };

struct Condition {
    DevmodeField field;
    Is is;
    uint32_t value;
};

// Values of the settings.
constexpr uint32_t kDeviceRgb = 0;
constexpr uint32_t kAutomatic = 0; // destination
constexpr uint32_t kExactMatch = 3;
constexpr uint32_t kFourColors = 0; // blacks and greys
constexpr uint32_t kBlackToner = 2;
constexpr uint32_t kFinest = 0; // halftone
constexpr uint32_t kNoPress = 0;

// A combination that is refused, when both conditions are met, at a choice of either control. It concerns the
// dialogs that have both.
struct ColorRule {
    uint16_t controls[2]; // 0: none
    uint16_t subject;     // the text in front of the hint; 0: none
    uint16_t hints[2];    // after a choice of this control: how it can be made
    Condition conditions[2];
};

// With the default settings, an entry that is refused is the first or last one of its list: the arrow keys
// reach all others. For that reason text, with black toner by default, may use an output profile.
// clang-format off
#define EXACT_SOURCE   {HINT_EXACT_SOURCE,   HINT_DEVICE_RGB}
#define EXACT_HALFTONE {HINT_EXACT_HALFTONE, HINT_FINEST}
#define PROFILE_GRAY   {HINT_PROFILE_GRAY,   HINT_BLACK_TONER}
#define OF_OBJECT(NAME, object, subject) \
    {{IDC_##NAME##_COLOR_MATCH, IDC_##NAME##_RGB_SOURCE}, subject, EXACT_SOURCE,        {{FIELD(object.colorMatch),   Is::kEqual,    kExactMatch}, {FIELD(object##RgbSource), Is::kEqual,    kDeviceRgb}}}, \
    {{IDC_##NAME##_COLOR_MATCH, IDC_##NAME##_HALFTONE},   subject, EXACT_HALFTONE,      {{FIELD(object.colorMatch),   Is::kEqual,    kExactMatch}, {FIELD(object.halftone),   Is::kEqual,    kFinest}}}, \
    {{IDC_##NAME##_GRAY},                                 subject, {HINT_MONO_GRAY},    {{FIELD(object.gray),         Is::kEqual,    kFourColors}, {FIELD(mono),              Is::kNotEqual, 0}}}, \
    {{IDC_##NAME##_DESTINATION},                          subject, {HINT_MONO_PROFILE}, {{FIELD(object##Destination), Is::kNotEqual, kAutomatic},  {FIELD(mono),              Is::kNotEqual, 0}}}

constexpr ColorRule kColorRules[] = {
    OF_OBJECT(IMAGE,    image,    TEXT_IMAGES),
    OF_OBJECT(TEXT,     text,     TEXT_TEXT),
    OF_OBJECT(GRAPHICS, graphics, TEXT_GRAPHICS),
    {{IDC_IMAGE_DESTINATION,    IDC_IMAGE_GRAY},      TEXT_IMAGES,   PROFILE_GRAY, {{FIELD(imageDestination),    Is::kNotEqual, kAutomatic},  {FIELD(image.gray),    Is::kEqual, kBlackToner}}},
    {{IDC_GRAPHICS_DESTINATION, IDC_GRAPHICS_GRAY},   TEXT_GRAPHICS, PROFILE_GRAY, {{FIELD(graphicsDestination), Is::kNotEqual, kAutomatic},  {FIELD(graphics.gray), Is::kEqual, kBlackToner}}},
    // The RGB source and the destination of the page
    {{IDC_IMAGE_COLOR_MATCH,    IDC_PAGE_RGB_SOURCE}, TEXT_IMAGES,   EXACT_SOURCE, {{FIELD(image.colorMatch),    Is::kEqual,    kExactMatch}, {FIELD(rgbSource),     Is::kEqual, kDeviceRgb}}},
    {{IDC_TEXT_COLOR_MATCH,     IDC_PAGE_RGB_SOURCE}, TEXT_TEXT,     EXACT_SOURCE, {{FIELD(text.colorMatch),     Is::kEqual,    kExactMatch}, {FIELD(rgbSource),     Is::kEqual, kDeviceRgb}}},
    {{IDC_PAGE_DESTINATION,     IDC_IMAGE_GRAY},      TEXT_IMAGES,   PROFILE_GRAY, {{FIELD(destination),         Is::kNotEqual, kAutomatic},  {FIELD(image.gray),    Is::kEqual, kBlackToner}}},
    {{IDC_PAGE_DESTINATION}, 0, {HINT_MONO_PROFILE}, {{FIELD(destination), Is::kNotEqual, kAutomatic}, {FIELD(mono), Is::kNotEqual, 0}}},
    // The simulation of a press
    {{IDC_MATCH_PAPER_COLOR, IDC_SIMULATION}, 0, {HINT_PAPER_COLOR, HINT_KEEP_PAPER_COLOR}, {{FIELD(matchPaperColor), Is::kNotEqual, 0},           {FIELD(simulation), Is::kEqual,    kNoPress}}},
    {{IDC_SIMULATION_GRAY,   IDC_SIMULATION}, 0, {HINT_PRESS_GRAY,  HINT_KEEP_PRESS_GRAY},  {{FIELD(simulationGray),  Is::kEqual,    kBlackToner}, {FIELD(simulation), Is::kEqual,    kNoPress}}},
    {{IDC_SIMULATION},                        0, {HINT_MONO_SIMULATION},                    {{FIELD(simulation),      Is::kNotEqual, kNoPress},    {FIELD(mono),       Is::kNotEqual, 0}}},
};
#undef OF_OBJECT
#undef PROFILE_GRAY
#undef EXACT_HALFTONE
#undef EXACT_SOURCE
// clang-format on

bool IsBroken(const ColorRule& rule, const DialogChoices& choices) {
    const OemDevmode* settings = GetDialogSettings(choices.context);
    if (settings == nullptr)
        return false;
    for (const Condition& condition : rule.conditions) {
        const bool isEqual = Load(*settings, condition.field) == condition.value;
        if (isEqual != (condition.is == Is::kEqual))
            return false;
    }
    return true;
}

// --- Paper in trays

// A combination of entries that are chosen for the selected tray. A key is the beginning of an item's key.
struct TrayRule {
    uint16_t controls[2];
    uint16_t subject;
    uint16_t hints[2];
    const char* keys[2]; // of the controls' items
};

// As above, the arrow keys pass: plain paper is the default, and may have any weight.
// clang-format off
constexpr TrayRule kTrayRules[] = {
    {{IDC_TRAY_TYPE, IDC_TRAY_PRE_PUNCHED}, 0, {HINT_ENVELOPE_HOLES, HINT_ENVELOPE_HOLES}, {"Envelope", "PP_On"}},
    {{IDC_TRAY_TYPE, IDC_TRAY_PRE_PUNCHED}, 0, {HINT_FILM_HOLES,     HINT_FILM_HOLES},     {"OHP",      "PP_On"}},
    {{IDC_TRAY_TYPE, IDC_TRAY_WEIGHT},      0, {HINT_THICK_PAPER,    HINT_THICK_PAPER},    {"Thick",    "MW_60_90"}},
};
// clang-format on

// Whether the list's chosen item has a key that begins so. The item data of a tray dialog's lists are items.
bool IsChosen(HWND dialog, uint16_t list, const char* key) {
    const LRESULT selected = SendToControl(dialog, list, CB_GETCURSEL);
    if (selected < 0)
        return false;
    const LRESULT data = SendToControl(dialog, list, CB_GETITEMDATA, static_cast<WPARAM>(selected));
    const auto* item = reinterpret_cast<const ItemRecord*>(data);
    return item != nullptr && data != CB_ERR && TextLength(item->head.key) >= TextLength(key)
           && SameCharacters(item->head.key, key, TextLength(key));
}

bool IsBroken(const TrayRule& rule, const DialogChoices& choices) {
    for (size_t i = 0; i < 2; ++i)
        if (!IsChosen(choices.dialog, rule.controls[i], rule.keys[i]))
            return false;
    return true;
}

// --- All rules

bool HasControls(HWND dialog, const uint16_t (&controls)[2]) {
    for (const uint16_t control : controls)
        if (control != 0 && GetDlgItem(dialog, control) == nullptr)
            return false;
    return true;
}

// Calls `use` for each rule that the choices break.
template <typename Use>
void ForEachBroken(const DialogChoices& choices, const Use& use) {
    for (const ColorRule& rule : kColorRules)
        if (HasControls(choices.dialog, rule.controls) && IsBroken(rule, choices))
            use(rule);
    for (const TrayRule& rule : kTrayRules)
        if (HasControls(choices.dialog, rule.controls) && IsBroken(rule, choices))
            use(rule);
}

// Adds a line, when there is room for all of it.
template <typename Rule>
void AddHint(HintText& hint, const Rule& rule, size_t control) {
    HintText line = {};
    if (hint[0] != 0)
        AppendText(line, L"\r\n");
    if (rule.subject != 0)
        AppendText(line, TextOf(rule.subject).text);
    AppendText(line, TextOf(rule.hints[control]).text);
    if (TextLength(hint) + TextLength(line) < sizeof(hint) / sizeof(hint[0]))
        AppendText(hint, line);
}

} // namespace

int32_t CheckChoice(const DialogChoices& choices, uint32_t control, HintText& hint) {
    hint[0] = 0;
    int32_t answer = 0;
    ForEachBroken(choices, [&](const auto& rule) {
        const bool isFirst = rule.controls[0] == control;
        if (control == 0 || (!isFirst && rule.controls[1] != control))
            return;
        if (answer == 0)
            answer = isFirst ? TELMAR_CHANGE_REFUSED : TELMAR_CHANGE_REFUSED_ALSO;
        AddHint(hint, rule, isFirst ? 0 : 1);
    });
    return answer;
}

void DescribeConflicts(const DialogChoices& choices, HintText& hint) {
    hint[0] = 0;
    ForEachBroken(choices, [&](const auto& rule) { AddHint(hint, rule, 0); });
}
