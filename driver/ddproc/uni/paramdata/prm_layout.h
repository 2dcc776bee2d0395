// Layout of the parameter data file TELMAR_D.PRM: the header, the entry chain and every kind of record that
// an entry may have. Used by the reader, the builders and the compiler of such files; includes no platform
// header.
//
// All numbers are little-endian, all offsets absolute from the start of the file. Text fields are 8-bit and
// may lack their terminator when they are full. Fields called `unread` are for the producer of the file.
// Geometry sets and numbered values: meaning unknown, carried through.
#ifndef PARAMDATA_PRM_LAYOUT_H
#define PARAMDATA_PRM_LAYOUT_H

#include <cstddef>
#include <cstdint>

// Limits far above those of any model. They limit how long a load takes, which happens under the loader's
// lock, since a hostile file may lead to the same bytes again and again.
constexpr uint32_t kPrmMaxFileBytes = 8u << 20;  // a larger file is not read
constexpr uint32_t kPrmMaxElements = 1u << 16;   // entries, items of a list, rows of a table
constexpr uint32_t kPrmMaxUnbuffered = 1u << 10; // the same where each read goes to the file

constexpr uint32_t kPrmFirstEntry = 8;   // offset of the first entry, directly after the header
constexpr size_t kPrmMaxTextBytes = 290; // longest 8-bit text that is read, without its terminator
constexpr size_t kPrmMaxTextChars = 291; // longest UTF-16 text that is read, without its terminator

#pragma pack(push, 1)

struct PrmHeader {
    uint32_t unread;
    uint32_t chainEnd; // a next-entry offset at or beyond this one ends the chain
};
static_assert(sizeof(PrmHeader) == 8 && offsetof(PrmHeader, chainEnd) == 4);

// One named entry. Its PrmEntryInfo follows directly.
struct PrmEntry {
    char name[32];
    uint32_t firstItem; // start of the item chain
    uint8_t unread[12];
    uint32_t next; // offset of the next entry
};
static_assert(sizeof(PrmEntry) == 52 && offsetof(PrmEntry, firstItem) == 32
              && offsetof(PrmEntry, next) == 48);

struct PrmEntryInfo {
    uint32_t itemCount;
    uint32_t defaultRecord; // a record of the items' kind; its first field is the default item's key offset
    uint32_t itemOffsets;   // array of itemCount offsets, in item order
};
static_assert(sizeof(PrmEntryInfo) == 12 && offsetof(PrmEntryInfo, defaultRecord) == 4
              && offsetof(PrmEntryInfo, itemOffsets) == 8);

// Every item record starts with these fields.
struct PrmItemHead {
    uint32_t key; // offset of an 8-bit text
    uint32_t unread;
    uint32_t display; // offset of a UTF-16 text
};
static_assert(sizeof(PrmItemHead) == 12 && offsetof(PrmItemHead, display) == 8);

// Plain item.
struct PrmItemDescriptor {
    PrmItemHead head;
    uint32_t next; // the item chain: offset of the next item's descriptor
};
static_assert(sizeof(PrmItemDescriptor) == 16 && offsetof(PrmItemDescriptor, next) == 12);

// Item with text: finishing, media attributes, output, locations.
struct PrmTextItem {
    PrmItemHead head;
    uint32_t value;
    char text[128];
    uint8_t unread[4];
};
static_assert(sizeof(PrmTextItem) == 148 && offsetof(PrmTextItem, value) == 12
              && offsetof(PrmTextItem, text) == 16);

// Tray and media item; the text area has one text, or two of 64 bytes (collate).
struct PrmMediaItem {
    PrmItemHead head;
    uint32_t value;
    uint8_t unread[8];
    uint32_t extra; // enable flag (paper sources) or extra value (collate)
    union {
        char text[128];
        char texts[2][64];
    };
};
static_assert(sizeof(PrmMediaItem) == 156 && offsetof(PrmMediaItem, value) == 12
              && offsetof(PrmMediaItem, extra) == 24 && offsetof(PrmMediaItem, text) == 28);

// Tab paper; of the single options only the default's value is read.
struct PrmTabPaper {
    PrmItemHead head;
    uint32_t value;
    uint32_t values[3];
};
static_assert(sizeof(PrmTabPaper) == 28 && offsetof(PrmTabPaper, value) == 12
              && offsetof(PrmTabPaper, values) == 16);

struct PrmResolution {
    PrmItemHead head;
    uint8_t unread[8];
    uint32_t values[3];
};
static_assert(sizeof(PrmResolution) == 32 && offsetof(PrmResolution, values) == 20);
constexpr size_t kResolutionNumberAt = 5; // where the number is looked for in a key: "Reso_600dpi"

struct PrmOutputPaper {
    PrmItemHead head;
    uint8_t unread1[4];
    uint32_t value;
    uint8_t unread2[4];
    uint32_t width; // tenths of a millimetre, as the length; read for the default record only
    uint32_t length;
    uint8_t unread3[276];
    uint32_t secondDisplay; // offset of a UTF-16 text
    uint32_t values[2];
};
static_assert(sizeof(PrmOutputPaper) == 320 && offsetof(PrmOutputPaper, value) == 16
              && offsetof(PrmOutputPaper, width) == 24 && offsetof(PrmOutputPaper, length) == 28
              && offsetof(PrmOutputPaper, secondDisplay) == 308 && offsetof(PrmOutputPaper, values) == 312);

