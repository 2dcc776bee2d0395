// The Version page: the logo, the files of the driver and the reset button.
#include "workbench/property_sheet/page_ids.h"
#include "workbench/property_sheet/property_page.h"

namespace {

constexpr const char* kFiles[] = {"TELMAR_D.DLL", "TELMAR_D.PRM", "TELMAR_S.DLL", "TELMAR_U.DLL",
                                  "TELMAR_B.DLL"};

class VersionPage : public PropertyPage {
public:
    explicit VersionPage(SheetState& sheetState) : PropertyPage(PAGE_VERSION, sheetState) {}

private:
    void Init() override { SetColumns(ID_FILES, {"File", "Version", "Bytes"}); }

    void Show() override {
        std::vector<std::vector<std::string>> rows;
        for (const char* name : kFiles) {
            const auto path = state.family.modulePath.parent_path() / name;
            std::error_code error;
            const auto size = std::filesystem::file_size(path, error);
            const bool hasVersion = path.extension() != ".PRM";
            rows.push_back({name,
                            error        ? "missing"
                            : hasVersion ? FileVersion(path)
                                         : "",
                            error ? "" : std::to_string(size)});
        }
        SetRows(ID_FILES, rows);
    }

    void OnCommand(UINT control, UINT notification) override {
        if (control != ID_RESET || notification != BN_CLICKED)
            return;
        ResetState(state);
        NoteChange();
        Show();
    }

    void OnDraw(const DRAWITEMSTRUCT& item) override {
        // The logo is drawn on the page's background, whatever that is.
        POINT origin = {0, 0};
        MapWindowPoints(item.hwndItem, window, &origin, 1);
        SetViewportOrgEx(item.hDC, -origin.x, -origin.y, nullptr);
        SendMessageW(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(item.hDC), 0);
        SetViewportOrgEx(item.hDC, 0, 0, nullptr);
        EXPORT(state.family, DrawLogoVersionTab)
        (item.hDC, nullptr, item.rcItem.right / 2, item.rcItem.bottom / 2);
    }
};

} // namespace

std::unique_ptr<PropertyPage> MakeVersionPage(SheetState& state) {
    return std::make_unique<VersionPage>(state);
}
