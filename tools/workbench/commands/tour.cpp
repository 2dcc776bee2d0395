// `workbench tour`: opens the property sheet, uses every page as a person would, and saves a picture of each.
// Skips what the model lacks.
#include "workbench/commands/commands.h"
#include "workbench/lib/option_words.h"
#include "workbench/lib/settings_fields.h"
#include "workbench/lib/text.h"
#include "workbench/property_sheet/page_driver.h"
#include "workbench/property_sheet/page_ids.h"

namespace {

constexpr DWORD kMaxWait = 60000; // milliseconds, for a printer's answers

// The item with the key, else the last item; null when the list is empty.
template <typename Record>
const Record* ItemIn(const Record* list, const char* key) {
    const Rows<Record> items = Listed(list);
    const Record* item = FindByKey(list, key);
    return item != nullptr || items.count == 0 ? item : items.end() - 1;
}

template <typename Record>
std::string NameIn(const Record* list, const char* key) {
    const Record* item = ItemIn(list, key);
    return item != nullptr ? FieldText(item->display) : "";
}

// The position of the tray with this bin in the tray dialog and the list of papers; the last one if it is
// beyond.
size_t TrayPosition(const TrayPapers& papers, uint32_t bin) {
    size_t last = 0;
    for (size_t i = 0; i < papers.size() && papers[i].key[0] != 0; ++i) {
        if (papers[i].bin == bin)
            return i;
        last = i;
    }
    return last;
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
    if (!address.empty()) {
        driver.SetText(ID_ADDRESS, address);
        driver.Click(ID_QUERY);
        driver.WaitUntil([&] { return !tour.state.isQuerying; }, kMaxWait);
        if (tour.state.failure)
            throw PrinterFailure(*tour.state.failure);
    }
    tour.status = driver.Text(ID_STATUS);
    if (const ItemRecord* fax = FindOption(tour.state.options, "OpFAXUnit=EnaOpFAXKit")) {
        driver.Choose(ID_OPTIONS, OptionName("OpFAXUnit"));
        driver.Choose(ID_OPTION_ITEMS, FieldText(fax->display));
    }
    tour.SavePicture("page-printer");
}

void VisitPaper(Tour& tour) {
    const DeviceTable& table = *tour.state.family.table;
    const InputSlotRecord* tray = ItemIn(table.inputTrays, "InTray2");
    const CompactItemRecord* type = ItemIn(table.mediaTypes, "Letterhead");
    tour.driver.TurnTo(kPaperPage);
    if (tray != nullptr) { // the page shows names that may be cut
        const std::vector<PaperSource> sources = OfferedSources(tour.state);
        for (size_t i = 0; i < sources.size(); ++i)
            if (sources[i].bin == tray->head.value)
                tour.driver.ChooseAt(ID_SOURCE, i);
    }
    if (type != nullptr)
        tour.driver.ChooseAt(ID_TYPE, static_cast<size_t>(type - table.mediaTypes));
    if (TrayDialogOf(table).id != 0 && tray != nullptr) {
        const size_t row = TrayPosition(tour.state.papers, tray->head.value);
        tour.user.script = ParseDialogScript("choose 1844 #" + std::to_string(row) + "\nchoose 1860 "
                                                 + NameIn(table.paperSizes, "A3") + "\nok",
                                             "tour");
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
    SendMessageW(sheet.Window(), WM_NCACTIVATE, TRUE, 0); // nothing else activates it on a hidden screen
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
