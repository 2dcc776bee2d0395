// The Printer page: the picture of the printer, its options, and the results of querying it: consumables and
// stored overlays and profiles.
#include "workbench/property_sheet/device_job.h"
#include "workbench/property_sheet/page_ids.h"
#include "workbench/property_sheet/property_page.h"

#include "workbench/lib/picture.h"
#include "workbench/lib/text.h"

#include <algorithm>
#include <list>

#include <commctrl.h>

namespace {

// The consumables that report a level, in the order in which they are shown.
constexpr struct {
    const char* key;
    const char* name;
} kSupplyNames[] = {
    {"Consumable2", "Cyan toner"},  {"Consumable3", "Magenta toner"},    {"Consumable4", "Yellow toner"},
    {"Consumable5", "Black toner"}, {"Consumable11", "Waste toner box"},
};

constexpr const char* kNotReported = "unknown";
constexpr const char* kLevels[] = {kNotReported, "empty", "nearly empty", "nearly full", "full", "in order"};

std::string SupplyText(const char* name, const MrkSupRequestItem& supply) {
    const auto value = static_cast<size_t>(supply.value); // a negative value becomes greater than all levels
    return std::string(name) + ": "
           + (supply.state == TELMAR_STATE_PERCENT ? std::to_string(supply.value) + " %"
              : supply.state == TELMAR_STATE_LEVEL && value < std::size(kLevels) ? kLevels[value]
                                                                                 : kNotReported);
}

class PrinterPage : public PropertyPage {
public:
    explicit PrinterPage(SheetState& sheetState) : PropertyPage(PAGE_PRINTER, sheetState) {}

private:
    void Init() override {
        SetColumns(ID_OPTIONS, {"Option", "Installed"});
        Send(ID_PROGRESS, PBM_SETRANGE32, 0, kJobSteps);
        Send(ID_SUPPLIES, LB_SETITEMHEIGHT, 0, FontHeight() * 5 / 4);
    }

    void Show() override {
        SetText(ID_ADDRESS, state.address);
        SetText(ID_STATUS, state.status);
        ShowOptions();
        ShowReport();
    }

    void OnCommand(UINT control, UINT notification) override {
        if (control == ID_OPTION_ITEMS && notification == CBN_SELCHANGE) {
            ChangeOption(static_cast<size_t>(SelectedOption()));
        } else if (control == ID_ADDRESS && notification == EN_CHANGE && Text(ID_ADDRESS) != state.address) {
            state.address = Text(ID_ADDRESS);
            NoteChange();
        } else if (control == ID_QUERY && notification == BN_CLICKED) {
            state.isQuerying ? StopQuery() : StartQuery();
        }
    }

    void OnNotify(const NMHDR& note) override {
        if (note.idFrom == ID_OPTIONS && note.code == static_cast<UINT>(LVN_ITEMCHANGED))
            ShowItems();
    }

    void OnDraw(const DRAWITEMSTRUCT& item) override {
        item.CtlID == ID_PICTURE ? DrawPicture(item) : DrawSupply(item);
    }

    void OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (job == nullptr || wParam != job->number) // of a query that was stopped
            return;
        if (message == kJobProgress)
            ShowProgress(static_cast<int>(lParam));
        else if (message == kJobEnd)
            EndJob();
    }

    void Close() override {
        job.reset();
        stopped.clear();
        state.isQuerying = false;
    }

    // --- Options -------------------------------------------------------------------------------------

    void ShowOptions() {
        const int selected = std::max(SelectedOption(), 0);
        std::vector<std::vector<std::string>> rows;
        for (size_t i = 0; i < state.options.settings.size(); ++i)
            rows.push_back({OptionName(state.options.features[i].feature.head.key), NameOfItem(i)});
        SetRows(ID_OPTIONS, rows);
        SelectEntry(Control(ID_OPTIONS), static_cast<WPARAM>(selected));
        ShowItems();
        InvalidateRect(Control(ID_PICTURE), nullptr, FALSE);
    }

    std::string NameOfItem(size_t option) const {
        const ItemRecord* item = CurrentItem(state.options, option);
        return item != nullptr ? FieldText(item->display) : "";
    }

    int SelectedOption() const { return SelectionOf(Control(ID_OPTIONS)); }

    // Of the selected option.
    void ShowItems() {
        const int row = SelectedOption();
        EnableWindow(Control(ID_OPTION_ITEMS), row >= 0);
        if (row < 0)
            return;
        std::vector<std::string> entries;
        for (const ItemRecord& item : Listed(state.options.features[static_cast<size_t>(row)].items))
            entries.push_back(FieldText(item.display));
        SetEntries(ID_OPTION_ITEMS, entries, state.options.settings[static_cast<size_t>(row)]);
    }

    void ChangeOption(size_t option) {
        state.options.settings.at(option) = static_cast<int32_t>(Send(ID_OPTION_ITEMS, CB_GETCURSEL));
        OfferedSources(state);
        SetCell(ID_OPTIONS, option, 1, NameOfItem(option));
        InvalidateRect(Control(ID_PICTURE), nullptr, FALSE);
        NoteChange();
    }

    // In the size of the module's bitmaps, enlarged if the screen's resolution is higher.
    void DrawPicture(const DRAWITEMSTRUCT& item) const {
        const Canvas canvas(kSceneSize);
        DrawScene(state.family, SceneOf(state), canvas.context, kSceneSize);
        SetStretchBltMode(item.hDC, HALFTONE);
        StretchBlt(item.hDC, 0, 0, item.rcItem.right, item.rcItem.bottom, canvas.context, 0, 0, kSceneSize.cx,
                   kSceneSize.cy, SRCCOPY);
    }

