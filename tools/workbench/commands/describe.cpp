// `workbench describe`: the device table and the paper sources that the module builds from the parameter data
// file. Every record is described by a table of its fields. A list that the file lacks is null.
#include "workbench/commands/commands.h"
#include "workbench/lib/record_fields.h"

#include <iterator>

namespace {

// Null when the flag that belongs to the field is 0.
template <auto kFlag, auto kField>
Document ShowIf(const void* record) {
    return FieldOf<kFlag>(record).value != 0 ? Show<kField>(record) : Document();
}

// Null when all numbers of the field are 0.
template <auto kField>
Document ShowIfAny(const void* record) {
    const Document numbers = Show<kField>(record);
    for (const Document& number : numbers.Elements())
        if (number.Integer() != 0)
            return numbers;
    return nullptr;
}

template <auto kField>
Document ShowFlag(const void* record) {
    return FieldOf<kField>(record).value != 0;
}

// A number that stands for a name, counted from 1; null for 0, which is "not given".
template <auto kField, const auto& kNames>
Document ShowName(const void* record) {
    const auto value = FieldOf<kField>(record).value;
    if (value == 0)
        return nullptr;
    return value <= std::size(kNames) ? Document(kNames[value - 1]) : Document(value);
}

template <auto kList, const auto& kFields>
Document ShowList(const void* table) {
    return ListDocument(FieldOf<kList>(table).value, kFields);
}

// clang-format off

// The further fields of each kind of list record.

template <typename Record>
constexpr Field kNamedText[] = {
    {"name",       Show<&Record::display>},
    {"text",       Show<&Record::text>},
};

constexpr Field kResolution[] = {
    {"name",       Show<&ResolutionRecord::display>},
    {"values",     Show<&ResolutionRecord::values>},
    {"number",     Show<&ResolutionRecord::number>},
};

constexpr Field kTabPaper[] = {
    {"name",       Show<&TabPaperRecord::display>},
    {"values",     Show<&TabPaperRecord::values>},
};

constexpr Field kOutputPaper[] = {
    {"name",       Show<&OutputPaperSizeRecord::display>},
    {"secondName", Show<&OutputPaperSizeRecord::secondDisplay>},
    {"values",     Show<&OutputPaperSizeRecord::values>},
};

constexpr Field kPaper[] = {
    {"name",       Show<&PaperSizeRecord::display>},
    {"secondName", Show<&PaperSizeRecord::secondDisplay>},
    {"text",       Show<&PaperSizeRecord::text>},
    {"width",      Show<&PaperSizeRecord::width>},
    {"length",     Show<&PaperSizeRecord::length>},
    {"margins",    ShowIf<&PaperSizeRecord::hasMargins, &PaperSizeRecord::margins>},
    {"complete",   ShowFlag<&PaperSizeRecord::complete>},
    {"values",     Show<&PaperSizeRecord::values>},
    {"shortName",  Show<&PaperSizeRecord::shortName>},
    {"longValues", ShowIfAny<&PaperSizeRecord::longValues>},
    {"longText",   Show<&PaperSizeRecord::longText>},
    {"geometry1",  ShowIf<&PaperSizeRecord::hasGeometry1, &PaperSizeRecord::geometry1>},
    {"geometry2",  ShowIf<&PaperSizeRecord::hasGeometry2, &PaperSizeRecord::geometry2>},
    {"geometry4",  ShowIf<&PaperSizeRecord::hasGeometry4, &PaperSizeRecord::geometry4>},
    {"geometry5",  ShowIf<&PaperSizeRecord::hasGeometry5, &PaperSizeRecord::geometry5>},
};

Document ShowCollateTexts(const void* record) {
    const auto& texts = static_cast<const CollateRecord*>(record)->texts;
    return {ToDocument(texts[0]), ToDocument(texts[1])};
}

constexpr Field kCollate[] = {
    {"extra",      Show<&CollateRecord::extra>},
    {"texts",      ShowCollateTexts},
};

// The lists of the device table by the names of their entries. The tray selection lists follow.
constexpr Field kLists[] = {
    {"PaperSize",            ShowList<&DeviceTable::paperSizes,        kPaper>},
    {"OutPaperSize",         ShowList<&DeviceTable::outputPaperSizes,  kOutputPaper>},
    {"TabPaperPaperSize",    ShowList<&DeviceTable::tabPaperSizes,     kTabPaper>},
    {"InTray",               ShowList<&DeviceTable::inputTrays,        kNamedText<InputSlotRecord>>},
    {"MediaTypeList_Tray",   ShowList<&DeviceTable::trayRows,          kNamed<TrayRowRecord>>},
    {"OutputTray",           ShowList<&DeviceTable::outputTrays,       kNamedText<TextItemRecord>>},
    {"MediaType",            ShowList<&DeviceTable::mediaTypes,        kNamedText<CompactItemRecord>>},
    {"MediaWeight",          ShowList<&DeviceTable::mediaWeights,      kNamedText<CompactItemRecord>>},
    {"MediaColor",           ShowList<&DeviceTable::mediaColors,       kNamedText<CompactItemRecord>>},
    {"MediaPrePunched",      ShowList<&DeviceTable::prePunchedMedia,   kNamedText<CompactItemRecord>>},
    {"Resolution",           ShowList<&DeviceTable::resolutions,       kResolution>},
    {"Combination",          ShowList<&DeviceTable::combinations,      kNamedText<CompactItemRecord>>},
    {"Folding",              ShowList<&DeviceTable::foldings,          kNamedText<CompactItemRecord>>},
    {"HolePunch",            ShowList<&DeviceTable::holePunches,       kNamedText<FinishingItemRecord>>},
    {"Staple",               ShowList<&DeviceTable::staples,           kNamedText<FinishingItemRecord>>},
    {"Collate",              ShowList<&DeviceTable::collates,          kCollate>},
    {"OutputOrder",          ShowList<&DeviceTable::outputOrders,      kNamedText<CompactItemRecord>>},
    {"OutputMethod",         ShowList<&DeviceTable::outputMethods,     kNamedText<TextItemRecord>>},
    {"PaperArrangement",     ShowList<&DeviceTable::paperArrangements, kNamedText<TextItemRecord>>},
    {"OHP_Interleave",       ShowList<&DeviceTable::interleaves,       kNamedText<TextItemRecord>>},
    {"PerPageListPrintType", ShowList<&DeviceTable::perPagePrintTypes, kNamedText<CompactItemRecord>>},
    {"PerPageListStaple",    ShowList<&DeviceTable::perPageStaples,    kNamedText<CompactItemRecord>>},
    {"OvlForm_Location",     ShowList<&DeviceTable::overlayLocations,  kNamedText<TextItemRecord>>},
    {"Prof_Location",        ShowList<&DeviceTable::profileLocations,  kNamedText<TextItemRecord>>},
};

// Names of the values from 1 on.
constexpr const char* kRateUnits[] = {"PPM or other", "CPS", "LPM", "IPM"};
constexpr const char* kEncryptions[] = {"AES", "other"};

constexpr Field kDeviceFacts[] = {
    {"pagesPerMinute",    Show<&DeviceTable::printRatePpm>},
    {"printRate",         Show<&DeviceTable::printRate>},
    {"printRateUnit",     ShowName<&DeviceTable::printRateUnit, kRateUnits>},
    {"stapler",           ShowFlag<&DeviceTable::stapler>},
    {"colorDevice",       ShowFlag<&DeviceTable::colorDevice>},
    {"languageA",         Show<&DeviceTable::pdlTypeA>},
    {"languageB",         Show<&DeviceTable::pdlTypeB>},
    {"machineEncryption", ShowName<&DeviceTable::machineEncryption, kEncryptions>},
    {"multifunction",     ShowFlag<&DeviceTable::figureType>},
    {"country",           Show<&DeviceTable::country>},
    {"jobControl",        Show<&DeviceTable::excelJobCtrl>},
};

constexpr struct {
    const char* name;
    Field a;
    Field b;
} kRanges[] = {
    {"Copies",           {"a", Show<&DeviceTable::copiesA>},      {"b", Show<&DeviceTable::copiesB>}},
    {"UserPaper_Width",  {"a", Show<&DeviceTable::paperWidthA>},  {"b", Show<&DeviceTable::paperWidthB>}},
    {"UserPaper_Length", {"a", Show<&DeviceTable::paperLengthA>}, {"b", Show<&DeviceTable::paperLengthB>}},
};

constexpr Field kCustomPaper[] = {
    {"size",      Show<&DeviceTable::userPaperSize>},
    {"margins",   Show<&DeviceTable::userPaperMargins>},
    {"geometry4", Show<&DeviceTable::userPaperGeometry4>},
    {"geometry5", Show<&DeviceTable::userPaperGeometry5>},
};

constexpr Field kPaperSource[] = {
    {"key",     Show<&TraySourceRecord::key>},
    {"bin",     Show<&TraySourceRecord::bin>},
    {"text",    Show<&TraySourceRecord::text>},
};

// clang-format on

// A switch is "on", "off" or the number of a variant.
Document Switches(const DeviceTable& table) {
    Document rows = Document::MakeList();
    for (size_t i = 0; i < kFeatureSwitchCount; ++i) {
        const uint32_t value = table.switches[i];
        const bool isNumber = kFeatureSwitches[i].enablingValue == nullptr;
        rows.Add({
            {"index", i},
            {"name", kFeatureSwitches[i].name},
            {"value", isNumber ? Document(value) : Document(value ? "on" : "off")},
        });
    }
    return rows;
}

Document Ranges(const DeviceTable& table) {
    Document rows = Document::MakeList();
    for (const auto& range : kRanges)
        rows.Add({{"name", range.name}, {"a", range.a.show(&table)}, {"b", range.b.show(&table)}});
    return rows;
}

Document MachineInformation(const DeviceTable& table) {
    Document rows = Document::MakeList();
    for (uint32_t i = 0; i + 1 < table.machineInfoCount; ++i) {
        const MachineInfoRecord& machine = table.machineInfo[i];
        Document details = Document::MakeList();
        for (uint32_t j = 0; machine.details != nullptr && j + 1 < machine.detailCount; ++j)
            details.Add({ToDocument(machine.details[j].texts[0]), ToDocument(machine.details[j].texts[1])});
        rows.Add({{"name", ToDocument(machine.name)}, {"details", details}});
    }
    return rows;
}

// Adds the sections of the device table.
void AddDevice(const DeviceTable& table, Document& document) {
    document["switches"] = Switches(table);
    AddFields(kDeviceFacts, &table, document["device"]);
    document["ranges"] = Ranges(table);
    document["machineInformation"] = MachineInformation(table);
    AddFields(kCustomPaper, &table, document["customPaper"]);
    Document& lists = document["lists"];
    AddFields(kLists, &table, lists);
    for (size_t i = 0; i < kTraySelectionCount; ++i)
        lists[kTraySelectionFeatures[i]] = ListDocument(table.traySelections[i], kNamed<ItemRecord>);
}

// The compiled-in paper sources, as the parameter data file has updated them.
Document PaperSources() {
    Document rows;
    for (const TraySourceRecord& source : Listed(inputSlots)) {
        Document row;
        AddFields(kPaperSource, &source, row);
        for (size_t i = 0; i < kTraySelectionCount; ++i)
            row[kTraySelectionFeatures[i]] = ToDocument(source.selectionKeys[i]);
        rows.Add(row);
    }
    return rows;
}

} // namespace

Document Describe(const FamilyFiles& family) {
    Document document;
    document["files"] = FamilyDocument(family);
    AddDevice(*family.table, document);
    document["inputSlots"] = PaperSources();
    return document;
}
