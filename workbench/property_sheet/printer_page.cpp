// The page of the printer: its picture, which follows every choice; what is installed; and, asked over the
// network, how full it is and what it stores.
#include "device_job.h"
#include "page_ids.h"
#include "property_page.h"

#include "../output.h"
#include "../picture_file.h"
#include "paramdata/text.h"

#include <commctrl.h>

namespace {

// What people call the options; others go by their key.
constexpr struct {
    const char* key;
    const char* name;
} kOptionNames[] = {
    {"OpMachine", "Machine"},          {"OpBody", "Body"},          {"OpInTrayUnit", "Paper unit"},
    {"OpOutTrayUnit", "Finisher"},     {"OpPunchKit", "Punch kit"}, {"OpMailBinKit", "Mail bins"},
    {"OpSaddleKit", "Saddle kit"},     {"OpFAXUnit", "Fax"},        {"OpHDD", "Hard disk"},
    {"OpInTray1", "Tray 1"},           {"OpInTray2", "Tray 2"},     {"OpInTray3", "Tray 3"},
    {"OpInTray4", "Tray 4"},           {"OpInTray5", "Tray 5"},     {"OpInTrayLCT", "Large-capacity tray"},
    {"OpInTrayManual", "Manual feed"},
};

// The consumables that are told apart by their colour.
constexpr struct {
    const char* key;
    const char* name;
} kSupplyNames[] = {
    {"Consumable2", "Cyan toner"},
    {"Consumable3", "Magenta toner"},
    {"Consumable4", "Yellow toner"},
    {"Consumable5", "Black toner"},
};

constexpr const char* kLevels[] = {"not told", "empty", "nearly empty", "nearly full", "full", "in order"};
constexpr const char* kSteps[kJobSteps] = {"options", "papers", "consumables", "overlays", "colour profiles"};

template <typename Row, size_t N>
std::string NameOf(const Row (&rows)[N], const char* key) {
    for (const Row& row : rows)
        if (SameText(row.key, key))
            return row.name;
    return Utf8(key);
}

bool IsShown(const MrkSupRequestItem& supply) {
    return supply.state == kStatePercent || supply.state == kStateLevel;
}

std::string Describe(const MrkSupRequestItem& supply) {
    const std::string name = NameOf(kSupplyNames, supply.name) + ": ";
    if (supply.state == kStatePercent)
        return name + std::to_string(supply.value) + " %";
    const bool isKnown = supply.value >= 0 && supply.value < static_cast<int32_t>(std::size(kLevels));
    return name + kLevels[isKnown ? supply.value : 0];
}

class PrinterPage : public PropertyPage {
public:
    explicit PrinterPage(SheetState& sheetState) : PropertyPage(PAGE_PRINTER, sheetState) {}

private:
    void Init() override {
        SetColumns(ID_OPTIONS, {"Option", "Installed"});
        Send(ID_PROGRESS, PBM_SETRANGE32, 0, kJobSteps);
    }

    void Show() override {
        SetText(ID_ADDRESS, state.address);
        ShowOptions();
        ShowReport();
    }

    void OnCommand(UINT control, UINT notification) override {
        if (control == ID_OPTION_ITEMS && notification == CBN_SELCHANGE) {
            state.scene.options.settings[static_cast<size_t>(SelectedRow(ID_OPTIONS))] =
                static_cast<int32_t>(Send(ID_OPTION_ITEMS, CB_GETCURSEL));
            ShowOptions();
            NoteChange();
        } else if (control == ID_ADDRESS && notification == EN_CHANGE && Text(ID_ADDRESS) != state.address) {
            state.address = Text(ID_ADDRESS);
            NoteChange();
        } else if (control == ID_ASK && notification == BN_CLICKED) {
            job == nullptr ? Ask() : StopAsking("Stopped.");
        }
    }

    void OnNotify(const NMHDR& note) override {
        if (note.idFrom == ID_OPTIONS && note.code == static_cast<UINT>(LVN_ITEMCHANGED))
            ShowItems();
    }

    void OnDraw(const DRAWITEMSTRUCT& item) override {
        item.CtlID == ID_PICTURE ? DrawPicture(item) : DrawSupply(item);
    }

