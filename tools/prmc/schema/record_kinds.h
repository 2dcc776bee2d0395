// The kinds of records, the tables of the entries, and the limits of their numbers.
#ifndef PRMC_SCHEMA_RECORD_KINDS_H
#define PRMC_SCHEMA_RECORD_KINDS_H

#include "prmc/schema/schema.h"

extern const Kind kPlainItem, kDestination, kTextItem, kMediaItem, kPaperSource, kCollateItem, kOption,
    kTabPaper, kResolution, kOutputPaper, kPaper, kWatermark, kMachine, kTable, kRange, kCountry;

extern const Rows<EntryRow> kDeviceEntries, kPaperEntries, kFinishingEntries, kOutputEntries,
    kTraySelectionEntries, kColorEntries, kDialogTextEntries, kOptionEntries;

constexpr Limits kNone = {};
constexpr Limits kFlag = {0, 1};
constexpr Limits kU8 = {0, UINT8_MAX};
constexpr Limits kU16 = {0, UINT16_MAX};
constexpr Limits kU32 = {0, UINT32_MAX};
constexpr Limits kS16 = {INT16_MIN, INT16_MAX};
constexpr Limits kS32 = {INT32_MIN, INT32_MAX};
constexpr Limits kPlus16 = {0, INT16_MAX};
// Shifts in tenths of a millimetre and in millimetres. The settings also store them as thousandths of an inch
// in signed 16 bits.
constexpr Limits kShift = {-8322, 8322};
constexpr Limits kShiftM = {-832, 832};

#endif
