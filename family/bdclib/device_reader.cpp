// Reads a device by SNMP. Standard objects are used where they exist; the rest is in the equipment's tables
// of docs/simulating_a_printer.md.
#include "bdclib/device_reader.h"

#include <cstring>

namespace {

constexpr uint32_t kMaxRows = 255;   // of a table: more than any device has
constexpr uint32_t kMaxInputs = 7;   // the inputs of this family are numbered up to this
constexpr uint32_t kMaxDevices = 16; // of the host, one of which is the printer

// --- Objects

#define EQUIPMENT   ".1.3.6.1.4.1.47913.1.1.1.1.9"
#define HOST_DEVICE ".1.3.6.1.2.1.25.3.2.1"
#define PRINTER_MIB ".1.3.6.1.2.1.43"

constexpr const char* kEquipmentName = EQUIPMENT ".1";
constexpr const char* kHostDeviceType = HOST_DEVICE ".2";
constexpr const char* kHostDeviceText = HOST_DEVICE ".3";
constexpr const char* kTypePrinter = ".1.3.6.1.2.1.25.3.1.5";

constexpr DeviceColumn kOptionNumber = {EQUIPMENT ".2.1.1", &DeviceRow::ofDevice};
constexpr DeviceColumn kOptionType = {EQUIPMENT ".2.1.2", &DeviceRow::ofDevice};
constexpr DeviceColumn kOptionModel = {EQUIPMENT ".2.1.3", &DeviceRow::ofDevice};
constexpr DeviceColumn kFinisherNumber = {EQUIPMENT ".3.1.1", &DeviceRow::ofDevice};
constexpr DeviceColumn kFinisherFlags = {EQUIPMENT ".3.1.3", &DeviceRow::ofDevice};
constexpr DeviceColumn kMemoryNumber = {EQUIPMENT ".4.1.1", &DeviceRow::ofDevice};
constexpr DeviceColumn kMemoryKind = {EQUIPMENT ".4.1.2", &DeviceRow::ofDevice};
constexpr DeviceColumn kPaperInput = {EQUIPMENT ".5.1.1", &DeviceRow::ofDevice};
constexpr DeviceColumn kPaperTray = {EQUIPMENT ".5.1.2", &DeviceRow::ofDevice};
constexpr DeviceColumn kPaperSize = {EQUIPMENT ".5.1.3", &DeviceRow::ofDevice};
constexpr DeviceColumn kPaperOrientation = {EQUIPMENT ".5.1.4", &DeviceRow::ofDevice};
constexpr DeviceColumn kPaperType = {EQUIPMENT ".5.1.5", &DeviceRow::ofDevice};
constexpr DeviceColumn kPaperColor = {EQUIPMENT ".5.1.6", &DeviceRow::ofDevice};
constexpr DeviceColumn kPaperSecondSide = {EQUIPMENT ".5.1.7", &DeviceRow::ofDevice};
constexpr DeviceColumn kInputLevel = {PRINTER_MIB ".8.2.1.10", &DeviceRow::ofPrinter};
constexpr DeviceColumn kOutputType = {PRINTER_MIB ".9.2.1.2", &DeviceRow::ofPrinter};
constexpr DeviceColumn kOutputName = {PRINTER_MIB ".9.2.1.7", &DeviceRow::ofPrinter};
constexpr DeviceColumn kMediaPathType = {PRINTER_MIB ".13.4.1.9", &DeviceRow::ofPrinter};
constexpr DeviceColumn kInterpreterFamily = {PRINTER_MIB ".15.1.1.2", &DeviceRow::ofPrinter};
constexpr DeviceColumn kInterpreterText = {PRINTER_MIB ".15.1.1.5", &DeviceRow::ofPrinter};

ObjectNumber Number(DeviceRow& row, const DeviceColumn& column) {
    ObjectNumber number = {false, -1};
    row.failed = row.failed || !ReadNumber(row.session, column.oid, row.*column.suffix, number);
    return number;
}

// Empty when it does not exist.
struct Words {
    ObjectText text;
};
Words Text(DeviceRow& row, const DeviceColumn& column) {
    Words words = {};
    row.failed = row.failed || !ReadText(row.session, column.oid, row.*column.suffix, words.text);
    return words;
}

DeviceRow MakeRow(const DeviceSession& session, uint32_t number) {
    DeviceRow row = {session.connection.handle, number, {}, {}, false};
    AppendSubIdentifier(row.ofDevice, number);
    AppendSubIdentifier(row.ofPrinter, session.printer);
    AppendSubIdentifier(row.ofPrinter, number);
    return row;
}

// --- Items

#pragma pack(push, 1)
// An item of a list that the module does not read: a number and a text.
template <size_t kSize>
struct NumberedText {
    uint32_t number;
    char text[kSize - sizeof(uint32_t)];
};
#pragma pack(pop)
using Firmware = NumberedText<sizeof(BdcFirmwareItem)>;
using OutputTray = NumberedText<sizeof(BdcOutputTrayItem)>;
static_assert(sizeof(Firmware) == sizeof(BdcFirmwareItem) && sizeof(OutputTray) == sizeof(BdcOutputTrayItem));

void ReadFirmware(DeviceRow& row, Firmware& item) {
    item.number = row.number;
    CopyText(item.text, Text(row, kInterpreterText).text);
}

void ReadOutputTray(DeviceRow& row, OutputTray& item) {
    item.number = row.number;
    CopyText(item.text, Text(row, kOutputName).text);
}

void ReadMemory(DeviceRow& row, BdcMemoryItem& item) {
    item.kind = static_cast<uint32_t>(Number(row, kMemoryKind).value);
}

void ReadOption(DeviceRow& row, BdcOptionItem& item) {
    constexpr uint32_t kFunction = 1000; // a part without a model name: the fax
    item.type = static_cast<uint32_t>(Number(row, kOptionType).value);
    CopyText(item.model, Text(row, kOptionModel).text);
    if (item.type == kFunction && SameText(item.model, "FAX"))
        CopyText(item.model, "Bdc_Function_Fax");
}

void ReadFinisher(DeviceRow& row, BdcFinisherItem& item) {
    const ObjectNumber flags = Number(row, kFinisherFlags);
    item.flags = flags.isPresent ? static_cast<uint32_t>(flags.value) : 0;
}

// The library's number of a tray, which is not that of the input; 0 for an unknown word.
int32_t TrayNumber(const ObjectText& word) {
    constexpr struct {
        const char* word;
        int32_t number;
    } kTrays[] = {
        {"TRAY1", 1}, {"TRAY2", 2},  {"TRAY3", 3}, {"TRAY4", 4},
        {"LCT", 5},   {"MANUAL", 6}, {"TRAY5", 7}, // the driver uses none above 6
    };
    for (const auto& tray : kTrays)
        if (SameText(tray.word, word))
            return tray.number;
    return 0;
}

// A number of sheets in 16 bits, or the negative number of a level that is not one. Anything else is unknown.
uint16_t TrayLevel(const ObjectNumber& level) {
    constexpr int32_t kUnknown = -2;
    constexpr int32_t kLeast = -3;
    if (!level.isPresent || level.value < kLeast)
        return static_cast<uint16_t>(kUnknown);
    return static_cast<uint16_t>(level.value < INT16_MAX ? level.value : INT16_MAX);
}

void ReadInputTray(DeviceRow& row, BdcInputTrayItem& item) {
    constexpr int32_t kNotReported = -1;
    item.tray = TrayNumber(Text(row, kPaperTray).text);
    item.mediaSize = static_cast<uint16_t>(Number(row, kPaperSize).value);
    item.orientation = Number(row, kPaperOrientation).value;
    item.mediaType = Number(row, kPaperType).value;
    item.color = Number(row, kPaperColor).value;
    item.secondSide = Number(row, kPaperSecondSide).value;
    item.level = TrayLevel(Number(row, kInputLevel)); // the number of the row is that of the input
    item.weight = kNotReported;
    item.hole = kNotReported;
}

template <typename Item, void (*kRead)(DeviceRow&, Item&)>
void Into(DeviceRow& row, void* item) {
    kRead(row, *static_cast<Item*>(item));
}

// Visits the existing rows until `visit` returns false. False when a request failed.
template <typename Visit>
bool WalkRows(const DeviceSession& session, const DeviceList& list, const Visit& visit) {
    for (uint32_t number = 1; number <= list.maxRows; ++number) {
        DeviceRow row = MakeRow(session, number);
        const bool isThere = Number(row, list.presence).isPresent;
        const bool goesOn = isThere ? visit(row) : list.hasGaps;
        if (row.failed)
            return false;
        if (!goesOn)
            return true;
    }
    return true;
}

} // namespace

