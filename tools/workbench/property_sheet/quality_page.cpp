// The page of the quality: the model's colour dialog, and what it has changed.
#include "workbench/property_sheet/page_ids.h"
#include "workbench/property_sheet/property_page.h"

#include "paramdata/default_settings.h"
#include "paramdata/devmode_fields.h"
#include "workbench/lib/json_form.h"
#include "workbench/lib/settings_fields.h"

namespace {

// The colour dialog by the type of the model's "ColorSetting"; any other has the basic one.
constexpr struct {
    uint32_t type;
    uint32_t dialog;
} kVariants[] = {{1, 128}, {2, 122}, {4, 124}, {5, 125}};
constexpr uint32_t kBasicDialog = 123;

uint32_t ColorDialogOf(const DeviceTable& table) {
    for (const auto& row : kVariants)
        if (row.type == SwitchValue(&table, kSwitchColorSetting))
            return row.dialog;
    return kBasicDialog;
}

std::string Shown(const Document& value) {
    return value.IsText() ? value.Text() : JsonForm(value);
}

class QualityPage : public PropertyPage {
public:
    explicit QualityPage(SheetState& sheetState) : PropertyPage(PAGE_QUALITY, sheetState) {}

private:
    void Init() override { SetColumns(ID_CHANGED, {"Setting", "Default", "Now"}); }

    void Show() override {
        SetText(ID_VARIANT, "This model's colour dialog is number "
                                + std::to_string(ColorDialogOf(*state.family.table)) + ".");
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
            RunModelDialog(ColorDialogOf(*state.family.table), false);
        } else if (control == ID_DEFAULTS) {
            SetFocus(Control(ID_COLOR_DIALOG)); // this button goes grey
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
