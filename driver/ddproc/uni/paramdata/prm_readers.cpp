// Typed readers of the parameter data file.
#include "paramdata/prm_readers.h"

#include "base/text.h"

#include <cstring>

const char* PrmTextAt(const PrmFile& file, uint64_t offset, PrmText& buffer) {
    const auto* text = static_cast<const char*>(PrmBytesAt(file, buffer, sizeof(buffer), offset));
    return text != nullptr && memchr(text, 0, sizeof(buffer)) != nullptr ? text : nullptr;
}

const wchar_t* PrmWideTextAt(const PrmFile& file, uint64_t offset, PrmWideText& buffer) {
    constexpr uint32_t kMaxBytes = kPrmMaxTextChars * sizeof(wchar_t);
    const void* text = PrmBytesAt(file, buffer, kMaxBytes, offset);
    if (text != nullptr && reinterpret_cast<uintptr_t>(text) % alignof(wchar_t) != 0)
        text = memcpy(buffer, text, kMaxBytes);
    const auto* characters = static_cast<const wchar_t*>(text);
    return characters != nullptr && characters[0] != 0 ? characters : nullptr;
}

bool PrmReadRange(const PrmFile& file, uint64_t offset, uint32_t (&values)[3]) {
    PrmRange range = {};
    uint32_t delivered = 0;
    if (!PrmRead(file, &range, sizeof(range), offset, delivered)
        || delivered <= offsetof(PrmRange, defaultValue))
        return false;
    values[0] = range.valueA;
    values[1] = range.valueB;
    values[2] = range.defaultValue;
    return true;
}

bool PrmReadStringValue(const PrmFile& file, const char* name, char* to, size_t capacity) {
    memset(to, 0, capacity);
    PrmItems items;
    if (!PrmFindEntryInfo(file, name, items))
        return false;
    PrmItemDescriptor record = {};
    PrmReadRecord(file, items.defaultRecord, record);
    PrmText text = {};
    PrmReadString(file, record.head.key, text);
    const size_t length = TextLength(text);
    if (length + 1 >= capacity)
        return false;
    memcpy(to, text, length);
    return true;
}

bool PrmFindEntryInfo(const PrmFile& file, const char* name, PrmItems& items) {
    const uint32_t offset = PrmFindEntry(file, name);
    PrmEntry entry = {};
    if (offset == 0 || !PrmReadRecord(file, offset, entry))
        return false;
    PrmEntryInfo info = {};
    PrmReadRecord(file, offset + uint64_t{sizeof(PrmEntry)}, info);
    items = {offset, entry.firstItem, info.itemCount, info.defaultRecord, info.itemOffsets};
    return true;
}

bool PrmFindItems(const PrmFile& file, const char* name, PrmItems& items) {
    return PrmFindEntryInfo(file, name, items) && items.count <= PrmMaxElements(file, sizeof(uint32_t));
}

bool PrmReadEntryRange(const PrmFile& file, const char* name, uint32_t (&values)[3]) {
    PrmItems items;
    return PrmFindEntryInfo(file, name, items)
           && PrmReadRange(file, items.entry + uint64_t{sizeof(PrmEntry) + sizeof(PrmEntryInfo)}, values);
}

uint32_t PrmItemOffset(const PrmFile& file, const PrmItems& items, uint32_t position) {
    uint32_t offset = 0;
    PrmReadRecord(file, items.offsets + uint64_t{sizeof(offset)} * position, offset);
    return offset;
}

bool PrmGetItemText(const PrmFile& file, const char* entry, const char* itemKey, wchar_t* text,
                    size_t capacity) {
    if (entry == nullptr || itemKey == nullptr || text == nullptr || capacity == 0)
        return false;
    memset(text, 0, capacity * sizeof(wchar_t));
    PrmItems items;
    if (!PrmFindItems(file, entry, items))
        return false;
    PrmForEachInChain(file, items, [&](const PrmItemHead& item, const char* key) {
        constexpr size_t kMaxKeyBytes = 127;
        if (TextLength(key) > kMaxKeyBytes || !SameText(key, itemKey))
            return true;
        PrmWideText display = {};
        PrmReadWideString(file, item.display, display);
        const size_t length = TextLength(display);
        memcpy(text, display, (length < capacity ? length : capacity - 1) * sizeof(wchar_t));
        return false;
    });
    return text[0] != 0;
}

uint32_t PrmParseFirstNumber(const char* text) {
    while (*text != 0 && !IsDigit(*text))
        ++text;
    uint32_t number = 0;
    for (; IsDigit(*text); ++text)
        number = number * 10 + static_cast<uint32_t>(*text - '0');
    return number;
}

void PrmParseTwoNumbers(const char* text, uint16_t& first, uint16_t& second) {
    uint16_t* const destinations[] = {&first, &second};
    for (uint16_t* destination : destinations) {
        while (*text != 0 && !IsDigit(*text))
            ++text;
        if (*text == 0)
            return;
        *destination = static_cast<uint16_t>(PrmParseFirstNumber(text));
        while (IsDigit(*text))
            ++text;
    }
}
