// The tables that translate codes and names of the bidirectional library.
#include "devcomm/bidi/bdc_tables.h"

#include "base/text.h"
#include "devcomm/model.h"

namespace {

// clang-format off

// --- Bits

// A row's bit is set when the device has exactly so many options of its type and model.
constexpr struct {
    uint32_t type;
    const char* model;
    uint32_t count;
    uint32_t bit;
} OptionModelTable[] = {
    {3,    "QA-110",           1, 0x01},
    {5,    "QB-220",           1, 0x02},
    {6,    "QC-330",           1, 0x04},
    {6,    "QD-440",           1, 0x08},
    {6,    "QE-550",           1, 0x10},
    {6,    "QF-660",           1, 0x20},
    {1000, "Bdc_Function_Fax", 1, 0x40},
};

// A row's bit is set when a finisher has all flags of its mask.
constexpr struct {
    uint32_t mask;
    uint32_t bit;
} FinisherFlagTable[] = {
    {0x10, 0x1},
    {0x20, 0x2},
    {0x40, 0x4},
};

constexpr struct {
    uint32_t path;
    uint32_t bit;
} MediaPathTable[] = {
    {0, 0x1},
    {1, 0x2},
};

constexpr uint32_t kHardDisk = 3; // kind of memory

// --- Trays and the paper in them

constexpr CodeKey TrayKeyTable[] = {
    {1, "InTray1"},
    {2, "InTray2"},
    {3, "InTray3"},
    {4, "InTray4"},
    {5, "InTrayLCT"},
    {6, "InTrayManual"},
};

constexpr CodeKey kOrientations[] = {
    {2, "MediaTypeList_Portrait"},
    {3, "MediaTypeList_Landscape"},
};

// The driver has no key for these codes: the keys are empty.
constexpr CodeKey kWeights[] = {{-1, ""}};
constexpr CodeKey kColors[]  = {{0, ""}, {15, ""}};
constexpr CodeKey kHoles[]   = {{-1, ""}};
// clang-format on

// The key of the first row with this code; empty when there is none.
template <size_t N>
const char* KeyForCode(const CodeKey (&table)[N], int32_t code) {
    for (const CodeKey& row : table)
        if (row.code == code)
            return row.key;
    return "";
}

const char* MediaTypeOf(const BdcInputTrayItem& tray) {
    for (const auto& row : MediaTypeTable)
        if (((row.flags & kMediaByType) == 0 || row.type == tray.mediaType)
            && ((row.flags & kMediaByColor) == 0 || row.color == tray.color)
            && ((row.flags & kMediaBySide) == 0 || row.secondSide == tray.secondSide))
            return row.key;
    return "";
}

uint32_t OptionBits(const Rows<BdcOptionItem>& options) {
    uint32_t bits = 0;
    for (const auto& row : OptionModelTable) {
        uint32_t count = 0;
        for (const BdcOptionItem& option : options)
            count += option.type == row.type && SameText(option.model, row.model) ? 1 : 0;
        bits |= count == row.count ? row.bit : 0;
    }
    return bits;
}

uint32_t FinisherBits(const Rows<BdcFinisherItem>& finishers) {
    uint32_t bits = 0;
    for (const auto& row : FinisherFlagTable)
        for (const BdcFinisherItem& finisher : finishers)
            bits |= (finisher.flags & row.mask) == row.mask ? row.bit : 0;
    return bits;
}

uint32_t MemoryBits(const Rows<BdcMemoryItem>& memories) {
    uint32_t hardDisks = 0;
    for (const BdcMemoryItem& memory : memories)
        hardDisks += memory.kind == kHardDisk ? 1 : 0;
    return hardDisks == 1 ? 1 : 0;
}

uint32_t MediaPathBits(const Rows<BdcMediaPathInfo>& paths) {
    uint32_t bits = 0;
    for (const auto& row : MediaPathTable)
        for (const BdcMediaPathInfo& info : paths)
            bits |= info.path == row.path ? row.bit : 0;
    return bits;
}

bool Applies(const OptionRule& rule, const BdcDeviceBits& bits) {
    for (uint32_t i = 0; i < kBitWords; ++i)
        if (rule.masks[i] != 0 && (rule.masks[i] & bits.words[i]) == 0)
            return false;
    return true;
}

} // namespace

const BdcTrayKeys kUnknownTrayKeys = {
    "MediaTypeList_Size_Unknown",   "MediaTypeList_Orient_Unknown", "MediaTypeList_Type_Unknown",
    "MediaTypeList_Weight_Unknown", "MediaTypeList_Color_Unknown",  "MediaTypeList_Hole_Unknown",
};

BdcDeviceBits BdcDeriveBits(const BdcDeviceContext& context) {
    BdcDeviceBits bits;
    bits.words[kModelBits] = SameText(context.name.longName, kModelName) ? 1 : 0; // case ignored
    bits.words[kOptionBits] = OptionBits(BdcItemsOf<BdcOptionItem>(context.options));
    bits.words[kFinisherBits] = FinisherBits(BdcItemsOf<BdcFinisherItem>(context.finishers));
    bits.words[kMemoryBits] = MemoryBits(BdcItemsOf<BdcMemoryItem>(context.memory));
    bits.words[kMediaPathBits] = MediaPathBits(BdcItemsOf<BdcMediaPathInfo>(context.mediaPath));
    return bits;
}

const char* BdcApplyRules(const char (&option)[32], const BdcDeviceBits& bits) {
    for (const OptionRule& rule : BdcOptionRuleTable)
        if (SameText(rule.option, option) && Applies(rule, bits))
            return rule.item;
    return nullptr;
}

int32_t BdcTrayNumber(const char (&key)[32]) {
    for (const CodeKey& row : TrayKeyTable)
        if (SameText(row.key, key))
            return row.code;
    return 0;
}

BdcTrayKeys BdcKeysOf(const BdcInputTrayItem& tray) {
    return {
        KeyForCode(MediaSizeTable, tray.mediaSize),
        KeyForCode(kOrientations, tray.orientation),
        MediaTypeOf(tray),
        KeyForCode(kWeights, tray.weight),
        KeyForCode(kColors, tray.color),
        KeyForCode(kHoles, tray.hole),
    };
}
