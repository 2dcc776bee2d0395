// Parameter data files for tests, built byte by byte: texts, records and entries are appended and linked; a
// test may then overwrite any byte. Shares no code with the compiler of such files.
#ifndef SUPPORT_PRM_IMAGE_H
#define SUPPORT_PRM_IMAGE_H

#include "paramdata/device_table.h"
#include "paramdata/prm_readers.h"
#include "support/compiled_in.h"
#include "support/raw_bytes.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <vector>

// The parts of a text between the separators.
std::vector<std::string> Split(const std::string& text, char separator);

struct PrmImage {
    PrmImage(); // the header and, at offset 8, an entry "First" without items

    // Each appends one thing and returns its offset.
    uint32_t Put(const void* record, size_t size);
    uint32_t Put(const RawBytes& record) { return Put(record.bytes.data(), record.bytes.size()); }
    uint32_t Text(const std::string& text); // texts are filled up to a multiple of 4 bytes
    uint32_t Wide(const wchar_t* text);
    uint32_t Entry(const std::string& name, const std::vector<uint32_t>& itemOffsets = {}, uint32_t firstItem = 0,
                   uint32_t defaultRecord = 0);
    // A name/value table from rows "Name=value", separated by semicolons.
    uint32_t Table(const std::string& name, const std::string& rows);
    uint32_t Range(const std::string& name, uint32_t at36, uint32_t at40, uint32_t at44);
    uint32_t StringValue(const std::string& name, const std::string& value);

    // The first fields of an item, and their texts.
    PrmItemHead Head(const std::string& key, const wchar_t* display = L"") { return {Text(key), 0, Wide(display)}; }

    // Items of the most common kinds.
    PrmItemDescriptor Plain(const std::string& key, const wchar_t* display = L"") { return {Head(key, display), 0}; }
    PrmTextItem WithText(const std::string& key, const wchar_t* display, uint32_t value, const std::string& text);
    PrmMediaItem Media(const std::string& key, const wchar_t* display, uint32_t value, uint32_t extra,
                       const std::string& text);

    // An entry with records of one kind. Plain items are also linked into the item chain.
    template <typename Record>
    uint32_t Items(const std::string& name, const std::vector<Record>& records) {
        std::vector<uint32_t> offsets;
        for (const Record& record : records)
            offsets.push_back(Put(&record, sizeof(record)));
        if constexpr (std::is_same_v<Record, PrmItemDescriptor>)
            for (size_t i = 0; i + 1 < offsets.size(); ++i)
                At<PrmItemDescriptor>(offsets[i]).next = offsets[i + 1];
        return Entry(name, offsets, offsets.empty() ? 0 : offsets[0]);
    }

    // Gives an entry a default record.
    void SetDefault(uint32_t entry, uint32_t record) { At<PrmEntryInfo>(entry + 52).defaultRecord = record; }

    // The record at an offset, to be overwritten.
    template <typename Record>
    Record& At(uint32_t offset) {
        static_assert(alignof(Record) == 1);
        return reinterpret_cast<Record&>(bytes.at(offset));
    }
    uint32_t Word(uint32_t offset) const { return NumberAt<uint32_t>(bytes.data(), offset); }
    void SetWord(uint32_t offset, uint32_t value) { memcpy(&bytes.at(offset), &value, sizeof(value)); }
    uint32_t Size() const { return static_cast<uint32_t>(bytes.size()); }

    std::vector<uint8_t> bytes;
    uint32_t lastEntry = 0;
};

// A file of its own in the current folder; removed at the end.
struct TemporaryFile {
    explicit TemporaryFile(const std::vector<uint8_t>& bytes);
    ~TemporaryFile() { remove(path.c_str()); }
    TemporaryFile(const TemporaryFile&) = delete;

    std::string path;
    std::vector<wchar_t> widePath; // terminated
};

// The image as an open parameter data file.
struct OpenedImage {
    explicit OpenedImage(const PrmImage& image) : disk(image.bytes), file(PrmOpenW(disk.widePath.data())) {}
    ~OpenedImage() { PrmClose(file); }
    PrmFile& operator*() const { return *file; }

    TemporaryFile disk;
    PrmFile* file;
};

// The device table built from the image. The file is closed.
struct BuiltTable {
    explicit BuiltTable(const PrmImage& image) : table(BuildDeviceTable(*OpenedImage(image))) {}
    ~BuiltTable() { FreeDeviceTable(table); }
    BuiltTable(const BuiltTable&) = delete;
    // The list whose pointer is at this offset of the table.
    const uint8_t* List(size_t position) const { return NumberAt<const uint8_t*>(table, position); }

    DeviceTable* table;
};

// Restores the module's tables after a test: building from a file changes them.
struct ParameterDataTest : testing::Test {
    CompiledInTables kept;
};

// The start of every list record, by default of the most common size.
inline RawBytes ListRecord(const std::string& key, uint32_t value, const wchar_t* display, size_t size = 144) {
    const RawBytes record = RawBytes(size).U32(0, static_cast<uint32_t>(size)).Text(4, key).U32(36, value);
    return RawBytes(record).U16(44, 32515).Wide(48, display);
}

// A text of this character, terminated.
inline std::vector<wchar_t> Repeated(wchar_t character, size_t length) {
    std::vector<wchar_t> text(length, character);
    text.push_back(0);
    return text;
}

#endif