// clang-format off
//                                  presence            most rows    gaps   item size                  how it is read
const DeviceList kFirmwareList   = {kInterpreterFamily, kMaxRows,   false, sizeof(BdcFirmwareItem),   Into<Firmware, ReadFirmware>};
const DeviceList kMemoryList     = {kMemoryNumber,      kMaxRows,   false, sizeof(BdcMemoryItem),     Into<BdcMemoryItem, ReadMemory>};
const DeviceList kOptionList     = {kOptionNumber,      kMaxRows,   false, sizeof(BdcOptionItem),     Into<BdcOptionItem, ReadOption>};
const DeviceList kInputTrayList  = {kPaperInput,        kMaxInputs, true,  sizeof(BdcInputTrayItem),  Into<BdcInputTrayItem, ReadInputTray>};
const DeviceList kOutputTrayList = {kOutputType,        kMaxRows,   false, sizeof(BdcOutputTrayItem), Into<OutputTray, ReadOutputTray>};
const DeviceList kFinisherList   = {kFinisherNumber,    kMaxRows,   false, sizeof(BdcFinisherItem),   Into<BdcFinisherItem, ReadFinisher>};
// clang-format on

DeviceSession::DeviceSession(const BdcDeviceRecord& device)
    : printer(device.communication != 0 ? device.communication : 1), community(device.community),
      // A device without a printer number has not answered yet, so the shorter time-out applies.
      connection(TerminatedText(device.agent).text, device.communication != 0 ? kQueryLimits : kReachLimits,
                 community.text) {}

