// `workbench tour`: opens the property sheet, uses every page as a person would, and saves a picture of each.
// What the model lacks is passed over.
#include "workbench/commands/commands.h"
#include "workbench/lib/settings_fields.h"
#include "workbench/property_sheet/page_driver.h"
#include "workbench/property_sheet/page_ids.h"

namespace {

constexpr DWORD kMaxWait = 60000; // milliseconds, for a printer's answers

// The name of the item with the key, else of the last item; empty when the list is empty.
template <typename Record>
std::string NameIn(const Record* list, const char* key) {
    const Rows<Record> items = Listed(list);
    const Record* item = FindByKey(list, key);
    if (item == nullptr && items.count > 0)
        item = items.end() - 1;
    return item != nullptr ? FieldText(item->display) : "";
}

struct Tour {
    SheetState& state;
    SheetUser& user;
    PageDriver driver;
    std::filesystem::path folder;
    std::string status = {}; // of the query
    Document pictures = Document::MakeList();

    void SavePicture(const std::string& name) {
        pictures.Add(driver.Picture((folder / (name + ".png")).u8string()));
    }
};

void VisitPrinter(Tour& tour, const std::string& address) {
    const PageDriver& driver = tour.driver;
    driver.TurnTo(kPrinterPage);
    driver.SetText(ID_ADDRESS, address);
    if (!address.empty()) {
        driver.Click(ID_QUERY);
        driver.WaitUntil([&] { return !tour.state.isQuerying; }, kMaxWait);
    }
    tour.status = driver.Text(ID_STATUS);
    if (const ItemRecord* fax = FindOption(tour.state.options, "OpFAXUnit=EnaOpFAXKit")) {
        driver.Choose(ID_OPTIONS, "Fax");
        driver.Choose(ID_OPTION_ITEMS, FieldText(fax->display));
    }
    tour.SavePicture("page-printer");
}

void VisitPaper(Tour& tour) {
    const DeviceTable& table = *tour.state.family.table;
    const std::string tray = NameIn(table.inputTrays, "InTray2"),
                      type = NameIn(table.mediaTypes, "Letterhead");
    tour.driver.TurnTo(kPaperPage);
    if (!tray.empty())
        tour.driver.Choose(ID_SOURCE, tray);
    if (!type.empty())
        tour.driver.Choose(ID_TYPE, type);
    if (TrayDialogOf(table).id != 0 && !tray.empty()) {
        tour.user.script = ParseDialogScript(
            "choose 1844 " + tray + "\nchoose 1860 " + NameIn(table.paperSizes, "A3") + "\nok", "tour");
        tour.driver.Click(ID_TRAY_BUTTON);
    }
    tour.SavePicture("page-paper");
}

void VisitQuality(Tour& tour) {
    tour.driver.TurnTo(kQualityPage);
    if (tour.state.family.table->colorDevice != 0) {
        tour.user.script = ParseDialogScript(
            "choose 1354 " + NameIn(colorTables.image.colorMatches.items, "Img_Match") + "\nok", "tour");
        tour.driver.Click(ID_COLOR_DIALOG);
    }
    tour.SavePicture("page-quality");
}

void VisitVersion(Tour& tour, bool resets) {
    tour.driver.TurnTo(kVersionPage);
    tour.SavePicture("page-version");
    if (resets)
        tour.driver.Click(ID_RESET);
}

} // namespace

Document TourSheet(const FamilyFiles& family, const TourOptions& options) {
    const Library templates = OpenTemplates(family);
    SheetState state(family, templates.get());
    SheetUser user;
    state.user = &user;
    state.file = std::filesystem::u8path(options.state);
    const std::string warning = LoadState(state);
    SheetWindow sheet(state);
    const std::string title = TextOf(sheet.Window());
    Tour tour = {state, user, PageDriver(sheet), std::filesystem::u8path(options.out)};
    VisitPrinter(tour, options.from);
    VisitPaper(tour);
    VisitQuality(tour);
    VisitVersion(tour, options.resets);
    tour.driver.Press(PSBTN_OK);
    if (!user.failures.empty())
        throw Failure(kExitFailed, user.failures.front());
    Document settings = SavingDocument(state);
    settings["warning"] = warning;
    return {{"pictures", tour.pictures},
            {"sheet", {{"title", title}}},
            {"settings", settings},
            {"printer",
             {{"address", state.address}, {"reportedBy", state.report.address}, {"status", tour.status}}},
            {"options", OptionsDocument(state.options)},
            {"changes", SettingsChanges(defaultSettings, state.settings)},
            {"trays", PapersDocument(state.papers)}};
}
