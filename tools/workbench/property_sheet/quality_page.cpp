// The Quality page: the model's colour dialog, and the settings that differ from the defaults.
#include "workbench/lib/json_form.h"
#include "workbench/lib/settings_fields.h"
#include "workbench/property_sheet/page_ids.h"
#include "workbench/property_sheet/property_page.h"

namespace {

std::string Shown(const Document& value) {
    return value.IsText() ? value.Text() : JsonForm(value);
}

class QualityPage : public PropertyPage {
public:
    explicit QualityPage(SheetState& sheetState) : PropertyPage(PAGE_QUALITY, sheetState) {}

private:
    void Init() override { SetColumns(ID_CHANGED, {"Setting", "Default", "Now"}); }

    void Show() override {
        SetText(ID_VARIANT,
                "Colour dialog of this model: " + std::to_string(ColorDialogOf(*state.family.table).id));
        std::vector<std::vector<std::string>> rows;
        for (const Document& change : SettingsChanges(defaultSettings, state.settings).Elements())
            rows.push_back({Shown(change["name"]), Shown(change["before"]), Shown(change["after"])});
        SetRows(ID_CHANGED, rows);
        EnableWindow(Control(ID_DEFAULTS), !rows.empty());
    }

    void OnCommand(UINT control, UINT notification) override {
        if (notification != BN_CLICKED)
            return;
        if (control == ID_COLOR_DIALOG) {
            RunModelDialog(ColorDialogOf(*state.family.table));
        } else if (control == ID_DEFAULTS) {
            SetFocus(Control(ID_COLOR_DIALOG)); // the focus must not stay on a disabled button
            state.settings = defaultSettings;
            OfferedSources(state);
            NoteChange();
            Show();
        }
    }
};

} // namespace

std::unique_ptr<PropertyPage> MakeQualityPage(SheetState& state) {
    return std::make_unique<QualityPage>(state);
}