bool ReadList(const DeviceSession& session, const DeviceList& list, void* items, uint32_t capacity,
              uint32_t& count) {
    count = 0;
    return WalkRows(session, list, [&](DeviceRow& row) {
        if (items != nullptr) {
            if (count == capacity)
                return false;
            uint8_t* item = static_cast<uint8_t*>(items) + count * list.itemSize;
            memset(item, 0, list.itemSize);
            list.read(row, item);
        }
        ++count;
        return true;
    });
}

bool ReadPrinterNumber(SnmpSession session, uint32_t& number) {
    for (number = 1; number <= kMaxDevices; ++number) {
        ObjectSuffix suffix = {};
        AppendSubIdentifier(suffix, number);
        const Match match = MatchObject(session, kHostDeviceType, suffix, TELMAR_COMPARE_OID, kTypePrinter);
        if (match != Match::kNo)
            return match == Match::kYes;
    }
    number = 1;
    return true;
}

bool ReadModelName(const DeviceSession& session, ObjectText& name) {
    if (!ReadText(session.connection.handle, kEquipmentName, ".0", name))
        return false;
    if (name[0] != 0)
        return true;
    ObjectSuffix suffix = {};
    AppendSubIdentifier(suffix, session.printer);
    return ReadText(session.connection.handle, kHostDeviceText, suffix, name);
}

bool ReadMediaPaths(const DeviceSession& session, uint32_t& count, bool& hasDuplex) {
    constexpr int32_t kLongEdgeDuplex = 3, kShortEdgeDuplex = 4;
    constexpr DeviceList kPaths = {kMediaPathType, kMaxRows, false, 0, nullptr};
    count = 0;
    hasDuplex = false;
    return WalkRows(session, kPaths, [&](DeviceRow& row) {
        const int32_t type = Number(row, kMediaPathType).value;
        hasDuplex = hasDuplex || type == kLongEdgeDuplex || type == kShortEdgeDuplex;
        ++count;
        return true;
    });
}
