// `workbench status`: queries a printer through the bidirectional library by the module's exports: its
// options and its input trays. The document has the module's answers and what they mean in words; the page
// for people has the words.
#include "workbench/commands/commands.h"
#include "workbench/lib/option_words.h"
#include "workbench/lib/record_fields.h"
#include "workbench/lib/text_form.h"
#include "workbench/lib/tray_papers.h"

namespace {

// Null where the driver has no key for what the device reports.
template <auto kField>
Document ShowKey(const void* record) {
    const Document key = Show<kField>(record);
    return key.Text().empty() ? Document() : key;
}

constexpr Field kTrayFields[] = {
    {"tray", Show<&InputTrayStatusItem::tray>},
    {"size", ShowKey<&InputTrayStatusItem::mediaSize>},
    {"orientation", ShowKey<&InputTrayStatusItem::orientation>},
    {"type", ShowKey<&InputTrayStatusItem::mediaType>},
    {"level", Show<&InputTrayStatusItem::level>},
    {"weight", ShowKey<&InputTrayStatusItem::weight>},
    {"color", ShowKey<&InputTrayStatusItem::color>},
    {"hole", ShowKey<&InputTrayStatusItem::hole>},
};

// The keys of a tray's words: of its attributes, and the fields of PapersDocument that have them.
constexpr struct {
    const char* words;
    const char* attribute;
} kPaperWords[] = {
    {"sizeName", "size"},   {"orientationName", "orientation"},
    {"typeName", "type"},   {"weightName", "weight"},
    {"colorName", "color"}, {"prePunchedName", "hole"},
};

const Document& PaperOf(const Document& papers, const std::string& tray) {
    static const Document kNone;
    for (const Document& paper : papers.Elements())
        if (paper["tray"].Text() == tray)
            return paper;
    return kNone;
}

Document TraysDocument(const FamilyFiles& family, const TrayAnswers& trays) {
    Document rows = RowsDocument(trays, kTrayFields);
    const Document papers = PapersDocument(PapersOf(family, trays));
    for (size_t i = 0; i < trays.size(); ++i) {
        Document& row = rows.Elements()[i];
        row["name"] = TrayName(family, trays[i].tray);
        row["isInstalled"] = IsTrayReported(trays[i]);
        const std::string level = IsTrayReported(trays[i]) ? TrayLevel(trays[i]) : "";
        row["levelText"] = level.empty() ? Document() : Document(level);
        for (const auto& [words, attribute] : kPaperWords)
            row[words] = !row[attribute].IsNull() && IsTrayReported(trays[i])
                             ? PaperOf(papers, row["tray"].Text())[attribute]
                             : Document();
    }
    return rows;
}

// --- The page for people -----------------------------------------------------------------------------------

Document TrayRows(const Document& trays) {
    Document rows = Document::MakeList();
    for (const Document& tray : trays.Elements()) {
        const bool isInstalled = tray["isInstalled"].Bool();
        const Document& level = tray["levelText"];
        Document row = {{"tray", tray["name"]},
                        {"level", !isInstalled     ? "not reported"
                                  : level.IsNull() ? "unknown"
                                                   : level.Text()}};
        for (const auto& [words, attribute] : kPaperWords)
            row[std::string(attribute) == "hole" ? "holes" : attribute] = tray[words];
        rows.Add(row);
    }
    return rows;
}

} // namespace

CommandResult AskByLibrary(const FamilyFiles& family, const std::string& address) {
    const Printer printer = PrinterAt(family, address);
    CheckPrinter(printer, Transport::kLibrary);
    const auto keys = OptionKeys(family, Transport::kLibrary);
    const OptionAnswers options = AskOptions(printer, Transport::kLibrary, keys);
    const Document answers = {
        {"printer", {{"address", printer.address}}},
        {"options", OptionsInWords(ReadOptionFeatures(family), options)},
        {"trays", TraysDocument(family, AskTraysByLibrary(printer))},
    };
    return {answers, TextForm({{"printer", answers["printer"]},
                               {"options", OptionRows(answers["options"])},
                               {"trays", TrayRows(answers["trays"])}})};
}
