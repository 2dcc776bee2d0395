// The rules by which the picture is composed, as tables in the order of drawing.
#include "picture/view/view_rules.h"

#include "base/text.h"

namespace {

// clang-format off

// --- Parts: for each place the first row whose conditions are met --------------------------------------------

enum Place { kBody, kCabinet, kInputUnit, kOutputUnit };

// A field of the summary has this value. Without a field the condition is always met.
struct Condition {
    int32_t OptionSummary::*field;
    int32_t value;
};

constexpr Condition kMailbin = {&OptionSummary::mailbinKit, 1}; // the mail bin kit
constexpr Condition kSaddle = {&OptionSummary::saddleKit, 1};
constexpr Condition kPrinterBody = {&OptionSummary::bodyPrinter, 1};
constexpr Condition kAlways = {};

constexpr Condition Unit(int32_t number) {
    return {&OptionSummary::outputUnit, number};
}

constexpr struct {
    Place place;
    Condition unit;
    Condition kit;
    uint16_t bitmap;
} kParts[] = {
    {kBody,       kAlways,                         kAlways,  101},
    {kCabinet,    kAlways,                         kAlways,  103},
    {kInputUnit,  {&OptionSummary::inputUnit, 1},  kAlways,  104},
    {kOutputUnit, Unit(1),                         kMailbin, 133},
    {kOutputUnit, Unit(1),                         kSaddle,  135},
    {kOutputUnit, Unit(1),                         kAlways,  131},
    {kOutputUnit, Unit(2),                         kMailbin, 134},
    {kOutputUnit, Unit(2),                         kSaddle,  136},
    {kOutputUnit, Unit(2),                         kAlways,  132},
    {kOutputUnit, Unit(3),                         kAlways,  137},
    {kOutputUnit, Unit(4),                         kAlways,  138},
};

// --- Paper sources, by key -----------------------------------------------------------------------------------

constexpr struct {
    const char* slotKey;
    uint16_t highlight;
} kInputs[] = {
    {"InTray1",      111},
    {"InTray2",      113},
    {"InTray3",      115},
    {"InTray4",      117},
    {"InTrayManual", 119},
    {"InTrayLCT",    121},
};

// --- Output: the first row for the output unit and body with a flag that is set ------------------------------------

// Bit n: output unit n, or output flag n.
constexpr uint32_t Bits(uint32_t a) {
    return 1u << a;
}
constexpr uint32_t Bits(uint32_t a, uint32_t b) {
    return Bits(a) | Bits(b);
}

constexpr uint32_t kLeftUnits = Bits(1, 2) | Bits(0); // without a unit (0) the highlights are the same

constexpr struct {
    uint32_t units;
    uint32_t flags;
    Condition body;
    uint16_t highlight;
} kOutputs[] = {
    {Bits(3),    Bits(2),    kAlways,      145},
    {Bits(3),    Bits(1),    kPrinterBody, 143},
    {Bits(3),    Bits(1),    kAlways,      141},
    {kLeftUnits, Bits(6),    kAlways,      159}, // bins 1 to 4
    {kLeftUnits, Bits(7),    kAlways,      161},
    {kLeftUnits, Bits(8),    kAlways,      163},
    {kLeftUnits, Bits(9),    kAlways,      165},
    {kLeftUnits, Bits(1, 4), kAlways,      151}, // upper tray
    {kLeftUnits, Bits(3),    kAlways,      155}, // lower tray
    {Bits(1),    Bits(2, 5), kAlways,      155},
    {Bits(2),    Bits(2, 5), kAlways,      153}, // middle tray
};

// clang-format on

// --- The engine --------------------------------------------------------------------------------------------

bool IsMet(const Condition& condition, const OptionSummary& options) {
    return condition.field == nullptr || options.*condition.field == condition.value;
}

void ChooseParts(const OptionSummary& options, ViewBitmaps& chosen) {
    bool isFilled[kOutputUnit + 1] = {};
    for (const auto& row : kParts) {
        if (isFilled[row.place] || !IsMet(row.unit, options) || !IsMet(row.kit, options))
            continue;
        isFilled[row.place] = true;
        chosen.parts[chosen.partCount++] = row.bitmap;
    }
}

void ChooseInput(const PrinterViewRequest& request, ViewBitmaps& chosen) {
    for (const auto& row : kInputs)
        if (SameText(request.inputSlotKey, row.slotKey)) {
            chosen.highlights[chosen.highlightCount++] = row.highlight;
            return;
        }
}

uint32_t FlagBits(const PrinterViewRequest& request) {
    uint32_t bits = 0;
    for (uint32_t i = 0; i < sizeof(request.outputFlags) / sizeof(request.outputFlags[0]); ++i)
        if (request.outputFlags[i] != 0)
            bits |= Bits(i + 1);
    return bits;
}

void ChooseOutput(const OptionSummary& options, const PrinterViewRequest& request, ViewBitmaps& chosen) {
    const uint32_t unit = Bits(static_cast<uint32_t>(options.outputUnit));
    const uint32_t flags = FlagBits(request);
    for (const auto& row : kOutputs)
        if ((row.units & unit) != 0 && (row.flags & flags) != 0 && IsMet(row.body, options)) {
            chosen.highlights[chosen.highlightCount++] = row.highlight;
            return;
        }
}

} // namespace

ViewBitmaps ChooseBitmaps(const OptionSummary& options, const PrinterViewRequest& request) {
    ViewBitmaps chosen = {};
    ChooseParts(options, chosen);
    if (request.showsPaperPath == 0)
        return chosen;
    ChooseInput(request, chosen);
    ChooseOutput(options, request, chosen);
    return chosen;
}