    void OnMeasure(MEASUREITEMSTRUCT& item) override {
        TEXTMETRICW font = {};
        const HDC dc = GetDC(window);
        const HGDIOBJ before =
            SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)));
        GetTextMetricsW(dc, &font);
        SelectObject(dc, before);
        ReleaseDC(window, dc);
        item.itemHeight = static_cast<UINT>(font.tmHeight * 3 / 2);
    }

    void OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (job == nullptr || wParam != job->number) // of one that has been stopped
            return;
        if (message == kJobProgress)
            ShowProgress(static_cast<int>(lParam));
        else if (message == kJobEnd)
            EndJob();
    }

    void Close() override {
        job.reset();
        stopped.clear();
    }

    // --- Options -------------------------------------------------------------------------------------

    void ShowOptions() {
        const int selected = std::max(SelectedRow(ID_OPTIONS), 0);
        std::vector<std::vector<std::string>> rows;
        for (size_t i = 0; i < state.scene.options.settings.size(); ++i) {
            const ItemRecord* item =
                SelectedItem(state.scene.options.features.data(), state.scene.options.settings.data(),
                             static_cast<int32_t>(i));
            rows.push_back({NameOf(kOptionNames, state.scene.options.features[i].feature.head.key),
                            item != nullptr ? Utf8(item->display) : ""});
        }
        SetRows(ID_OPTIONS, rows);
        SelectRow(ID_OPTIONS, selected);
        ShowItems();
        InvalidateRect(Control(ID_PICTURE), nullptr, FALSE);
    }

    // Of the option that is selected.
    void ShowItems() {
        const int row = SelectedRow(ID_OPTIONS);
        EnableWindow(Control(ID_OPTION_ITEMS), row >= 0);
        if (row < 0)
            return;
        std::vector<std::string> entries;
        const ItemRecord* item = state.scene.options.features[static_cast<size_t>(row)].items;
        for (; item->head.key[0] != 0; ++item)
            entries.push_back(Utf8(item->display));
        SetEntries(ID_OPTION_ITEMS, entries, state.scene.options.settings[static_cast<size_t>(row)]);
    }

    // As the module's bitmaps are, or stretched where the screen's resolution is higher.
    void DrawPicture(const DRAWITEMSTRUCT& item) const {
        const Canvas canvas(kSceneSize);
        DrawScene(state.family, state.scene, canvas.context, kSceneSize);
        SetStretchBltMode(item.hDC, HALFTONE);
        StretchBlt(item.hDC, 0, 0, item.rcItem.right, item.rcItem.bottom, canvas.context, 0, 0, kSceneSize.cx,
                   kSceneSize.cy, SRCCOPY);
    }

    // --- The printer ---------------------------------------------------------------------------------

    void Ask() {
        if (state.address.empty())
            throw Failure(kExitUsage,
                          "The printer's address is missing: enter an IPv4 address or a host name.");
        SetText(ID_ASK, "Stop");
        ShowProgress(0);
        job = std::make_unique<DeviceJob>(state.family, state.address, window, ++jobNumber);
    }

    // Its thread ends with the question that is under way, for which nobody waits before the page is closed.
    void StopAsking(const std::string& status) {
        job->Cancel();
        stopped.push_back(std::move(job));
        SetText(ID_ASK, "As&k Printer");
        Send(ID_PROGRESS, PBM_SETPOS, 0);
        SetText(ID_STATUS, status);
    }

    void ShowProgress(int steps) {
        Send(ID_PROGRESS, PBM_SETPOS, static_cast<WPARAM>(steps));
        if (steps < kJobSteps)
            SetText(ID_STATUS, "Asking for " + std::string(kSteps[steps]) + "...");
    }

    void EndJob() {
        const std::string failure = job->Failure();
        DeviceReport report = std::move(job->Report());
        StopAsking(failure);
        if (!failure.empty())
            return;
        TakeReport(state, std::move(report));
        NoteChange();
        Show();
    }

    void ShowReport() {
        Send(ID_SUPPLIES, LB_RESETCONTENT);
        Send(ID_STORED, LB_RESETCONTENT);
        for (size_t i = 0; i < state.report.supplies.size(); ++i)
            if (IsShown(state.report.supplies[i]))
                Send(ID_SUPPLIES, LB_ADDSTRING, 0, static_cast<LPARAM>(i));
        for (const StoredResources& overlays : state.report.overlays)
            AddStored("Overlay", overlays);
        constexpr const char* kUses[kProfileSelectors] = {"RGB profile", "Simulation profile",
                                                          "Output profile"};
        for (size_t i = 0; i < kProfileSelectors; ++i)
            AddStored(kUses[i], state.report.profiles[i]);
        if (state.hasReport)
            SetText(ID_STATUS, "Told by " + state.address + " over the " + state.report.road + ".");
        else if (job == nullptr)
            SetText(ID_STATUS, "Not asked yet. The picture shows what is chosen above.");
    }

    void AddStored(const std::string& use, const StoredResources& stored) {
        for (const StoredResourceEntry& entry : stored)
            Send(ID_STORED, LB_ADDSTRING, 0,
                 reinterpret_cast<LPARAM>(Wide(use + ": " + Utf8(entry.first)).c_str()));
    }

    // A bar as long as it is full, with what it says.
    void DrawSupply(const DRAWITEMSTRUCT& item) const {
        const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
        FillRect(item.hDC, &item.rcItem, GetSysColorBrush(isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
        if (item.itemID >= UINT32_MAX || item.itemData >= state.report.supplies.size())
            return;
        const MrkSupRequestItem& supply = state.report.supplies[item.itemData];
        RECT place = item.rcItem;
        InflateRect(&place, -3, -2);
        RECT bar = place;
        bar.right = bar.left + (place.right - place.left) * 2 / 5;
        place.left = bar.right + 6;
        FillRect(item.hDC, &bar, GetSysColorBrush(COLOR_BTNFACE));
        if (supply.state == kStatePercent) {
            RECT full = bar;
            full.right = bar.left + MulDiv(bar.right - bar.left, supply.value, 100);
            SetDCBrushColor(item.hDC, supply.color);
            FillRect(item.hDC, &full, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
        }
        FrameRect(item.hDC, &bar, GetSysColorBrush(COLOR_BTNSHADOW));
        SetBkMode(item.hDC, TRANSPARENT);
        SetTextColor(item.hDC, GetSysColor(isSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
        DrawTextW(item.hDC, Wide(Describe(supply)).c_str(), -1, &place,
                  DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        if ((item.itemState & ODS_FOCUS) != 0)
            DrawFocusRect(item.hDC, &item.rcItem);
    }

    std::unique_ptr<DeviceJob> job; // null: the printer is not being asked
    std::vector<std::unique_ptr<DeviceJob>> stopped;
    WPARAM jobNumber = 0;
};

} // namespace

std::unique_ptr<PropertyPage> MakePrinterPage(SheetState& state) {
    return std::make_unique<PrinterPage>(state);
}
