// Reads the name/value tables of the parameter data file. Each row is compared with every name of the
// builder: a later row with the same name overwrites an earlier one, and one row may set two fields.
#include "paramdata/named_values.h"

#include "base/text.h"
#include "paramdata/device_table.h"
#include "paramdata/fact_names.h"
#include "paramdata/prm_readers.h"

namespace {

// A value that fills its field has no terminator in the file.
constexpr size_t kValueCapacity = sizeof(PrmTableRow::value) + 1;

// Calls visit(row) for each row of the entry's table. A table that announces more rows than are followed
// counts as missing.
template <typename Visit>
void ForEachRow(const PrmFile& file, const char* entry, Visit visit) {
    PrmItems items;
    if (!PrmFindEntryInfo(file, entry, items))
        return;
    PrmTableHeader header = {};
    PrmReadRecord(file, PrmItemOffset(file, items, 0), header);
    if (header.rowCount > PrmMaxElements(file, sizeof(PrmTableRow)))
        return;
    for (uint32_t i = 0; i < header.rowCount; ++i) {
        PrmTableRow buffer;
        visit(PrmRecordAt(file, header.firstRow + uint64_t{sizeof(buffer)} * i, buffer));
    }
}

// The hashes of the names in kFeatureSwitches.
struct SwitchHashes {
    constexpr SwitchHashes() {
        for (size_t i = 0; i < kFeatureSwitchCount; ++i)
            of[i] = TextHash(kFeatureSwitches[i].name);
    }
    uint32_t of[kFeatureSwitchCount] = {};
};
constexpr SwitchHashes kSwitchHashes;

// The number n of a value "TYPEn", from 1 to kMaxSwitchType and without leading zeros; 1 for any other value.
uint32_t SwitchType(const char* value) {
    constexpr size_t kPrefix = 4;
    if (TextLength(value) <= kPrefix || !SameCharacters(value, "TYPE", kPrefix) || value[kPrefix] == '0')
        return 1;
    uint32_t number = 0;
    for (const char* digit = value + kPrefix; *digit != 0; ++digit) {
        if (!IsDigit(*digit))
            return 1;
        number = number * 10 + static_cast<uint32_t>(*digit - '0');
        if (number > kMaxSwitchType)
            return 1;
    }
    return number;
}

// The word's position, counted from `first`; `otherwise` for any other value.
template <size_t Count>
uint8_t WordNumber(const char* value, const char* const (&words)[Count], uint8_t first, uint8_t otherwise) {
    for (const char* word : words) {
        if (SameText(value, word))
            return first;
        ++first;
    }
    return otherwise;
}

void StorePdlTypes(DeviceTable& table, const char* value) {
    uint16_t first = 0;
    uint16_t second = 0;
    PrmParseTwoNumbers(value, first, second);
    table.pdlTypeA = first;
    table.pdlTypeB = second;
}

using StoreFact = void (*)(DeviceTable& table, const char* value);

// One for each row of kDeviceFacts, in the same order.
// clang-format off
constexpr StoreFact kStoreDeviceFact[] = {
    [](DeviceTable& table, const char* value) { table.printRatePpm = ParseDecimal(value); },
    [](DeviceTable& table, const char* value) { table.printRate = ParseDecimal(value); },
    [](DeviceTable& table, const char* value) { table.printRateUnit = WordNumber(value, kPrintRateUnits, 1, 1); },
    [](DeviceTable& table, const char* value) { table.stapler = WordNumber(value, kTruthWords, 0, 0); },
    [](DeviceTable& table, const char* value) { table.colorDevice = WordNumber(value, kTruthWords, 0, 0); },
    StorePdlTypes,
    [](DeviceTable& table, const char* value) { table.machineEncryption = WordNumber(value, kEncryptions, 1, 2); },
};

// A row can only set it: a later one of another value does not clear it.
constexpr StoreFact kStoreFigureFact[] = {
    [](DeviceTable& table, const char* value) { table.figureType |= WordNumber(value, kFigureTypes, 0, 0); },
};
// clang-format on

template <size_t Count>
void BuildFacts(const PrmFile& file, const char* entry, const FactRow (&facts)[Count],
                const StoreFact (&store)[Count], DeviceTable& table) {
    ForEachRow(file, entry, [&](const PrmTableRow& row) {
        char value[kValueCapacity];
        CopyText(value, row.value);
        for (size_t i = 0; i < Count; ++i)
            if (SameText(row.name, facts[i].name))
                store[i](table, value);
    });
}

} // namespace

void BuildFeatureSwitches(const PrmFile& file, DeviceTable& table) {
    ForEachRow(file, "FeatureSetting", [&](const PrmTableRow& row) {
        char value[kValueCapacity];
        CopyText(value, row.value);
        const uint32_t hash = TextHash(row.name);
        for (size_t i = 0; i < kFeatureSwitchCount; ++i) {
            const FeatureSwitchRow& feature = kFeatureSwitches[i];
            if (hash == kSwitchHashes.of[i] && SameText(row.name, feature.name))
                table.switches[i] = feature.enablingValue != nullptr ? SameText(value, feature.enablingValue)
                                                                     : SwitchType(value);
        }
    });
}

void BuildDeviceFacts(const PrmFile& file, DeviceTable& table) {
    BuildFacts(file, "DevInfo", kDeviceFacts, kStoreDeviceFact, table);
}

void BuildFigureType(const PrmFile& file, DeviceTable& table) {
    BuildFacts(file, "PaperSizeFigure", kFigureFacts, kStoreFigureFact, table);
}
