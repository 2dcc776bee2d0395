// The Quality page: the model's colour dialog, and the colour settings that differ from the defaults.
#include "workbench/lib/localized_text.h"
#include "workbench/property_sheet/color_settings.h"
#include "workbench/property_sheet/page_ids.h"
#include "workbench/property_sheet/property_page.h"
#include "workbench/property_sheet/text_ids.h"

namespace {

class QualityPage : public PropertyPage {
public:
    explicit QualityPage(SheetState& sheetState) : PropertyPage(PAGE_QUALITY, sheetState) {}

private:
    void Init() override {
        const bool isColor = state.family.table->colorDevice != 0;
        ShowWindow(Control(ID_COLOR_DIALOG), isColor ? SW_SHOW : SW_HIDE);
        ShowWindow(Control(ID_BLACK_ONLY), isColor ? SW_HIDE : SW_SHOW);
    }

    void Show() override {
        const bool withNumbers = Send(ID_DETAILS, BM_GETCHECK) == BST_CHECKED;
        std::vector<std::string> titles = {LocalizedText(TEXT_SETTING), LocalizedText(TEXT_DEFAULT),
                                           LocalizedText(TEXT_NOW)};
        if (withNumbers)
            titles.push_back(LocalizedText(TEXT_NUMBERS));
        SetColumns(ID_CHANGED, titles);
        TableRows rows;
        for (const ChangedColorSetting& change : ChangedColorSettings(state.family, state.settings)) {
            rows.push_back({change.name, change.before, change.after});
            if (withNumbers)
                rows.back().push_back(change.numbers);
        }
        SetRows(ID_CHANGED, rows);
        EnableWindow(Control(ID_DETAILS), !rows.empty());
        EnableWindow(Control(ID_DEFAULTS), !rows.empty());
    }

    void OnCommand(UINT control, UINT notification) override {
        if (notification != BN_CLICKED)
            return;
        if (control == ID_COLOR_DIALOG) {
            RunModelDialog(ColorDialogOf(*state.family.table));
        } else if (control == ID_DETAILS) {
            Show();
        } else if (control == ID_DEFAULTS) {
            SetFocus(Control(ID_COLOR_DIALOG)); // the focus must not stay on a disabled button
            ResetColorSettings(state.settings);
            NoteChange();
            Show();
        }
    }
};

} // namespace

std::unique_ptr<PropertyPage> MakeQualityPage(SheetState& state) {
    return std::make_unique<QualityPage>(state);
}
