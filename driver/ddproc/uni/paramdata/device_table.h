// Chief header of the parameter data: the layouts of the device table and of every list record that it refers
// to. The user-interface module builds and reads the same records, so no field moves.
//
// Every list is one block of the global heap, owned by the device table; it ends at the first record whose
// key is empty. Keys and texts are 8-bit, display names UTF-16, all terminated.
#ifndef PARAMDATA_DEVICE_TABLE_H
#define PARAMDATA_DEVICE_TABLE_H

#include "base/rows.h"
#include "paramdata/feature_switches.h"
#include "paramdata/input_slots.h"

#include <cstddef>
#include <cstdint>

constexpr uint16_t kItemIcon = 32515; // the system's warning icon

#pragma pack(push, 1)

// What every item and list record starts with.
struct ItemHead {
    uint32_t size; // of the whole record, in bytes
    char key[32];
    uint32_t value;    // the number stored in the settings when the item is chosen
    uint32_t iconFlag; // not 0: a dialog draws the entry with its icon
    uint16_t icon;
    uint16_t reserved;
};
static_assert(sizeof(ItemHead) == 48 && offsetof(ItemHead, key) == 4 && offsetof(ItemHead, value) == 36
              && offsetof(ItemHead, iconFlag) == 40 && offsetof(ItemHead, icon) == 44
              && offsetof(ItemHead, reserved) == 46);

// One selectable item of a setting.
struct ItemRecord {
    ItemHead head;
    wchar_t display[48];
};
static_assert(sizeof(ItemRecord) == 144 && offsetof(ItemRecord, display) == 48);

// Output trays, output methods, locations, transparency interleave, paper arrangement.
struct TextItemRecord {
    ItemHead head;
    wchar_t display[48];
    char text[128];
};
static_assert(sizeof(TextItemRecord) == 272 && offsetof(TextItemRecord, display) == 48
              && offsetof(TextItemRecord, text) == 144);

// Media attributes and most finishing features.
struct CompactItemRecord {
    ItemHead head;
    wchar_t display[32];
    char text[128];
};
static_assert(sizeof(CompactItemRecord) == 240 && offsetof(CompactItemRecord, display) == 48
              && offsetof(CompactItemRecord, text) == 112);

// Hole punch and staples: a compact item with room that this module leaves 0.
struct FinishingItemRecord {
    ItemHead head;
    wchar_t display[32];
    char text[128];
    uint8_t unused[48];
};
static_assert(sizeof(FinishingItemRecord) == 288 && offsetof(FinishingItemRecord, text) == 112
              && offsetof(FinishingItemRecord, unused) == 240);

// One paper source; the value is its bin number. An input tray that the model lacks has an empty key.
struct InputSlotRecord {
    ItemHead head;
    wchar_t display[32];
    char text[128];
    uint8_t unused[16];
};
static_assert(sizeof(InputSlotRecord) == 256 && offsetof(InputSlotRecord, display) == 48
              && offsetof(InputSlotRecord, text) == 112 && offsetof(InputSlotRecord, unused) == 240);

// One tray of the tray-setting dialog's list view.
struct TrayRowRecord {
    ItemHead head;
    wchar_t display[32];
};
static_assert(sizeof(TrayRowRecord) == 112 && offsetof(TrayRowRecord, display) == 48);

// The value is the position in the list.
struct ResolutionRecord {
    ItemHead head;
    wchar_t display[32];
    uint16_t values[3];
    uint16_t number; // from the key's sixth character on
};
static_assert(sizeof(ResolutionRecord) == 120 && offsetof(ResolutionRecord, values) == 112
              && offsetof(ResolutionRecord, number) == 118);

struct TabPaperRecord {
    ItemHead head;
    wchar_t display[48];
    uint32_t values[3];
};
static_assert(sizeof(TabPaperRecord) == 156 && offsetof(TabPaperRecord, values) == 144);

struct CollateRecord {
    ItemHead head;
    uint32_t extra;
    char texts[2][64];
};
static_assert(sizeof(CollateRecord) == 180 && offsetof(CollateRecord, extra) == 48
              && offsetof(CollateRecord, texts) == 52);

struct OutputPaperSizeRecord {
    ItemHead head;
    wchar_t display[48];
    wchar_t displayAgain[48];
    wchar_t secondDisplay[48];
    wchar_t secondDisplayAgain[48];
    uint32_t values[2];
};
static_assert(sizeof(OutputPaperSizeRecord) == 440 && offsetof(OutputPaperSizeRecord, displayAgain) == 144
              && offsetof(OutputPaperSizeRecord, secondDisplay) == 240
              && offsetof(OutputPaperSizeRecord, secondDisplayAgain) == 336
              && offsetof(OutputPaperSizeRecord, values) == 432);

