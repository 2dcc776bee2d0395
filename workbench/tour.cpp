// `workbench tour`: opens the property sheet, uses every page of it as a person would, and saves a picture of
// each.
#include "commands.h"
#include "dialog_view.h"
#include "output.h"
#include "paramdata/default_settings.h"
#include "property_sheet/page_ids.h"
#include "property_sheet/sheet_window.h"
#include "settings_fields.h"

#include <commctrl.h>

namespace {

constexpr DWORD kLongestWait = 60000; // milliseconds, for a printer's answers

struct Options {
    std::string out; // UTF-8, as all texts of the command line
    std::string from;
    std::string state;
    bool resets = false;
};

// A sheet that is used by messages.
struct Tour {
    SheetState& state;
    SheetWindow& sheet;
    std::filesystem::path folder;
    std::string status = {}; // of asking the printer
    Document pictures = Document::array();

    HWND Control(int id) const { return GetDlgItem(sheet.CurrentPage(), id); }

    void TurnTo(int page) const { SendMessageW(sheet.Window(), PSM_SETCURSEL, static_cast<WPARAM>(page), 0); }

    void Click(int button) const { SendMessageW(Control(button), BM_CLICK, 0, 0); }

    // Chooses the first entry, or row, with this text.
    void Choose(int list, const std::string& wanted) const {
        const std::vector<std::string> entries = EntriesOf(Control(list));
        for (size_t i = 0; i < entries.size(); ++i)
            if (entries[i] == wanted) {
                SelectEntry(Control(list), i);
                SendMessageW(sheet.CurrentPage(), WM_COMMAND, MAKEWPARAM(list, CBN_SELCHANGE),
                             reinterpret_cast<LPARAM>(Control(list)));
                return;
            }
        throw Failure(kExitFailed, "the page has no '" + wanted + "' in list " + std::to_string(list));
    }

    // Until the page says that the printer is not being asked any more.
    void WaitForPrinter() const {
        const DWORD start = GetTickCount();
        wchar_t label[32] = L"Stop";
        while (lstrcmpW(label, L"Stop") == 0 && sheet.HandleMessage()) {
            GetWindowTextW(Control(ID_ASK), label, 32);
            if (GetTickCount() - start > kLongestWait)
                throw Failure(kExitFailed, "the printer keeps the page waiting; try again");
        }
    }

    void Picture(const std::string& name) {
        pictures.push_back(TakePicture(sheet.Window(), (folder / (name + ".png")).u8string()));
    }
};

void VisitPrinter(Tour& tour, const std::string& address) {
    tour.TurnTo(0);
    SetWindowTextW(tour.Control(ID_ADDRESS), Wide(address).c_str());
    if (!address.empty()) {
        tour.Click(ID_ASK);
        tour.WaitForPrinter();
    }
    wchar_t text[256] = L"";
    GetWindowTextW(tour.Control(ID_STATUS), text, 256);
    tour.status = Utf8(text);
    tour.Choose(ID_OPTIONS, "Fax");
    tour.Choose(ID_OPTION_ITEMS, "Installed");
    tour.Picture("page-printer");
}

void VisitPaper(Tour& tour, DialogScript& script) {
    tour.TurnTo(1);
    tour.Choose(ID_SOURCE, "Tray 2");
    tour.Choose(ID_TYPE, "Letterhead");
    script = ParseDialogScript("choose 1844 Tray 2\nchoose 1860 A3\nok", "tour");
    tour.Click(ID_TRAY_BUTTON);
    tour.Picture("page-paper");
}

void VisitQuality(Tour& tour, DialogScript& script) {
    tour.TurnTo(2);
    script = ParseDialogScript("choose 1354 Exact match\nok", "tour");
    tour.Click(ID_COLOR_DIALOG);
    tour.Picture("page-quality");
}

void VisitVersion(Tour& tour, bool resets) {
    tour.TurnTo(3);
    tour.Picture("page-version");
    if (resets)
        tour.Click(ID_RESET);
}

Document RunTour(const FamilyFiles& family, const Options& options) {
    const Library templates = OpenTemplates(family);
    SheetState state(family, templates.get());
    state.file = std::filesystem::u8path(options.state);
    LoadState(state);
    DialogScript script;
    state.script = &script;
    SheetWindow sheet(state);
    Tour tour = {state, sheet, std::filesystem::u8path(options.out)};
    VisitPrinter(tour, options.from);
    VisitPaper(tour, script);
    VisitQuality(tour, script);
    VisitVersion(tour, options.resets);
    SendMessageW(sheet.Window(), PSM_PRESSBUTTON, PSBTN_OK, 0);
    return {{"pictures", tour.pictures},
            {"printer", {{"address", state.address}, {"told", state.hasReport}, {"status", tour.status}}},
            {"options", OptionsDocument(state.scene.options)},
            {"changes", SettingsChanges(defaultSettings, state.settings)},
            {"trays", PapersDocument(state.papers)}};
}

} // namespace

Run SetUpTour(CLI::App& command) {
    const auto options = std::make_shared<Options>();
    command.add_option("--out", options->out, "Folder for the pictures")->type_name("DIR")->required();
    command.add_option("--from", options->from, "Asks this printer (IPv4 address or host name)")
        ->type_name("ADDRESS");
    command.add_option("--state", options->state, "Where settings are kept; otherwise nowhere")
        ->type_name("FILE");
    command.add_flag("--reset", options->resets, "Puts everything back at the end");
    return [options](const FamilyFiles& family) { return RunTour(family, *options); };
}
