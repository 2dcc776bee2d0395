// The rules of composition as tables, in the order of drawing: see the header.
#include "picture/view/view_rules.h"

#include "base/text.h"

namespace {

// clang-format off

// --- Parts: in each place, the first row whose needs are met -------------------------------------------------

enum Place { kBody, kCabinet, kInputUnit, kOutputUnit };

// A field of the summary must have this value; without a field, nothing is needed.
struct Need {
    int32_t OptionSummary::*field;
    int32_t value;
};

constexpr Need kMailbin = {&OptionSummary::mailbinKit, 1};
constexpr Need kSaddle = {&OptionSummary::saddleKit, 1};
constexpr Need kPrinterBody = {&OptionSummary::bodyPrinter, 1};
constexpr Need kNothing = {};

constexpr Need Unit(int32_t number) {
    return {&OptionSummary::outputUnit, number};
}

constexpr struct {
    Place place;
    Need unit;
    Need kit;
    uint16_t bitmap;
} kParts[] = {
    {kBody,       kNothing,                        kNothing, 101},
    {kCabinet,    kNothing,                        kNothing, 103},
    {kInputUnit,  {&OptionSummary::inputUnit, 1},  kNothing, 104},
    {kOutputUnit, Unit(1),                         kMailbin, 133},
    {kOutputUnit, Unit(1),                         kSaddle,  135},
    {kOutputUnit, Unit(1),                         kNothing, 131},
    {kOutputUnit, Unit(2),                         kMailbin, 134},
    {kOutputUnit, Unit(2),                         kSaddle,  136},
    {kOutputUnit, Unit(2),                         kNothing, 132},
    {kOutputUnit, Unit(3),                         kNothing, 137},
    {kOutputUnit, Unit(4),                         kNothing, 138},
};

// --- Paper source: the row of its key ------------------------------------------------------------------------

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

// --- Output: the first row of output unit and body with a flag that is set ----------------------------------------

// Bit n stands for output unit n or output flag n.
constexpr uint32_t Bits(uint32_t a) {
    return 1u << a;
}
constexpr uint32_t Bits(uint32_t a, uint32_t b) {
    return Bits(a) | Bits(b);
}

constexpr uint32_t kLeftUnits = Bits(1, 2) | Bits(0); // with their kits; 0: without a unit, as if there were one

constexpr struct {
    uint32_t units;
    uint32_t flags;
    Need body;
    uint16_t highlight;
} kOutputs[] = {
    {Bits(3),    Bits(2),    kNothing,     145},
    {Bits(3),    Bits(1),    kPrinterBody, 143},
    {Bits(3),    Bits(1),    kNothing,     141},
    {kLeftUnits, Bits(6),    kNothing,     159}, // bins 1 to 4
    {kLeftUnits, Bits(7),    kNothing,     161},
    {kLeftUnits, Bits(8),    kNothing,     163},
    {kLeftUnits, Bits(9),    kNothing,     165},
    {kLeftUnits, Bits(1, 4), kNothing,     151}, // upper tray
    {kLeftUnits, Bits(3),    kNothing,     155}, // lower tray
    {Bits(1),    Bits(2, 5), kNothing,     155},
    {Bits(2),    Bits(2, 5), kNothing,     153}, // middle tray
};

// clang-format on

// --- The engine --------------------------------------------------------------------------------------------

bool IsMet(const Need& need, const OptionSummary& options) {
    return need.field == nullptr || options.*need.field == need.value;
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
