// What the module asks printers about by SNMP: the records of the static tables, which callers read through
// the exports, and those of questions and answers. Layouts are shared with other modules:
// fields never move. Texts are 8-bit and terminated.
#ifndef DEVCOMM_QUERIES_QUERY_TABLES_H
#define DEVCOMM_QUERIES_QUERY_TABLES_H

#include <cstddef>
#include <cstdint>

using QueryKey = char[32];
using QueryText = char[256];

// What makes a reply match the expected text; any other kind never matches.
constexpr int32_t kCompareExists = 0;
constexpr int32_t kCompareNumber = 1;
constexpr int32_t kCompareText = 2;
constexpr int32_t kCompareOid = 3;

// How a supply is evaluated.
constexpr int32_t kSupplyNone = 0;
constexpr int32_t kSupplyPercentage = 1;
constexpr int32_t kSupplyLevel = 2;
constexpr int32_t kSupplyFixed = 3;
constexpr int32_t kSupplyEnd = 999; // of the list

// What is known of a supply, and so what its value is. Only a percentage has a colour.
constexpr int32_t kStateUnknown = 0; // value 0
constexpr int32_t kStatePercent = 1; // value in % of its capacity, 0 to 100
constexpr int32_t kStateLevel = 2;   // value one of the levels below
constexpr int32_t kStateFixed = 3;   // nothing that printers are asked about: value 0

// Values in state kStateLevel.
constexpr int32_t kLevelNotTold = 0;
constexpr int32_t kLevelEmpty = 1;
constexpr int32_t kLevelNearlyEmpty = 2;
constexpr int32_t kLevelNearlyFull = 3;
constexpr int32_t kLevelFull = 4;
constexpr int32_t kLevelInOrder = 5;

#pragma pack(push, 1)

struct ModelCheckInfo {
    int32_t enabled; // 0: every device passes for this model
    QueryText oid;
    int32_t comparison;
    QueryText expected;
};
static_assert(sizeof(ModelCheckInfo) == 520 && offsetof(ModelCheckInfo, oid) == 4
              && offsetof(ModelCheckInfo, comparison) == 260 && offsetof(ModelCheckInfo, expected) == 264);

struct OptionValueRecord {
    QueryKey name; // the answer
    QueryText oid; // empty: the answer without asking
    QueryKey suffix;
    int32_t comparison;
    QueryText expected;
};
static_assert(sizeof(OptionValueRecord) == 580 && offsetof(OptionValueRecord, oid) == 32
              && offsetof(OptionValueRecord, suffix) == 288 && offsetof(OptionValueRecord, comparison) == 320
              && offsetof(OptionValueRecord, expected) == 324);

struct OptionRecord {
    QueryKey key;
    int32_t valueCount;
    int32_t padding;
    const OptionValueRecord* values;
};
static_assert(sizeof(OptionRecord) == 48 && offsetof(OptionRecord, valueCount) == 32
              && offsetof(OptionRecord, values) == 40);

struct OptionReqInfo {
    int32_t count;
    int32_t padding;
    const OptionRecord* options;
};
static_assert(sizeof(OptionReqInfo) == 16 && offsetof(OptionReqInfo, options) == 8);

struct MrkSupItem {
    QueryKey name;
    int32_t kind;
    int32_t callerFlag; // not read here
    int32_t levelFlag;  // not 0: it fills up (kSupplyLevel)
    QueryKey suffix;
    uint32_t color; // COLORREF, 0x00BBGGRR
};
static_assert(sizeof(MrkSupItem) == 80 && offsetof(MrkSupItem, kind) == 32
              && offsetof(MrkSupItem, callerFlag) == 36 && offsetof(MrkSupItem, levelFlag) == 40
              && offsetof(MrkSupItem, suffix) == 44 && offsetof(MrkSupItem, color) == 76);

struct MrkSupReqInfo {
    QueryText capacityOid;
    QueryText levelOid;
    int32_t count; // with the closing record
    int32_t padding;
    const MrkSupItem* items;
};
static_assert(sizeof(MrkSupReqInfo) == 528 && offsetof(MrkSupReqInfo, levelOid) == 256
              && offsetof(MrkSupReqInfo, count) == 512 && offsetof(MrkSupReqInfo, items) == 520);

struct StorageNameRecord {
    QueryKey name;
    int32_t code;
};
static_assert(sizeof(StorageNameRecord) == 36 && offsetof(StorageNameRecord, code) == 32);

struct SelectorRecord {
    QueryText oid;
    int32_t valueCount;
    int32_t padding;
    const int32_t* values; // each makes a request of its own
};
static_assert(sizeof(SelectorRecord) == 272 && offsetof(SelectorRecord, valueCount) == 256
              && offsetof(SelectorRecord, values) == 264);

// What printers store: overlays with a selector per storage, colour profiles with a selector per list.
template <size_t kSelectors>
struct StoredResourceReqInfo {
    QueryText firstOid;
    QueryText secondOid;
    QueryText storageCodeOid;
    int32_t storageCount;
    int32_t padding;
    const StorageNameRecord* storages;
    QueryKey defaultStorage;
    SelectorRecord selectors[kSelectors];
};
constexpr size_t kOverlaySelectors = 2;
constexpr size_t kProfileSelectors = 3;
using OverlayReqInfo = StoredResourceReqInfo<kOverlaySelectors>;
using ProfileReqInfo = StoredResourceReqInfo<kProfileSelectors>;
static_assert(sizeof(OverlayReqInfo) == 1360 && sizeof(ProfileReqInfo) == 1632
              && offsetof(ProfileReqInfo, secondOid) == 256 && offsetof(ProfileReqInfo, storageCodeOid) == 512
              && offsetof(ProfileReqInfo, storageCount) == 768 && offsetof(ProfileReqInfo, storages) == 776
              && offsetof(ProfileReqInfo, defaultStorage) == 784
              && offsetof(ProfileReqInfo, selectors) == 816);

// The caller's question and the module's answer about one option.
struct OptionRequestItem {
    QueryKey key;
    QueryKey value; // empty: no answer
};
static_assert(sizeof(OptionRequestItem) == 64 && offsetof(OptionRequestItem, value) == 32);

// The same about one supply.
struct MrkSupRequestItem {
    QueryKey name;
    int32_t state;  // kState..., which says what the value is
    int32_t value;  // % or kLevel...
    uint32_t color; // COLORREF, 0x00BBGGRR; 0 except in state kStatePercent
};
static_assert(sizeof(MrkSupRequestItem) == 44 && offsetof(MrkSupRequestItem, state) == 32
              && offsetof(MrkSupRequestItem, value) == 36 && offsetof(MrkSupRequestItem, color) == 40);

// One overlay or colour profile.
struct StoredResourceEntry {
    char first[128];
    char second[128];
    QueryKey storage;
};
static_assert(sizeof(StoredResourceEntry) == 288 && offsetof(StoredResourceEntry, second) == 128
              && offsetof(StoredResourceEntry, storage) == 256);

// A list in a result block: its entries lie in the same block.
struct StoredResourceList {
    int32_t count;
    int32_t padding;
    StoredResourceEntry* entries;
};

struct OverlayInfo {
    StoredResourceList list;
};
static_assert(sizeof(OverlayInfo) == 16 && offsetof(StoredResourceList, entries) == 8);

struct ProfileInfo {
    StoredResourceList lists[kProfileSelectors];
};
static_assert(sizeof(ProfileInfo) == 48);

#pragma pack(pop)

#endif
