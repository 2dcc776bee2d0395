// The page of the printer: its picture, which follows every choice; what is installed; and, asked over the
// network, how full it is and what it stores.
#include "workbench/property_sheet/device_job.h"
#include "workbench/property_sheet/page_ids.h"
#include "workbench/property_sheet/property_page.h"

#include "base/text.h"
#include "workbench/lib/output.h"
#include "workbench/lib/picture_file.h"

#include <algorithm>
#include <list>

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

// The consumables that tell how full they are, in the order in which they are shown.
constexpr struct {
    const char* key;
    const char* name;
} kSupplyNames[] = {
    {"Consumable2", "Cyan toner"},  {"Consumable3", "Magenta toner"},    {"Consumable4", "Yellow toner"},
    {"Consumable5", "Black toner"}, {"Consumable11", "Waste toner box"},
};

constexpr const char* kNotTold = "not told";
constexpr const char* kLevels[] = {kNotTold, "empty", "nearly empty", "nearly full", "full", "in order"};

const char* OptionName(const char* key) {
    for (const auto& row : kOptionNames)
        if (SameText(row.key, key))
            return row.name;
    return key;
}

std::string Describe(const char* name, const MrkSupRequestItem& supply) {
    const auto value = static_cast<size_t>(supply.value); // beyond all levels where it is negative
    return std::string(name) + ": "
           + (supply.state == TELMAR_STATE_PERCENT ? std::to_string(supply.value) + " %"
              : supply.state == TELMAR_STATE_LEVEL && value < std::size(kLevels) ? kLevels[value]
                                                                                 : kNotTold);
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
            TakeOption(static_cast<size_t>(SelectedRow(ID_OPTIONS)));
        } else if (control == ID_ADDRESS && notification == EN_CHANGE && Text(ID_ADDRESS) != state.address) {
            state.address = Text(ID_ADDRESS);
            NoteChange();
        } else if (control == ID_ASK && notification == BN_CLICKED) {
            state.isAsking ? StopAsking() : Ask();
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
        state.isAsking = false;
    }

    // --- Options -------------------------------------------------------------------------------------

    void ShowOptions() {
        const int selected = std::max(SelectedRow(ID_OPTIONS), 0);
        std::vector<std::vector<std::string>> rows;
        for (size_t i = 0; i < state.options.settings.size(); ++i)
            rows.push_back({OptionName(state.options.features[i].feature.head.key), NameOfItem(i)});
        SetRows(ID_OPTIONS, rows);
        SelectRow(ID_OPTIONS, selected);
        ShowItems();
        InvalidateRect(Control(ID_PICTURE), nullptr, FALSE);
    }

    std::string NameOfItem(size_t option) const {
        const ItemRecord* item = SelectedItem(state.options.features.data(), state.options.settings.data(),
                                              static_cast<int32_t>(option));
        return item != nullptr ? Utf8(item->display) : "";
    }

    // Of the option that is selected.
    void ShowItems() {
        const int row = SelectedRow(ID_OPTIONS);
        EnableWindow(Control(ID_OPTION_ITEMS), row >= 0);
        if (row < 0)
            return;
        std::vector<std::string> entries;
        for (const ItemRecord& item : Listed(state.options.features[static_cast<size_t>(row)].items))
            entries.push_back(Utf8(item.display));
        SetEntries(ID_OPTION_ITEMS, entries, state.options.settings[static_cast<size_t>(row)]);
    }

    void TakeOption(size_t option) {
        state.options.settings.at(option) = static_cast<int32_t>(Send(ID_OPTION_ITEMS, CB_GETCURSEL));
        OfferedSources(state);
        SetCell(ID_OPTIONS, option, 1, NameOfItem(option));
        InvalidateRect(Control(ID_PICTURE), nullptr, FALSE);
        NoteChange();
    }

    // As the module's bitmaps are, or stretched where the screen's resolution is higher.
    void DrawPicture(const DRAWITEMSTRUCT& item) const {
        const Canvas canvas(kSceneSize);
        DrawScene(state.family, SceneOf(state), canvas.context, kSceneSize);
        SetStretchBltMode(item.hDC, HALFTONE);
        StretchBlt(item.hDC, 0, 0, item.rcItem.right, item.rcItem.bottom, canvas.context, 0, 0, kSceneSize.cx,
                   kSceneSize.cy, SRCCOPY);
    }

    // --- The printer ---------------------------------------------------------------------------------

    void Ask() {
        if (state.address.empty())
            throw Failure(kExitUsage,
                          "The printer's address is missing: enter an IPv4 address or a host name.");
        stopped.remove_if([](const auto& other) { return other->HasEnded(); });
        job = std::make_unique<DeviceJob>(state.family, state.address, window, ++jobNumber);
        state.isAsking = true;
        state.report = {};
        ShowReport();
        SetText(ID_ASK, TEXT_STOP);
        ShowProgress(0);
    }

    // The thread ends with the question that is under way, for which nobody waits before the page is closed.
    void StopAsking() {
        job->Cancel();
        stopped.push_back(std::move(job));
        ShowEnd("Stopped.");
    }

    void ShowProgress(int steps) {
        Send(ID_PROGRESS, PBM_SETPOS, static_cast<WPARAM>(steps));
        if (steps < kJobSteps)
            ShowStatus("Asking for " + std::string(StepName(steps)) + "...");
    }

    void EndJob() {
        const std::unique_ptr<DeviceJob> ended = std::move(job);
        if (!ended->Trouble().empty()) {
            ShowEnd(ended->Trouble());
            return;
        }
        const DeviceReport& report = ended->Report();
        ShowEnd("Told by " + report.address + " (" + report.transport + ")."
                + (report.missing.empty() ? "" : " Not told: " + report.missing + "."));
        TakeReport(state, std::move(ended->Report()));
        NoteChange();
        Show();
    }

    void ShowEnd(const std::string& status) {
        state.isAsking = false;
        SetText(ID_ASK, TEXT_ASK);
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
                 reinterpret_cast<LPARAM>(Wide(Describe(supply.name, supply.told)).c_str()));

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

    // A bar as long as it is full, with what it says.
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
        DrawTextW(item.hDC, Wide(Describe(name, supply)).c_str(), -1, &place,
                  DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
        if ((item.itemState & ODS_FOCUS) != 0)
            DrawFocusRect(item.hDC, &item.rcItem);
    }

    struct ShownSupply {
        const char* name;
        MrkSupRequestItem told;
    };

    std::vector<ShownSupply> supplies; // by position in the list
    std::unique_ptr<DeviceJob> job;    // null: the printer is not being asked
    std::list<std::unique_ptr<DeviceJob>> stopped;
    WPARAM jobNumber = 0;
};

} // namespace

std::unique_ptr<PropertyPage> MakePrinterPage(SheetState& state) {
    return std::make_unique<PrinterPage>(state);
}