// Lengths are tenths of a millimetre (A4 is 2100 by 2970). A geometry set is 0 where its flag is 0.
struct PaperSizeRecord {
    ItemHead head;
    wchar_t display[48];
    wchar_t displayAgain[48];
    wchar_t secondDisplay[48];
    wchar_t secondDisplayAgain[48];
    char text[128];
    uint32_t width;
    uint32_t length;
    uint32_t flag1;
    uint8_t set1[72];
    uint32_t flag2;
    uint32_t set2[2];
    uint32_t set3[4]; // margins
    uint8_t set4[120];
    uint32_t set5[4];
    uint32_t flag3;
    uint32_t flag4;
    uint32_t flag5;
    uint32_t values[2];
    uint32_t complete; // 1: short name, the three long values and the long text are all there
    char shortName[32];
    uint32_t longValues[3];
    char longText[128];
};
static_assert(sizeof(PaperSizeRecord) == 1004 && offsetof(PaperSizeRecord, displayAgain) == 144
              && offsetof(PaperSizeRecord, secondDisplay) == 240
              && offsetof(PaperSizeRecord, secondDisplayAgain) == 336
              && offsetof(PaperSizeRecord, text) == 432 && offsetof(PaperSizeRecord, width) == 560
              && offsetof(PaperSizeRecord, length) == 564 && offsetof(PaperSizeRecord, flag1) == 568
              && offsetof(PaperSizeRecord, set1) == 572 && offsetof(PaperSizeRecord, flag2) == 644
              && offsetof(PaperSizeRecord, set2) == 648 && offsetof(PaperSizeRecord, set3) == 656
              && offsetof(PaperSizeRecord, set4) == 672 && offsetof(PaperSizeRecord, set5) == 792
              && offsetof(PaperSizeRecord, flag3) == 808 && offsetof(PaperSizeRecord, flag4) == 812
              && offsetof(PaperSizeRecord, flag5) == 816 && offsetof(PaperSizeRecord, values) == 820
              && offsetof(PaperSizeRecord, complete) == 828 && offsetof(PaperSizeRecord, shortName) == 832
              && offsetof(PaperSizeRecord, longValues) == 864 && offsetof(PaperSizeRecord, longText) == 876);

struct MachineDetailRecord {
    char texts[2][16];
};
static_assert(sizeof(MachineDetailRecord) == 32);

// One machine of the machine information table. The details are a block of their own.
struct MachineInfoRecord {
    char name[16];
    uint32_t detailCount; // terminator included
    MachineDetailRecord* details;
};
static_assert(sizeof(MachineInfoRecord) == 28 && offsetof(MachineInfoRecord, detailCount) == 16
              && offsetof(MachineInfoRecord, details) == 20);

