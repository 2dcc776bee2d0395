// The Version page: the logo, the files of the driver and the reset button.
#include "workbench/lib/localized_text.h"
#include "workbench/lib/model_name.h"
#include "workbench/lib/text.h"
#include "workbench/property_sheet/list_view.h"
#include "workbench/property_sheet/page_ids.h"
#include "workbench/property_sheet/property_page.h"
#include "workbench/property_sheet/text_ids.h"

namespace {

constexpr const char* kFiles[] = {"TELMAR_D.DLL", "TELMAR_D.PRM", "TELMAR_S.DLL", "TELMAR_U.DLL",
                                  "TELMAR_B.DLL"};
constexpr UINT kFileColumns[] = {TEXT_FILE, TEXT_VERSION, TEXT_DATE, TEXT_BYTES};

// With the separators of the user's language.
std::string GroupedNumber(uint64_t number) {
    wchar_t separator[8] = L"";
    GetLocaleInfoW(GetThreadLocale(), LOCALE_STHOUSAND, separator, static_cast<int>(std::size(separator)));
    std::wstring text = std::to_wstring(number);
    for (size_t at = text.size(); at > 3; at -= 3)
        text.insert(at - 3, separator);
    return Utf8(text);
}

// The short form of the user's language, in local time.
std::string DateText(const FILETIME& time) {
    FILETIME local = {};
    SYSTEMTIME date = {};
    wchar_t text[64] = L"";
    FileTimeToLocalFileTime(&time, &local);
    FileTimeToSystemTime(&local, &date);
    GetDateFormatW(GetThreadLocale(), DATE_SHORTDATE, &date, nullptr, text,
                   static_cast<int>(std::size(text)));
    return Utf8(text);
}

// The parameter data file has no version of its own; its date distinguishes two of them.
std::vector<std::string> FileRow(const std::filesystem::path& path) {
    WIN32_FILE_ATTRIBUTE_DATA facts = {};
    const std::string name = path.filename().u8string();
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &facts))
        return {name, LocalizedText(TEXT_MISSING), "", ""};
    return {name, path.extension() == ".PRM" ? "" : FileVersion(path), DateText(facts.ftLastWriteTime),
            GroupedNumber(uint64_t{facts.nFileSizeHigh} << 32 | facts.nFileSizeLow)};
}

// As lines of cells between tabs, which spreadsheets and mail programs show as a table.
std::string TableText(const TableRows& rows) {
    std::string text;
    for (const std::vector<std::string>& row : rows)
        for (size_t i = 0; i < row.size(); ++i)
            text += row[i] + (i + 1 < row.size() ? "\t" : "\r\n");
    return text;
}

class VersionPage : public PropertyPage {
public:
    explicit VersionPage(SheetState& sheetState) : PropertyPage(PAGE_VERSION, sheetState) {}

private:
    void Init() override { SetColumns(ID_FILES, Titles()); }

    void Show() override { SetRows(ID_FILES, Files()); }

    void OnCommand(UINT control, UINT notification) override {
        if (notification != BN_CLICKED)
            return;
        if (control == ID_COPY) {
            TableRows table = Files();
            table.insert(table.begin(), Titles());
            PutOnClipboard(window, ModelName(state.family) + "\r\n" + TableText(table));
        } else if (control == ID_RESET && Confirm(LocalizedText(TEXT_ASK_RESET))) {
            ResetState(state);
            NoteChange();
            NotifyPages(Event::kReset);
        }
    }

    void OnDraw(const DRAWITEMSTRUCT& item) override {
        // The logo is drawn on the page's background, whatever that is.
        POINT origin = {0, 0};
        MapWindowPoints(item.hwndItem, window, &origin, 1);
        SetViewportOrgEx(item.hDC, -origin.x, -origin.y, nullptr);
        SendMessageW(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(item.hDC), 0);
        SetViewportOrgEx(item.hDC, 0, 0, nullptr);
        // The module draws in pixels of 96 dots per inch.
        const int dpi = GetDeviceCaps(item.hDC, LOGPIXELSX);
        const auto logical = [dpi](LONG pixels) { return MulDiv(pixels, 96, dpi); };
        SetMapMode(item.hDC, MM_ANISOTROPIC);
        SetWindowExtEx(item.hDC, 96, 96, nullptr);
        SetViewportExtEx(item.hDC, dpi, dpi, nullptr);
        SetStretchBltMode(item.hDC, HALFTONE);
        EXPORT(state.family, DrawLogoVersionTab)
        (item.hDC, nullptr, logical(item.rcItem.right / 2), logical(item.rcItem.bottom / 2));
        SetMapMode(item.hDC, MM_TEXT);
    }

    static std::vector<std::string> Titles() {
        std::vector<std::string> titles;
        for (const UINT title : kFileColumns)
            titles.push_back(LocalizedText(title));
        return titles;
    }

    TableRows Files() const {
        TableRows rows;
        for (const char* name : kFiles)
            rows.push_back(FileRow(state.family.modulePath.parent_path() / name));
        return rows;
    }
};

} // namespace

std::unique_ptr<PropertyPage> MakeVersionPage(SheetState& state) {
    return std::make_unique<VersionPage>(state);
}
