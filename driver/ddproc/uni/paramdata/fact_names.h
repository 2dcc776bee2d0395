// The facts about the device that a parameter data file states by name, and the words for their values. The
// module's builders and the compiler of parameter data files both take them from here.
#ifndef PARAMDATA_FACT_NAMES_H
#define PARAMDATA_FACT_NAMES_H

#include "base/rows.h"

// The module stores a word's position, counted from 0 (truth, figure type) or 1 (unit, encryption).
inline constexpr const char* kTruthWords[] = {"FALSE", "TRUE"};
inline constexpr const char* kPrintRateUnits[] = {"PPM", "CPS", "LPM", "IPM"};
inline constexpr const char* kEncryptions[] = {"AES", "OTHER"};
inline constexpr const char* kFigureTypes[] = {"OTHER", "MFP"};

// A row of a name/value table, and what its value may be.
struct FactRow {
    const char* name;
    Rows<const char*> words; // empty: numbers
    size_t numbers;          // how many
};

// clang-format off
inline constexpr FactRow kDeviceFacts[] = { // "DevInfo"
    {"PrintRatePPM",      {},              1},
    {"PrintRate",         {},              1},
    {"PrintRateUnit",     kPrintRateUnits, 0},
    {"Staple",            kTruthWords,     0},
    {"ColorDevice",       kTruthWords,     0},
    {"PDLType",           {},              2},
    {"MachineEncryption", kEncryptions,    0},
};
inline constexpr FactRow kFigureFacts[] = { // "PaperSizeFigure"
    {"FigureType",        kFigureTypes,    0},
};
// clang-format on

#endif