// The model as the parameter data file describes it. Fields that the file says nothing of are 0, lists null.
// Ranges A and B hold the block's second and first value; which is the upper bound is the file's matter.
struct DeviceTable {
    uint32_t switches[kFeatureSwitchCount]; // in the order of kFeatureSwitches
    uint16_t copiesA;
    uint16_t copiesB;
    uint16_t paperWidthB; // tenths of a millimetre, as the length; B lies before A here
    uint16_t paperWidthA;
    uint16_t paperLengthB;
    uint16_t paperLengthA;
    uint32_t printRatePpm; // pages per minute
    uint32_t printRate;    // in printRateUnit
    uint8_t printRateUnit; // 2 "CPS", 3 "LPM", 4 "IPM", 1 any other, 0 not given
    uint32_t stapler;
    uint32_t colorDevice;
    uint16_t pdlTypeA;
    uint16_t pdlTypeB;
    uint8_t machineEncryption; // 1 "AES", 2 any other, 0 not given
    uint32_t machineInfoCount; // terminator included
    MachineInfoRecord* machineInfo;
    uint32_t figureType; // 1: multifunction printer
    PaperSizeRecord* paperSizes;
    uint32_t userPaperSize[4]; // width, first further size, length, second further size
    uint32_t userPaperMargins[4];
    uint8_t userPaperSet4[120];
    uint32_t userPaperSet5[4];
    OutputPaperSizeRecord* outputPaperSizes;
    CompactItemRecord* mediaTypes;
    InputSlotRecord* inputTrays;
    TextItemRecord* outputTrays;
    CompactItemRecord* mediaWeights;
    CompactItemRecord* mediaColors;
    ResolutionRecord* resolutions;
    uint32_t reserved;
    uint32_t country;
    uint32_t excelJobCtrl; // spreadsheet job control
    CompactItemRecord* combinations;
    CompactItemRecord* foldings;
    FinishingItemRecord* holePunches;
    CompactItemRecord* outputOrders;
    CompactItemRecord* perPagePrintTypes;
    CompactItemRecord* prePunchedMedia;
    FinishingItemRecord* staples;
    CompactItemRecord* perPageStaples;
    TextItemRecord* outputMethods;
    TextItemRecord* overlayLocations;
    TextItemRecord* profileLocations;
    ItemRecord* traySelections[kTraySelectionCount]; // in the order of kTraySelectionFeatures
    TabPaperRecord* tabPaperSizes;
    CollateRecord* collates;
    TextItemRecord* interleaves;
    TextItemRecord* paperArrangements;
    TrayRowRecord* trayRows;
};
static_assert(sizeof(void*) == 8);
static_assert(sizeof(DeviceTable) == 818 && offsetof(DeviceTable, copiesA) == 340
              && offsetof(DeviceTable, copiesB) == 342 && offsetof(DeviceTable, paperWidthB) == 344
              && offsetof(DeviceTable, paperWidthA) == 346 && offsetof(DeviceTable, paperLengthB) == 348
              && offsetof(DeviceTable, paperLengthA) == 350 && offsetof(DeviceTable, printRatePpm) == 352
              && offsetof(DeviceTable, printRate) == 356 && offsetof(DeviceTable, printRateUnit) == 360
              && offsetof(DeviceTable, stapler) == 361 && offsetof(DeviceTable, colorDevice) == 365
              && offsetof(DeviceTable, pdlTypeA) == 369 && offsetof(DeviceTable, pdlTypeB) == 371
              && offsetof(DeviceTable, machineEncryption) == 373
              && offsetof(DeviceTable, machineInfoCount) == 374 && offsetof(DeviceTable, machineInfo) == 378
              && offsetof(DeviceTable, figureType) == 386 && offsetof(DeviceTable, paperSizes) == 390
              && offsetof(DeviceTable, userPaperSize) == 398 && offsetof(DeviceTable, userPaperMargins) == 414
              && offsetof(DeviceTable, userPaperSet4) == 430 && offsetof(DeviceTable, userPaperSet5) == 550
              && offsetof(DeviceTable, outputPaperSizes) == 566 && offsetof(DeviceTable, mediaTypes) == 574
              && offsetof(DeviceTable, inputTrays) == 582 && offsetof(DeviceTable, outputTrays) == 590
              && offsetof(DeviceTable, mediaWeights) == 598 && offsetof(DeviceTable, mediaColors) == 606
              && offsetof(DeviceTable, resolutions) == 614 && offsetof(DeviceTable, reserved) == 622
              && offsetof(DeviceTable, country) == 626 && offsetof(DeviceTable, excelJobCtrl) == 630
              && offsetof(DeviceTable, combinations) == 634 && offsetof(DeviceTable, foldings) == 642
              && offsetof(DeviceTable, holePunches) == 650 && offsetof(DeviceTable, outputOrders) == 658
              && offsetof(DeviceTable, perPagePrintTypes) == 666
              && offsetof(DeviceTable, prePunchedMedia) == 674 && offsetof(DeviceTable, staples) == 682
              && offsetof(DeviceTable, perPageStaples) == 690 && offsetof(DeviceTable, outputMethods) == 698
              && offsetof(DeviceTable, overlayLocations) == 706
              && offsetof(DeviceTable, profileLocations) == 714
              && offsetof(DeviceTable, traySelections) == 722 && offsetof(DeviceTable, tabPaperSizes) == 778
              && offsetof(DeviceTable, collates) == 786 && offsetof(DeviceTable, interleaves) == 794
              && offsetof(DeviceTable, paperArrangements) == 802 && offsetof(DeviceTable, trayRows) == 810);

#pragma pack(pop)

// The records of a list, up to the one with the empty key. Null is an empty list.
template <typename Record>
Rows<Record> Listed(const Record* list) {
    size_t count = 0;
    while (list != nullptr && list[count].head.key[0] != 0)
        ++count;
    return {list, count};
}

// A switch's value; 0 without a table.
inline uint32_t SwitchValue(const DeviceTable* table, FeatureSwitch position) {
    return table != nullptr ? table->switches[position] : 0;
}

struct PrmFile;

// The model's, built once while the process attaches and only read afterwards. Null without a parameter data
// file or without memory; readers must take that into account.
extern DeviceTable* deviceTable;

// Builds the model's device table from an open parameter data file. Entries that the file lacks leave their
// fields 0 and their lists null. Also updates the compiled-in input slots from the file. The caller frees the
// table. Null when there is no memory for the table itself.
DeviceTable* BuildDeviceTable(PrmFile& file);

// Releases the table and every list that it refers to. Null is accepted.
void FreeDeviceTable(DeviceTable* table);

#endif
