// Typed readers of the parameter data file. They differ in what counts as success, and callers rely on it.
// Every caller clears the destination first: a read that delivers nothing leaves zeros.
#ifndef PARAMDATA_PRM_READERS_H
#define PARAMDATA_PRM_READERS_H

#include "base/text.h"
#include "paramdata/prm_file.h"

// Room that a text reader needs: the longest text and its terminator.
using PrmText = char[kPrmMostTextBytes + 1];
using PrmWideText = wchar_t[kPrmMostTextChars + 1];

// True when the offset is not 0 and at least one byte arrived.
bool PrmReadEntry(const PrmFile& file, uint64_t offset, PrmEntry& entry);

// True when at least one byte arrived.
bool PrmReadEntryInfo(const PrmFile& file, uint64_t offset, PrmEntryInfo& info);
template <typename Record>
bool PrmReadRecord(const PrmFile& file, uint64_t offset, Record& record) {
    return PrmRead(file, &record, sizeof(Record), offset) > 0;
}
inline constexpr auto& PrmReadRecord16 = PrmReadRecord<PrmItemDescriptor>;
inline constexpr auto& PrmReadRecord28 = PrmReadRecord<PrmTabPaper>;
inline constexpr auto& PrmReadRecord32 = PrmReadRecord<PrmResolution>;
inline constexpr auto& PrmReadRecord148 = PrmReadRecord<PrmTextItem>;
inline constexpr auto& PrmReadRecord156 = PrmReadRecord<PrmMediaItem>;
inline constexpr auto& PrmReadRecord320 = PrmReadRecord<PrmOutputPaper>;
inline constexpr auto& PrmReadRecord620 = PrmReadRecord<PrmPaper>;

// True unless the read failed: beyond the end is success, with nothing delivered.
bool PrmReadBlock(const PrmFile& file, uint64_t offset, uint32_t count, void* to);
bool PrmReadDword(const PrmFile& file, uint64_t offset, uint32_t& to);

// Text up to its terminator; the end of the file terminates too. False, and `to` untouched, when a read
// failed or the text is longer than kPrmMostTextBytes.
bool PrmReadString(const PrmFile& file, uint64_t offset, PrmText& to);

// Text up to its terminator, or its first kPrmMostTextChars characters. False, and `to` untouched, when it is
// empty or a read failed.
bool PrmReadWideString(const PrmFile& file, uint64_t offset, PrmWideText& to);

// The same into a field: cut to fit; a text that can't be read, and an empty display name, leave it as it
// was.
template <size_t Capacity>
void PrmReadKey(const PrmFile& file, uint64_t offset, char (&key)[Capacity]) {
    PrmText text;
    if (PrmReadString(file, offset, text))
        CopyText(key, text);
}
template <size_t Capacity>
void PrmReadDisplay(const PrmFile& file, uint64_t offset, wchar_t (&display)[Capacity]) {
    PrmWideText text;
    if (PrmReadWideString(file, offset, text))
        CopyText(display, text);
}

// The three values of a numeric block: [0] range A, [1] range B, [2] the default. False when any field is
// missing.
bool PrmReadRange(const PrmFile& file, uint64_t offset, uint32_t (&values)[3]);

// Key of the entry's default item. Clears the destination first. False when the entry is missing or the key
// has capacity - 1 bytes or more; a key that can't be read is empty and succeeds.
bool PrmReadStringValue(const PrmFile& file, const char* name, char* to, size_t capacity);

// An entry that was found: where its items are. The count fits a file of this size.
struct PrmItems {
    uint32_t entry;     // offset of the entry
    uint32_t firstItem; // start of the item chain
    uint32_t count;
    uint32_t defaultRecord;
    uint32_t offsets; // array of `count` item offsets
};

// Finds an entry and reads where its items are. False when it is missing; an entry that announces more items
// than the file could hold counts as missing.
bool PrmFindItems(const PrmFile& file, const char* name, PrmItems& items);

// The range of an entry, as PrmReadRange: its block lies behind the entry and its info. False, and the values
// untouched, when the entry or a field is missing.
bool PrmReadEntryRange(const PrmFile& file, const char* name, uint32_t (&values)[3]);

// Offset of the item at this position; 0 beyond the end of the file.
uint32_t PrmItemOffset(const PrmFile& file, const PrmItems& items, uint32_t position);

// Calls visit(head, key) for each plain item along the item chain until it returns false. The chain may lead
// anywhere in the file, backwards too: only the number of steps is bounded, by the item count and by what the
// file could hold.
template <typename Visit>
void PrmForEachInChain(const PrmFile& file, const PrmItems& items, Visit visit) {
    const uint32_t mostSteps = file.size / sizeof(PrmItemDescriptor);
    uint32_t offset = items.firstItem;
    for (uint32_t step = 0; step < items.count && step < mostSteps; ++step) {
        PrmItemDescriptor item = {};
        PrmReadRecord16(file, offset, item);
        PrmText key = {};
        PrmReadString(file, item.head.key, key);
        if (!visit(item.head, key))
            return;
        offset = item.next;
    }
}

// Display text of an entry's item, cut to `capacity` characters with its terminator. False, and an empty
// text, when there is none. Null arguments answer false.
bool PrmGetItemText(const PrmFile& file, const char* entry, const char* itemKey, wchar_t* text,
                    size_t capacity);

// First run of decimal digits as a number, 0 without one. A sign is not looked at.
uint32_t PrmParseFirstNumber(const char* text);

// First and second run of decimal digits, as 16-bit numbers. What is not found leaves its destination as it
// was.
void PrmParseTwoNumbers(const char* text, uint16_t& first, uint16_t& second);

#endif