// In the device table's paper sizes a geometry set, and the margins, count only when their flag is not 0; the
// default settings take the margins in any case.
struct PrmPaper {
    PrmItemHead head;
    uint8_t unread1[4];
    uint32_t value;
    uint8_t unread2[4];
    uint32_t width; // tenths of a millimetre, as the length
    uint32_t length;
    uint32_t furtherSizes[2];
    uint32_t hasGeometry1;
    uint8_t geometry1[72];
    uint8_t unread3[8];
    uint32_t hasGeometry2;
    uint32_t geometry2[2];
    uint32_t margins[4];
    uint8_t geometry4[120];
    uint32_t geometry5[4];
    uint32_t hasMargins;
    uint32_t hasGeometry4;
    uint32_t hasGeometry5;
    uint8_t unread4[8];
    uint32_t secondDisplay; // offset of a UTF-16 text
    char text[128];
    uint32_t values[2];
    char shortName[32];
    uint32_t longValues[3];
    char longText[128];
};
static_assert(sizeof(PrmPaper) == 620 && offsetof(PrmPaper, value) == 16 && offsetof(PrmPaper, width) == 24
              && offsetof(PrmPaper, length) == 28 && offsetof(PrmPaper, furtherSizes) == 32
              && offsetof(PrmPaper, hasGeometry1) == 40 && offsetof(PrmPaper, geometry1) == 44
              && offsetof(PrmPaper, hasGeometry2) == 124 && offsetof(PrmPaper, geometry2) == 128
              && offsetof(PrmPaper, margins) == 136 && offsetof(PrmPaper, geometry4) == 152
              && offsetof(PrmPaper, geometry5) == 272 && offsetof(PrmPaper, hasMargins) == 288
              && offsetof(PrmPaper, hasGeometry4) == 292 && offsetof(PrmPaper, hasGeometry5) == 296
              && offsetof(PrmPaper, secondDisplay) == 308 && offsetof(PrmPaper, text) == 312
              && offsetof(PrmPaper, values) == 440 && offsetof(PrmPaper, shortName) == 448
              && offsetof(PrmPaper, longValues) == 480 && offsetof(PrmPaper, longText) == 492);

struct PrmWatermark {
    PrmItemHead head;
    uint8_t unread1[8];
    uint32_t name; // offset of a UTF-16 text, as the other two
    uint8_t unread2[8];
    uint32_t text;
    uint8_t unread3[8];
    uint32_t font;
    uint32_t values1[2];
    uint32_t color; // 0x00BBGGRR
    uint32_t value2;
    uint8_t block[8];
    uint32_t value3;
    uint8_t unread4[4];
};
static_assert(sizeof(PrmWatermark) == 80 && offsetof(PrmWatermark, name) == 20
              && offsetof(PrmWatermark, text) == 32 && offsetof(PrmWatermark, font) == 44
              && offsetof(PrmWatermark, values1) == 48 && offsetof(PrmWatermark, color) == 56
              && offsetof(PrmWatermark, value2) == 60 && offsetof(PrmWatermark, block) == 64
              && offsetof(PrmWatermark, value3) == 72);

// Name/value tables: the entry's item offset array has one element, which leads to the header, the rows
// follow one another.
struct PrmTableHeader {
    uint32_t rowCount;
    uint32_t unread;
    uint32_t firstRow;
};
static_assert(sizeof(PrmTableHeader) == 12 && offsetof(PrmTableHeader, firstRow) == 8);

struct PrmTableRow {
    char name[32];
    char value[32];
};
static_assert(sizeof(PrmTableRow) == 64 && offsetof(PrmTableRow, value) == 32);

// Numeric block of a range entry, directly after its PrmEntryInfo.
struct PrmRange {
    uint8_t unread[3][12];
    uint32_t valueB; // device table range B
    uint32_t valueA; // device table range A
    uint32_t defaultValue;
};
static_assert(sizeof(PrmRange) == 48 && offsetof(PrmRange, valueB) == 36 && offsetof(PrmRange, valueA) == 40
              && offsetof(PrmRange, defaultValue) == 44);

// Machine information: an item and the sub-records that it leads to.
struct PrmMachine {
    char name[16];
    uint32_t detailCount;
    uint32_t firstDetail; // offset of the first PrmMachineDetail; they follow one another
};
static_assert(sizeof(PrmMachine) == 24 && offsetof(PrmMachine, detailCount) == 16
              && offsetof(PrmMachine, firstDetail) == 20);

struct PrmMachineDetail {
    char texts[2][16];
};
static_assert(sizeof(PrmMachineDetail) == 32);

struct PrmCountry {
    uint32_t value;
    uint32_t unread;
};
static_assert(sizeof(PrmCountry) == 8);

#pragma pack(pop)

#endif
