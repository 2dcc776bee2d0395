// The Paper page: paper source, paper attributes and the paper in the trays.
#include "workbench/lib/localized_text.h"
#include "workbench/lib/printer_text_ids.h"
#include "workbench/lib/text.h"
#include "workbench/property_sheet/page_ids.h"
#include "workbench/property_sheet/property_page.h"
#include "workbench/property_sheet/reported_state.h"
#include "workbench/property_sheet/text_ids.h"

namespace {

// A combo box, the list of the device table that it offers, and the setting that it changes.
struct PaperChoice {
    int control;
    CompactItemRecord* DeviceTable::*list;
    DevmodeField field;
};
constexpr PaperChoice kChoices[] = {
    {ID_TYPE, &DeviceTable::mediaTypes, FIELD(mediaType)},
    {ID_WEIGHT, &DeviceTable::mediaWeights, FIELD(mediaWeight)},
    {ID_COLOR, &DeviceTable::mediaColors, FIELD(mediaColor)},
    {ID_PRE_PUNCHED, &DeviceTable::prePunchedMedia, FIELD(mediaPrePunched)},
};

constexpr UINT kTrayColumns[] = {TEXT_TRAY, PRINTER_TEXT_LEVEL, TEXT_SIZE,  TEXT_ORIENTATION,
                                 TEXT_TYPE, TEXT_WEIGHT,        TEXT_COLOR, TEXT_PRE_PUNCHED};

// The printer's answer for a tray that it has; null when it has not reported one.
const InputTrayStatusItem* FindReported(const TrayAnswers& answers, const char* tray) {
    for (const InputTrayStatusItem& answer : answers)
        if (SameText(answer.tray, tray) && IsTrayReported(answer))
            return &answer;
    return nullptr;
}

class PaperPage : public PropertyPage {
public:
    explicit PaperPage(SheetState& sheetState) : PropertyPage(PAGE_PAPER, sheetState) {}

private:
    void Init() override {
        std::vector<std::string> titles;
        for (const UINT title : kTrayColumns)
            titles.push_back(LocalizedText(title));
        SetColumns(ID_TRAYS, titles);
    }

    void Show() override {
        EnableWindow(Control(ID_TRAY_BUTTON), TrayDialogOf(*state.family.table).id != 0);
        ShowSources();
        for (const PaperChoice& choice : kChoices)
            ShowChoice(choice);
        ShowTrays();
    }

    // Those that are installed, as far as the options or the printer's answers say so.
    void ShowTrays() {
        TableRows rows;
        for (const Document& paper : PapersDocument(state.papers).Elements()) {
            const std::string& key = paper["tray"].Text();
            const InputTrayStatusItem* reported = FindReported(state.report.trays, key.c_str());
            if (reported == nullptr && !IsOffered(paper["bin"].Integer()))
                continue;
            std::vector<std::string> row = {TrayName(state.family, key.c_str()),
                                            reported != nullptr ? TrayLevel(*reported, UserLanguage()) : ""};
            for (const auto& cell : paper.Fields())
                if (cell.name != "bin" && cell.name != "tray")
                    row.push_back(cell.value.IsText() ? cell.value.Text() : "");
            rows.push_back(row);
        }
        SetRows(ID_TRAYS, rows);
    }

    bool IsOffered(int64_t bin) const {
        for (const PaperSource& source : sources)
            if (source.bin == bin)
                return true;
        return false;
    }

    void OnCommand(UINT control, UINT notification) override {
        if (control == ID_TRAY_BUTTON && notification == BN_CLICKED)
            RunModelDialog(TrayDialogOf(*state.family.table));
        else if (control == ID_SOURCE && notification == CBN_SELCHANGE)
            TakeSource();
        else if (notification == CBN_SELCHANGE)
            for (const PaperChoice& choice : kChoices)
                if (choice.control == static_cast<int>(control))
                    TakeChoice(choice);
    }

    // The offered paper sources depend on the installed options.
    void ShowSources() {
        sources = OfferedSources(state);
        std::vector<std::string> names;
        int selected = -1;
        for (const PaperSource& source : sources) {
            if (source.bin == state.settings.inputTray)
                selected = static_cast<int>(names.size());
            names.push_back(source.name);
        }
        SetEntries(ID_SOURCE, names, selected);
        const CapabilityQuestions questions(state.family, state.options);
        const auto answer = [&](WORD question) {
            return LocalizedText(questions.Has(question) ? TEXT_YES : TEXT_NO);
        };
        SetText(ID_FINISHING, LocalizedText(TEXT_FINISHING, {answer(DC_DUPLEX), answer(DC_STAPLE)}));
    }

    void TakeSource() {
        state.settings.inputTray = sources.at(static_cast<size_t>(Send(ID_SOURCE, CB_GETCURSEL))).bin;
        NoteChange();
    }

    void ShowChoice(const PaperChoice& choice) const {
        std::vector<std::string> names;
        int selected = -1;
        for (const CompactItemRecord& item : Listed(state.family.table.get()->*choice.list)) {
            if (item.head.value == Load(state.settings, choice.field))
                selected = static_cast<int>(names.size());
            names.push_back(FieldText(item.display));
        }
        SetEntries(choice.control, names, selected);
    }

    void TakeChoice(const PaperChoice& choice) const {
        const CompactItemRecord* items = state.family.table.get()->*choice.list;
        Store(state.settings, choice.field, items[Send(choice.control, CB_GETCURSEL)].head.value);
        NoteChange();
    }

    std::vector<PaperSource> sources;
};

} // namespace

std::unique_ptr<PropertyPage> MakePaperPage(SheetState& state) {
    return std::make_unique<PaperPage>(state);
}
