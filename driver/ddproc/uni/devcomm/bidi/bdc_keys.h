// Codes of the bidirectional library for options and the paper in trays, and the driver's keys. The module's
// tables and the compiler of parameter data files both take them from here.
#ifndef DEVCOMM_BIDI_BDC_KEYS_H
#define DEVCOMM_BIDI_BDC_KEYS_H

#include <cstdint>

struct CodeKey {
    int32_t code;
    const char* key;
};

// clang-format off
inline constexpr CodeKey MediaSizeTable[] = {
    {259,  "A3"},
    {260,  "A4"},
    {261,  "A5"},
    {262,  "A6"},
    {516,  "B4_JIS"},
    {517,  "B5_JIS"},
    {518,  "B6"},
    {1540, "12x18inch"},
    {1541, "11x17inch"},
    {1547, "8half14"},
    {1551, "8half11"},
    {1559, "7qtr10half"},
    {1560, "5half8half"},
    {2051, "8K"},
    {2052, "16K"},
    {773,  "B5_ISO"},
    {1029, "EnvelopeC5"},
    {2826, "EnvelopeDL"},
    {3073, "EnvelopeMonarch"},
    {3074, "Envelope10"},
    {3587, "JpnPostcard"},
    {3602, "4x6PostCard"},
    {1556, "8x13"},
    {1553, "8qtr13"},
    {1549, "8half13"},
    {1285, "220330mm"},
    {1554, "8hq13qtr"},
    {8451, "A3W"},
    {8452, "A4W"},
    {8453, "A5W"},
    {8708, "B4W"},
    {8709, "B5W"},
    {9733, "11x17W"},
    {9743, "8half11W"},
    {9752, "5half8halfW"},
};

// The first row applies whose codes, as far as its flags select them, are those of the tray.
constexpr uint32_t kMediaByType = 1;
constexpr uint32_t kMediaByColor = 2;
constexpr uint32_t kMediaBySide = 4;
struct MediaTypeRow {
    uint32_t flags;
    int32_t type;
    int32_t color;
    int32_t secondSide;
    const char* key;
};
inline constexpr MediaTypeRow MediaTypeTable[] = {
    {kMediaByType | kMediaByColor,  1,   15, 0, "Color"},
    {kMediaByType | kMediaBySide,   1,   0,  1, "PlainPaper2nd"},
    {kMediaByType | kMediaByColor,  1,   0,  0, "Plain"},
    {kMediaByType,                  177, 0,  0, "Special"},
    {kMediaByType,                  40,  0,  0, "Envelope"},
    {kMediaByType,                  162, 0,  0, "Letterhead"},
    {kMediaByType,                  184, 0,  0, "SingleSided"},
    {kMediaByType | kMediaBySide,   225, 0,  1, "Thick1_2nd"},
    {kMediaByType,                  225, 0,  0, "Thick1"},
    {kMediaByType | kMediaBySide,   226, 0,  1, "Thick2_2nd"},
    {kMediaByType,                  226, 0,  0, "Thick2"},
    {kMediaByType | kMediaBySide,   227, 0,  1, "Thick3_2nd"},
    {kMediaByType,                  227, 0,  0, "Thick3"},
    {kMediaByType | kMediaBySide,   228, 0,  1, "Thick4_2nd"},
    {kMediaByType,                  228, 0,  0, "Thick4"},
    {kMediaByType,                  65,  0,  0, "OHP"},
    {kMediaByType | kMediaBySide,   234, 0,  1, "Thick1Plus_2nd"},
    {kMediaByType,                  234, 0,  0, "Thick1Plus"},
};

// A word of bits for each kind of what is installed.
enum BdcBits : uint32_t { kModelBits, kOptionBits, kFinisherBits, kMemoryBits, kMediaPathBits, kBitWords };

// The first row of an option applies whose masks are each 0 or share a bit with the device.
struct OptionRule {
    const char* option;
    uint32_t masks[kBitWords];
    const char* item;
};
inline constexpr OptionRule BdcOptionRuleTable[] = {
    // option          model  option finisher memory path   item
    {"OpMachine",     {0x1,   0,     0,       0,     0},   "OpMachine1"},
    {"OpInTrayUnit",  {0,     0x01,  0,       0,     0},   "OpInTrayUnit1"},
    {"OpInTrayUnit",  {0,     0,     0,       0,     0},   "DisOpInTrayUnit"},
    {"OpOutTrayUnit", {0,     0x08,  0,       0,     0},   "OpOutTrayUnit2"},
    {"OpOutTrayUnit", {0,     0x02,  0,       0,     0},   "OpOutTrayUnit1"},
    {"OpOutTrayUnit", {0,     0,     0,       0,     0},   "DisOpOutTrayUnit"},
    {"OpPunchKit",    {0,     0x04,  0x4,     0,     0},   "OpPunchKit3"},
    {"OpPunchKit",    {0,     0x04,  0x2,     0,     0},   "OpPunchKit2"},
    {"OpPunchKit",    {0,     0x04,  0x1,     0,     0},   "OpPunchKit1"},
    {"OpPunchKit",    {0,     0,     0,       0,     0},   "DisOpPunchKit"},
    {"OpMailBinKit",  {0,     0x10,  0,       0,     0},   "EnaOpMailBinKit"},
    {"OpMailBinKit",  {0,     0,     0,       0,     0},   "DisOpMailBinKit"},
    {"OpSaddleKit",   {0,     0x20,  0,       0,     0},   "EnaSaddleKit"},
    {"OpSaddleKit",   {0,     0,     0,       0,     0},   "DisSaddleKit"},
    {"OpFAXUnit",     {0,     0x40,  0,       0,     0},   "EnaOpFAXKit"},
    {"OpFAXUnit",     {0,     0,     0,       0,     0},   "DisOpFAXKit"},
    {"OpHDD",         {0,     0,     0,       0x1,   0},   "EnaOpHDD"},
    {"OpHDD",         {0,     0,     0,       0,     0},   "DisOpHDD"},
};
// clang-format on

#endif
