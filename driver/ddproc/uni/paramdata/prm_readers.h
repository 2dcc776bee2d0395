// Typed readers of the parameter data file: records, texts, ranges, the items of an entry, numbers in texts.
#ifndef PARAMDATA_PRM_READERS_H
#define PARAMDATA_PRM_READERS_H

#include "base/text.h"
#include "paramdata/prm_file.h"

// Room for the longest text and its terminator.
using PrmText = char[kPrmMaxTextBytes + 1];
using PrmWideText = wchar_t[kPrmMaxTextChars + 1];

// Reads a record, or one value, of this size. True when at least one byte was read; the rest of the record
// keeps its contents, so callers clear it first.
template <typename Record>
bool PrmReadRecord(const PrmFile& file, uint64_t offset, Record& record) {
    uint32_t delivered = 0;
    return PrmRead(file, &record, sizeof(Record), offset, delivered) && delivered > 0;
}

// A record of the file, without a copy where the file is in memory. Otherwise it is read into `buffer`; bytes
// that the file lacks are 0.
template <typename Record>
const Record& PrmRecordAt(const PrmFile& file, uint64_t offset, Record& buffer) {
    static_assert(alignof(Record) == 1);
    const void* record = PrmBytesAt(file, &buffer, sizeof(buffer), offset);
    return record != nullptr ? *static_cast<const Record*>(record) : buffer;
}

// A text up to its terminator or the end of the file, without a copy where the file is in memory. Otherwise
// it is read into `buffer`. Null when a read fails or the text is longer than kPrmMaxTextBytes.
const char* PrmTextAt(const PrmFile& file, uint64_t offset, PrmText& buffer);

// The key of an item; empty when it can't be read.
inline const char* PrmKeyAt(const PrmFile& file, const PrmItemHead& item, PrmText& buffer) {
    const char* key = PrmTextAt(file, item.key, buffer);
    return key != nullptr ? key : "";
}

// As PrmTextAt, for at most kPrmMaxTextChars characters: a longer text has no terminator. Null when the text
// is empty or a read fails.
const wchar_t* PrmWideTextAt(const PrmFile& file, uint64_t offset, PrmWideText& buffer);

// Read a text into a field, cut to fit. False, with the field unchanged, when there is none.
template <size_t Capacity>
bool PrmReadString(const PrmFile& file, uint64_t offset, char (&to)[Capacity]) {
    PrmText buffer;
    const char* text = PrmTextAt(file, offset, buffer);
    if (text != nullptr)
        CopyText(to, text);
    return text != nullptr;
}
template <size_t Capacity>
bool PrmReadWideString(const PrmFile& file, uint64_t offset, wchar_t (&to)[Capacity]) {
    static_assert(Capacity <= kPrmMaxTextChars + 1); // nothing is read behind the longest text
    PrmWideText buffer;
    const wchar_t* text = PrmWideTextAt(file, offset, buffer);
    if (text != nullptr)
        CopyText(to, text);
    return text != nullptr;
}

// Reads the three values of a numeric block: [0] range A, [1] range B, [2] the default. False, with the
// values unchanged, when a field is missing.
bool PrmReadRange(const PrmFile& file, uint64_t offset, uint32_t (&values)[3]);

// The key of the entry's default item; the destination is cleared first. False when the entry is missing or
// the key has capacity - 1 bytes or more. A key that can't be read is empty, and the result true.
bool PrmReadStringValue(const PrmFile& file, const char* name, char* to, size_t capacity);

// What an entry says of its items. Nothing of it is checked.
struct PrmItems {
    uint32_t entry;     // offset of the entry
    uint32_t firstItem; // start of the item chain
    uint32_t count;
    uint32_t defaultRecord;
    uint32_t offsets; // array of `count` item offsets
};

// Finds an entry, for its range, its default or its first item. False when it is missing.
bool PrmFindEntryInfo(const PrmFile& file, const char* name, PrmItems& items);

// Finds an entry for all of its items. False also when it announces more items than PrmMaxElements.
bool PrmFindItems(const PrmFile& file, const char* name, PrmItems& items);

// The range of an entry, as PrmReadRange. False also when the entry is missing.
bool PrmReadEntryRange(const PrmFile& file, const char* name, uint32_t (&values)[3]);

// Offset of the item at this position; 0 beyond the end of the file.
uint32_t PrmItemOffset(const PrmFile& file, const PrmItems& items, uint32_t position);

// Calls visit(head, key) for each plain item of the chain until it returns false. The chain may lead anywhere
// in the file, also backwards: the number of steps is limited by the item count and PrmMaxElements.
template <typename Visit>
void PrmForEachInChain(const PrmFile& file, const PrmItems& items, Visit visit) {
    const uint32_t maxSteps = PrmMaxElements(file, sizeof(PrmItemDescriptor));
    uint32_t offset = items.firstItem;
    for (uint32_t step = 0; step < items.count && step < maxSteps; ++step) {
        PrmItemDescriptor buffer;
        const PrmItemDescriptor& item = PrmRecordAt(file, offset, buffer);
        PrmText keyBuffer;
        if (!visit(item.head, PrmKeyAt(file, item.head, keyBuffer)))
            return;
        offset = item.next;
    }
}

// The display text of an entry's item, cut to `capacity` characters with its terminator; the destination is
// cleared first. False when there is none or an argument is null.
bool PrmGetItemText(const PrmFile& file, const char* entry, const char* itemKey, wchar_t* text,
                    size_t capacity);

// The first run of decimal digits as a number, 0 without one. A sign is ignored.
uint32_t PrmParseFirstNumber(const char* text);

// The first and the second run of decimal digits, as 16-bit numbers. A destination is unchanged when its run
// is missing.
void PrmParseTwoNumbers(const char* text, uint16_t& first, uint16_t& second);

#endif