    // --- The printer ---------------------------------------------------------------------------------

    void StartQuery() {
        if (state.address.empty())
            throw Failure(kExitUsage,
                          "The printer address is missing: enter an IPv4 address or a host name.");
        stopped.remove_if([](const auto& other) { return other->HasEnded(); });
        job = std::make_unique<DeviceJob>(state.family, state.address, window, ++jobNumber);
        state.isQuerying = true;
        state.report = {};
        ShowReport();
        SetText(ID_QUERY, TEXT_STOP);
        ShowProgress(0);
    }

    // The thread continues until its current query ends. It is joined later, at the latest when the page
    // closes.
    void StopQuery() {
        job->Cancel();
        stopped.push_back(std::move(job));
        ShowEnd("Stopped.");
    }

    void ShowProgress(int steps) {
        Send(ID_PROGRESS, PBM_SETPOS, static_cast<WPARAM>(steps));
        if (steps < kJobSteps)
            ShowStatus("Requesting " + std::string(StepName(steps)) + "...");
    }

    void EndJob() {
        const std::unique_ptr<DeviceJob> ended = std::move(job);
        if (!ended->Error().empty()) {
            ShowEnd(ended->Error());
            return;
        }
        const DeviceReport& report = ended->Report();
        ShowEnd("Reported by " + report.address + " (" + report.transport + ")."
                + (report.missing.empty() ? "" : " Not available: " + report.missing + "."));
        ApplyReport(state, std::move(ended->Report()));
        NoteChange();
        Show();
    }

    void ShowEnd(const std::string& status) {
        state.isQuerying = false;
        SetText(ID_QUERY, TEXT_QUERY);
        Send(ID_PROGRESS, PBM_SETPOS, 0);
        ShowStatus(status);
    }

    void ShowStatus(const std::string& status) {
        state.status = status;
        SetText(ID_STATUS, status);
    }

    void ShowReport() {
        supplies.clear();
        Send(ID_SUPPLIES, LB_RESETCONTENT);
        for (const auto& row : kSupplyNames)
            for (const MrkSupRequestItem& supply : state.report.supplies)
                if (SameText(supply.name, row.key))
                    supplies.push_back({row.name, supply});
        for (const ShownSupply& supply : supplies)
            Send(ID_SUPPLIES, LB_ADDSTRING, 0,
                 reinterpret_cast<LPARAM>(Wide(SupplyText(supply.name, supply.answer)).c_str()));

        Send(ID_STORED, LB_RESETCONTENT);
        for (const StoredResources& overlays : state.report.overlays)
            AddStored("Overlay", overlays);
        constexpr const char* kUses[TELMAR_PROFILE_SELECTORS] = {"RGB profile", "Simulation profile",
                                                                 "Output profile"};
        for (size_t i = 0; i < TELMAR_PROFILE_SELECTORS; ++i)
            AddStored(kUses[i], state.report.profiles[i]);
    }

    void AddStored(const std::string& use, const StoredResources& stored) {
        for (const StoredResourceEntry& entry : stored)
            Send(ID_STORED, LB_ADDSTRING, 0,
                 reinterpret_cast<LPARAM>(Wide(use + ": " + Utf8(entry.first)).c_str()));
    }

    // A bar that shows the level, and the text.
    void DrawSupply(const DRAWITEMSTRUCT& item) const {
        const bool isSelected = (item.itemState & ODS_SELECTED) != 0;
        FillRect(item.hDC, &item.rcItem, GetSysColorBrush(isSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
        if (item.itemID >= supplies.size())
            return;
        const auto& [name, supply] = supplies[item.itemID];
        RECT place = item.rcItem;
        InflateRect(&place, -3, -2);
        RECT bar = place;
        bar.right = bar.left + (place.right - place.left) * 2 / 5;
        place.left = bar.right + 6;
        FillRect(item.hDC, &bar, GetSysColorBrush(COLOR_BTNFACE));
        if (supply.state == TELMAR_STATE_PERCENT) {
            RECT full = bar;
            full.right = bar.left + MulDiv(bar.right - bar.left, supply.value, 100);
            SetDCBrushColor(item.hDC, supply.color);
            FillRect(item.hDC, &full, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
        }
        FrameRect(item.hDC, &bar, GetSysColorBrush(COLOR_BTNSHADOW));
        SetBkMode(item.hDC, TRANSPARENT);
        SetTextColor(item.hDC, GetSysColor(isSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
        DrawTextW(item.hDC, Wide(SupplyText(name, supply)).c_str(), -1, &place,
                  DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        if ((item.itemState & ODS_FOCUS) != 0)
            DrawFocusRect(item.hDC, &item.rcItem);
    }

    struct ShownSupply {
        const char* name;
        MrkSupRequestItem answer;
    };

    std::vector<ShownSupply> supplies;             // by position in the list
    std::unique_ptr<DeviceJob> job;                // null: no query is running
    std::list<std::unique_ptr<DeviceJob>> stopped; // not joined yet
    WPARAM jobNumber = 0;
};

} // namespace

std::unique_ptr<PropertyPage> MakePrinterPage(SheetState& state) {
    return std::make_unique<PrinterPage>(state);
}
