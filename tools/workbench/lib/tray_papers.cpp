// Lists the model's trays, fills in what a printer reports, and names the values.
#include "workbench/lib/tray_papers.h"

#include "workbench/lib/printer_text_ids.h"
#include "workbench/lib/text.h"

namespace {

constexpr int32_t kUnknown = -1;
constexpr const char* kUnknownSizeKey = "MediaTypeList_Size_Unknown";

// Levels that are not a number of sheets: those of the Printer MIB in 16 bits.
constexpr int32_t kSomeSheets = 0xFFFD;
constexpr int32_t kUnknownSheets = 0xFFFE;

// By position of the attribute: its name, and where the printer's answer has it.
constexpr struct {
    const char* name;
    QueryKey InputTrayStatusItem::*answer;
} kAttributes[kMediaTypeListCount] = {
    {"size", &InputTrayStatusItem::mediaSize}, {"orientation", &InputTrayStatusItem::orientation},
    {"type", &InputTrayStatusItem::mediaType}, {"weight", &InputTrayStatusItem::weight},
    {"color", &InputTrayStatusItem::color},    {"hole", &InputTrayStatusItem::hole},
};

const ItemRecord* ValuesOf(size_t attribute) {
    return AttributeValues(static_cast<MediaTypeList>(attribute));
}

int32_t ValueOf(size_t attribute, const QueryKey& key) {
    const ItemRecord* item = FindByKey(ValuesOf(attribute), key);
    return item != nullptr ? static_cast<int32_t>(item->head.value) : kUnknown;
}

Document NameOf(size_t attribute, int32_t value) {
    const ItemRecord* item = FindByValue(ValuesOf(attribute), static_cast<uint32_t>(value));
    return item != nullptr ? Document(FieldText(item->display)) : Document();
}

} // namespace

TrayPapers UnknownPapers(const FamilyFiles& family) {
    TrayPapers papers = {};
    for (TrayPaperSetting& paper : papers)
        for (const TrayAttribute& attribute : trayAttributes)
            StoreAttribute(paper, attribute, kUnknown);
    auto next = papers.begin();
    for (const InputSlotRecord& source : Listed(family.table->inputTrays)) {
        if (IsAutomaticBin(source.head.value) || next == papers.end())
            continue;
        CopyText(next->key, source.head.key);
        next->bin = source.head.value;
        ++next;
    }
    return papers;
}

TrayPapers PapersOf(const FamilyFiles& family, const TrayAnswers& answers) {
    TrayPapers papers = UnknownPapers(family);
    for (TrayPaperSetting& paper : papers)
        for (const InputTrayStatusItem& answer : answers)
            for (size_t i = 0; i < kMediaTypeListCount && SameText(answer.tray, paper.key); ++i)
                StoreAttribute(paper, trayAttributes[i], ValueOf(i, answer.*kAttributes[i].answer));
    return papers;
}

TrayPapers AskPapers(const FamilyFiles& family, const std::string& address) {
    const Printer printer = PrinterAt(family, address);
    CheckPrinter(printer, Transport::kLibrary);
    return PapersOf(family, AskTraysByLibrary(printer));
}

bool IsTrayReported(const InputTrayStatusItem& answer) {
    return answer.mediaSize[0] != 0 && !SameText(answer.mediaSize, kUnknownSizeKey);
}

std::string TrayName(const FamilyFiles& family, const char* key) {
    const InputSlotRecord* source = FindByKey(family.table->inputTrays, key);
    return source != nullptr ? FieldText(source->display) : key;
}

std::string TrayLevel(const InputTrayStatusItem& answer, LANGID language) {
    const int32_t sheets = answer.level;
    if (sheets >= kUnknownSheets)
        return "";
    return TextIn(language,
                  sheets == 0             ? PRINTER_TEXT_TRAY_EMPTY
                  : sheets == kSomeSheets ? PRINTER_TEXT_TRAY_NOT_EMPTY
                                          : PRINTER_TEXT_TRAY_SHEETS,
                  {std::to_string(sheets)});
}

Document PaperChanges(const TrayPapers& before, const TrayPapers& after) {
    Document changes = Document::MakeList();
    for (size_t tray = 0; tray < after.size(); ++tray)
        for (size_t i = 0; i < kMediaTypeListCount; ++i) {
            const int32_t was = LoadAttribute(before[tray], trayAttributes[i]);
            const int32_t is = LoadAttribute(after[tray], trayAttributes[i]);
            if (was != is)
                changes.Add({{"tray", FieldText(after[tray].key)},
                             {"attribute", kAttributes[i].name},
                             {"before", NameOf(i, was)},
                             {"after", NameOf(i, is)},
                             {"value", is}});
        }
    return changes;
}

Document PapersDocument(const TrayPapers& papers) {
    Document rows = Document::MakeList();
    for (const TrayPaperSetting& paper : papers) {
        if (paper.key[0] == 0)
            continue;
        Document row = {{"tray", FieldText(paper.key)}, {"bin", paper.bin}};
        for (size_t i = 0; i < kMediaTypeListCount; ++i)
            row[kAttributes[i].name] = NameOf(i, LoadAttribute(paper, trayAttributes[i]));
        rows.Add(row);
    }
    return rows;
}
