// Names the options, and words the answers to the queries for them.
#include "workbench/lib/option_words.h"

#include "workbench/lib/printer_text_ids.h"
#include "workbench/lib/text.h"

namespace {

// Options have no names in the model.
constexpr struct {
    const char* key;
    UINT name;
    const char* number; // in the name
} kOptionNames[] = {
    {"OpMachine", PRINTER_TEXT_OPTION_MACHINE, ""},
    {"OpBody", PRINTER_TEXT_OPTION_BODY, ""},
    {"OpInTrayUnit", PRINTER_TEXT_OPTION_PAPER_UNIT, ""},
    {"OpOutTrayUnit", PRINTER_TEXT_OPTION_FINISHER, ""},
    {"OpPunchKit", PRINTER_TEXT_OPTION_PUNCH_KIT, ""},
    {"OpMailBinKit", PRINTER_TEXT_OPTION_MAIL_BINS, ""},
    {"OpSaddleKit", PRINTER_TEXT_OPTION_SADDLE_KIT, ""},
    {"OpFAXUnit", PRINTER_TEXT_OPTION_FAX, ""},
    {"OpHDD", PRINTER_TEXT_OPTION_HARD_DISK, ""},
    {"OpMemory", PRINTER_TEXT_OPTION_MEMORY, ""},
    {"OpDuplex", PRINTER_TEXT_OPTION_DUPLEX, ""},
    {"OpInTray1", PRINTER_TEXT_OPTION_TRAY, "1"},
    {"OpInTray2", PRINTER_TEXT_OPTION_TRAY, "2"},
    {"OpInTray3", PRINTER_TEXT_OPTION_TRAY, "3"},
    {"OpInTray4", PRINTER_TEXT_OPTION_TRAY, "4"},
    {"OpInTray5", PRINTER_TEXT_OPTION_TRAY, "5"},
    {"OpInTrayLCT", PRINTER_TEXT_OPTION_LARGE_TRAY, ""},
    {"OpInTrayManual", PRINTER_TEXT_OPTION_MANUAL_FEED, ""},
    {"OpManualFeed", PRINTER_TEXT_OPTION_MANUAL_FEED, ""},
    {"OpOutTray1", PRINTER_TEXT_OPTION_OUTPUT_TRAY, "1"},
    {"OpOutTray2", PRINTER_TEXT_OPTION_OUTPUT_TRAY, "2"},
    {"OpOutTray3", PRINTER_TEXT_OPTION_OUTPUT_TRAY, "3"},
    {"OpOutTray4", PRINTER_TEXT_OPTION_OUTPUT_TRAY, "4"},
};

// What keys of items begin with that only say whether the option is there.
constexpr const char kInstalled[] = "Ena";
constexpr const char kNotInstalled[] = "Dis";

bool StartsWith(const std::string& text, const char* start) {
    return text.rfind(start, 0) == 0;
}

} // namespace

std::string OptionName(const char* key, LANGID language) {
    for (const auto& row : kOptionNames)
        if (SameText(row.key, key))
            return TextIn(language, row.name, {row.number});
    return key;
}

std::string OptionSetting(const OptionFeatures& options, const OptionRequestItem& answer) {
    const std::string key = FieldText(answer.value);
    if (key.empty())
        return TextIn(kEnglish, PRINTER_TEXT_NOT_REPORTED);
    if (const ItemRecord* item = FindOption(options, FieldText(answer.key) + "=" + key))
        return FieldText(item->display);
    if (StartsWith(key, kInstalled))
        return TextIn(kEnglish, PRINTER_TEXT_INSTALLED);
    if (StartsWith(key, kNotInstalled))
        return TextIn(kEnglish, PRINTER_TEXT_NOT_INSTALLED);
    const size_t unit = key.find("MB");
    return unit == std::string::npos ? key : key.substr(0, unit) + " " + key.substr(unit);
}

Document OptionsInWords(const OptionFeatures& options, const OptionAnswers& answers) {
    Document rows = OptionAnswersDocument(answers);
    for (size_t i = 0; i < answers.size(); ++i) {
        Document& row = rows.Elements()[i];
        row["name"] = OptionName(answers[i].key);
        row["setting"] = OptionSetting(options, answers[i]);
    }
    return rows;
}

Document OptionRows(const Document& answers) {
    Document rows = Document::MakeList();
    for (const Document& answer : answers.Elements())
        rows.Add({{"option", answer["name"]}, {"setting", answer["setting"]}});
    return rows;
}
