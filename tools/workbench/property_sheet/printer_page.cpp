// The Printer page: the picture of the printer, its options, and the results of querying it: consumables and
// stored overlays and profiles.
#include "workbench/lib/printer_text_ids.h"
#include "workbench/property_sheet/device_job.h"
#include "workbench/property_sheet/list_view.h"
#include "workbench/property_sheet/page_ids.h"
#include "workbench/property_sheet/property_page.h"
#include "workbench/property_sheet/reported_state.h"
#include "workbench/property_sheet/search_dialog.h"
#include "workbench/property_sheet/supplies.h"
#include "workbench/property_sheet/text_ids.h"

#include "workbench/lib/localized_text.h"
#include "workbench/lib/option_words.h"
#include "workbench/lib/picture.h"
#include "workbench/lib/text.h"

#include <algorithm>
#include <cstring>

#include <commctrl.h>

namespace {

constexpr UINT_PTR kRefreshTimer = 1;
constexpr UINT kRefreshInterval = 60000; // milliseconds
constexpr UINT_PTR kSecondsTimer = 2;
constexpr UINT kListClosed = WM_APP + 3; // the list of items, which a report may have changed meanwhile

// The time of a report as the user writes it.
std::string DateText(const std::string& text) {
    SYSTEMTIME time;
    if (!ParseTime(text, time))
        return text;
    wchar_t date[64] = L"";
    wchar_t clock[64] = L"";
    GetDateFormatW(GetThreadLocale(), DATE_SHORTDATE, &time, nullptr, date, std::size(date));
    GetTimeFormatW(GetThreadLocale(), TIME_NOSECONDS, &time, nullptr, clock, std::size(clock));
    return Utf8(date) + " " + Utf8(clock);
}

// The texts, separated by commas.
std::string ListText(const std::vector<UINT>& texts) {
    std::string list;
    for (const UINT text : texts)
        AddPart(list, LocalizedText(text));
    return list;
}

class PrinterPage : public PropertyPage {
public:
    explicit PrinterPage(SheetState& sheetState) : PropertyPage(PAGE_PRINTER, sheetState) {}

private:
    void Init() override {
        SetColumns(ID_OPTIONS, {LocalizedText(PRINTER_TEXT_OPTION), LocalizedText(PRINTER_TEXT_SETTING)});
        SetColumns(ID_SUPPLIES, {LocalizedText(PRINTER_TEXT_SUPPLY), LocalizedText(PRINTER_TEXT_LEVEL)});
        SetColumns(ID_STORED,
                   {LocalizedText(PRINTER_TEXT_STORED_NAME), LocalizedText(PRINTER_TEXT_STORED_USE)});
        for (const int list : {ID_OPTIONS, ID_STORED})
            Send(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_LABELTIP, LVS_EX_LABELTIP);
        statusTip = MakeTip(Control(ID_STATUS));
        ShowAddress();
        SetRefresh(state.isRefreshed);
    }

    void Show() override {
        if (CurrentAddress() != state.address || EntriesOf(Control(ID_ADDRESS)) != state.addresses)
            ShowAddress();
        SetStatusText(Status());
        ShowOptions();
        ShowReport();
    }

    void OnCommand(UINT control, UINT notification) override {
        if (control == ID_OPTION_ITEMS && notification == CBN_SELCHANGE)
            ChangeOption(static_cast<size_t>(SelectedOption()));
        else if (control == ID_OPTION_ITEMS && notification == CBN_CLOSEUP)
            PostMessageW(window, kListClosed, 0, 0); // any CBN_SELCHANGE comes first
        else if (control == ID_ADDRESS && (notification == CBN_EDITCHANGE || notification == CBN_SELENDOK))
            NoteAddress(notification == CBN_SELENDOK);
        else if (control == ID_QUERY && notification == BN_CLICKED)
            state.isQuerying ? StopQuery() : StartQuery();
        else if (control == ID_FIND && notification == BN_CLICKED)
            Find();
        else if (control == ID_REFRESH && notification == BN_CLICKED)
            ChangeRefresh();
    }

    void OnNotify(const NMHDR& note) override {
        if (note.idFrom == ID_OPTIONS && note.code == static_cast<UINT>(LVN_ITEMCHANGED))
            ShowItems();
    }

    void OnDraw(const DRAWITEMSTRUCT& item) override {
        if (item.CtlID == ID_PICTURE)
            DrawPicture(item);
        else if (item.itemID < supplies.size())
            DrawSupplyRow(item, supplies[item.itemID]);
    }

    void OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == kListClosed)
            ShowItems();
        else if (message == WM_TIMER)
            wParam == kRefreshTimer ? Refresh() : ShowProgress();
        if (job == nullptr || wParam != job->number) // of a query that was stopped
            return;
        if (message == kJobProgress)
            NoteProgress(ProgressOf(lParam));
        else if (message == kJobEnd)
            EndJob();
    }

    // Enter in the address asks the printer; Esc stops that. Otherwise these keys belong to the sheet, and to
    // the list of addresses while it is dropped down.
    bool OnKey(HWND control, WPARAM key) override {
        const bool isAsked = key == VK_RETURN && !state.isQuerying
                             && GetParent(control) == Control(ID_ADDRESS)
                             && Send(ID_ADDRESS, CB_GETDROPPEDSTATE) == 0;
        const bool isStopped = key == VK_ESCAPE && state.isQuerying;
        if (isAsked || isStopped)
            SendMessageW(window, WM_COMMAND, MAKEWPARAM(ID_QUERY, BN_CLICKED), 0);
        return isAsked || isStopped;
    }

    // A report that is still to come would bring back what has been reset.
    void OnReset() override {
        job.reset();
        SetRefresh(state.isRefreshed);
        if (state.isQuerying)
            EndQuery("");
    }

    void Close() override {
        job.reset();
        state.isQuerying = false;
    }

    // --- Options -------------------------------------------------------------------------------------

    void ShowOptions() {
        TableRows rows;
        for (size_t i = 0; i < state.options.settings.size(); ++i)
            rows.push_back({OptionName(KeyOfOption(i), UserLanguage()), SettingText(i)});
        SetRows(ID_OPTIONS, rows);
        if (SelectedOption() < 0 && !rows.empty())
            SelectEntry(Control(ID_OPTIONS), 0);
        ShowItems();
        InvalidateRect(Control(ID_PICTURE), nullptr, FALSE);
    }

    const char* KeyOfOption(size_t option) const { return state.options.features[option].feature.head.key; }

    bool IsReported(size_t option) const {
        const std::vector<std::string>& keys = state.notReported;
        return std::find(keys.begin(), keys.end(), KeyOfOption(option)) == keys.end();
    }

    // The item of an option that the printer has not reported is only assumed.
    std::string NameOfItem(size_t option) const {
        const ItemRecord* item = CurrentItem(state.options, option);
        return !IsReported(option) ? LocalizedText(PRINTER_TEXT_NOT_REPORTED)
               : item != nullptr   ? FieldText(item->display)
                                   : "";
    }

    // Marked when it has changed between two reports of the printer.
    std::string SettingText(size_t option) const {
        const std::string name = NameOfItem(option);
        for (const OptionRequestItem& before : state.report.optionsBefore) {
            if (!SameText(before.key, KeyOfOption(option)))
                continue;
            const ItemRecord* item = FindOption(state.options, before.key + std::string("=") + before.value);
            if (item != nullptr && FieldText(item->display) != name)
                return LocalizedText(PRINTER_TEXT_WAS, {name, FieldText(item->display)});
        }
        return name;
    }

    int SelectedOption() const { return SelectionOf(Control(ID_OPTIONS)); }

    // Of the selected option.
    void ShowItems() {
        const int row = SelectedOption();
        if (row < 0) {
            EnableList(ID_OPTION_ITEMS, false);
            return;
        }
        std::vector<std::string> entries;
        for (const ItemRecord& item : Listed(state.options.features[static_cast<size_t>(row)].items))
            entries.push_back(FieldText(item.display));
        SetEntries(ID_OPTION_ITEMS, entries, state.options.settings[static_cast<size_t>(row)]);
    }

    void ChangeOption(size_t option) {
        state.options.settings.at(option) = static_cast<int32_t>(Send(ID_OPTION_ITEMS, CB_GETCURSEL));
        std::vector<std::string>& keys = state.notReported;
        keys.erase(std::remove(keys.begin(), keys.end(), KeyOfOption(option)), keys.end());
        OptionAnswers& before = state.report.optionsBefore;
        before.erase(
            std::remove_if(before.begin(), before.end(),
                           [&](const auto& answer) { return SameText(answer.key, KeyOfOption(option)); }),
            before.end());
        OfferedSources(state);
        ShowOptions();
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

    // --- The address ---------------------------------------------------------------------------------

    std::string CurrentAddress() const { return Trimmed(Text(ID_ADDRESS)); }

    // With the addresses of printers that have answered before.
    void ShowAddress() const {
        FillEntries(ID_ADDRESS, state.addresses, -1);
        SetText(ID_ADDRESS, state.address);
        EnableList(ID_ADDRESS, !state.isQuerying); // also without entries
    }

    // The box still has its old text when an entry is selected.
    void NoteAddress(bool isSelected) {
        const LRESULT entry = Send(ID_ADDRESS, CB_GETCURSEL);
        const std::string address =
            isSelected && entry >= 0 ? state.addresses.at(static_cast<size_t>(entry)) : CurrentAddress();
        if (address == state.address)
            return;
        state.address = address;
        NoteChange();
    }

    void Find() {
        const std::optional<std::string> address = FindPrinter(GetParent(window));
        if (!address)
            return;
        SetText(ID_ADDRESS, *address);
        StartQuery();
    }

    // --- The printer ---------------------------------------------------------------------------------

    std::string Status() const {
        if (!state.status.empty())
            return state.status;
        return state.reportedBy.empty()
                   ? LocalizedText(TEXT_NOT_QUERIED)
                   : LocalizedText(PRINTER_TEXT_REPORTED_ON, {state.reportedBy, DateText(state.reportedOn)});
    }

    void StartQuery() {
        state.address = CurrentAddress();
        SetText(ID_ADDRESS, state.address);
        StartJob();
        state.isQuerying = true;
        state.report = {};
        ShowReport();
        SetText(ID_QUERY, LocalizedText(PRINTER_TEXT_STOP));
        FocusOnStop();
        EnableList(ID_ADDRESS, false);
        EnableWindow(Control(ID_FIND), FALSE);
        ShowWindow(Control(ID_PROGRESS), SW_SHOW);
        SetTimer(window, kSecondsTimer, 1000, nullptr);
        NoteProgress({});
    }

    // The focus must not be on a control that is disabled: then no key reaches the sheet.
    void FocusOnStop() {
        const HWND focus = GetFocus();
        hadFocus = GetParent(focus) == Control(ID_ADDRESS);
        if (hadFocus || focus == Control(ID_FIND) || !IsChild(GetParent(window), focus))
            SetFocus(Control(ID_QUERY));
    }

    void StartJob() { job = std::make_unique<DeviceJob>(state.family, state.address, window, ++jobNumber); }

    void StopQuery() {
        job.reset();
        ForgetOtherReport(state, state.address);
        EndQuery(LocalizedText(PRINTER_TEXT_STOPPED));
    }

    void NoteProgress(const JobProgress& noted) {
        progress = noted;
        askedSince = GetTickCount();
        Send(ID_PROGRESS, PBM_SETRANGE32, 0, progress.total);
        Send(ID_PROGRESS, PBM_SETPOS, progress.question);
        ShowProgress();
    }

    // With the seconds that a slow printer has taken: one question can be many requests.
    void ShowProgress() {
        if (!state.isQuerying)
            return;
        const std::string text =
            progress.question == 0
                ? LocalizedText(PRINTER_TEXT_CONNECTING, {state.address})
                : LocalizedText(PRINTER_TEXT_ASKING,
                                {state.address, LocalizedText(progress.asked),
                                 std::to_string(progress.question), std::to_string(progress.total)});
        const DWORD seconds = (GetTickCount() - askedSince) / 1000;
        ShowStatus(seconds < 2 ? text
                               : text + " " + LocalizedText(PRINTER_TEXT_SECONDS, {std::to_string(seconds)}));
    }

    void EndJob() {
        const std::unique_ptr<DeviceJob> ended = std::move(job);
        state.failure = ended->Failure();
        if (state.failure)
            EndFailed(*state.failure);
        else
            EndAnswered(ended->Report());
    }

    // A refresh that fails leaves what the printer has reported before.
    void EndFailed(const PrinterFailure& failure) {
        if (!state.isQuerying) {
            ShowStatus(failure.sentence);
            return;
        }
        ForgetOtherReport(state, state.address);
        EndQuery(failure.sentence);
    }

    void EndAnswered(DeviceReport& report) {
        const UINT reported =
            report.transport == Transport::kLibrary ? PRINTER_TEXT_REPORTED : PRINTER_TEXT_REPORTED_BY_SNMP;
        std::string status = LocalizedText(reported, {report.address});
        if (!report.missing.empty())
            status += " " + LocalizedText(PRINTER_TEXT_NOT_AVAILABLE, {ListText(report.missing)});
        if (!report.warning.empty())
            status += " " + report.warning;
        const std::vector<FeatureSettings> settings = state.options.settings;
        const TrayPapers papers = state.papers;
        ApplyReport(state, std::move(report));
        const bool isSame = settings == state.options.settings
                            && memcmp(papers.data(), state.papers.data(), sizeof(papers)) == 0;
        if (state.isQuerying || !isSame)
            NoteChange();
        EndQuery(status);
    }

    void EndQuery(const std::string& status) {
        if (state.isQuerying) {
            state.isQuerying = false;
            SetText(ID_QUERY, LocalizedText(PRINTER_TEXT_QUERY));
            ShowWindow(Control(ID_PROGRESS), SW_HIDE);
            KillTimer(window, kSecondsTimer);
            EnableWindow(Control(ID_FIND), TRUE);
            ShowAddress();
            if (hadFocus && GetFocus() == Control(ID_QUERY))
                SetFocus(Control(ID_ADDRESS));
        }
        state.status = status;
        NotifyPages(Event::kReported);
    }

    void ShowStatus(const std::string& status) {
        state.status = status;
        SetStatusText(status);
    }

    // With a long host name the text can need more lines than there are: the tip shows all of it.
    void SetStatusText(const std::string& text) const {
        SetText(ID_STATUS, text);
        SetTip(statusTip, Control(ID_STATUS), Wide(text));
    }

    // --- Refreshing ----------------------------------------------------------------------------------

    void SetRefresh(bool isOn) const {
        Send(ID_REFRESH, BM_SETCHECK, isOn ? BST_CHECKED : BST_UNCHECKED);
        if (isOn && state.user == nullptr) // programs need the same result each time
            SetTimer(window, kRefreshTimer, kRefreshInterval, nullptr);
        else
            KillTimer(window, kRefreshTimer);
    }

    void ChangeRefresh() {
        state.isRefreshed = Send(ID_REFRESH, BM_GETCHECK) == BST_CHECKED;
        SetRefresh(state.isRefreshed);
        NoteChange();
    }

    // Asks again, in the background, a printer that has answered; not while the address is edited.
    void Refresh() {
        if (job == nullptr && !state.reportedBy.empty() && state.reportedBy == CurrentAddress())
            StartJob();
    }

    // --- What the printer has reported ---------------------------------------------------------------

    void ShowReport() {
        supplies = ShownSupplies(state.report.supplies, state.report.suppliesBefore);
        TableRows rows;
        for (const ShownSupply& supply : supplies)
            rows.push_back({supply.name, supply.level});
        SetRows(ID_SUPPLIES, rows);
        InvalidateRect(Control(ID_SUPPLIES), nullptr, FALSE); // what is drawn is more than the texts
        const int needed = SupplyLevelWidth(Control(ID_SUPPLIES), FontHeight(), supplies);
        if (Send(ID_SUPPLIES, LVM_GETCOLUMNWIDTH, 1) < needed)
            Send(ID_SUPPLIES, LVM_SETCOLUMNWIDTH, 1, needed);

        rows.clear();
        for (const StoredResources& overlays : state.report.overlays)
            AddStored(PRINTER_TEXT_OVERLAY, overlays, rows);
        constexpr UINT kUses[TELMAR_PROFILE_SELECTORS] = {
            PRINTER_TEXT_RGB_PROFILE, PRINTER_TEXT_SIMULATION_PROFILE, PRINTER_TEXT_OUTPUT_PROFILE};
        for (size_t i = 0; i < TELMAR_PROFILE_SELECTORS; ++i)
            AddStored(kUses[i], state.report.profiles[i], rows);
        SetRows(ID_STORED, rows);
    }

    static void AddStored(UINT use, const StoredResources& stored, TableRows& rows) {
        for (const StoredResourceEntry& entry : stored)
            rows.push_back({PrinterText(entry.first), LocalizedText(use)});
    }

    HWND statusTip = nullptr;
    std::vector<ShownSupply> supplies; // by row
    std::unique_ptr<DeviceJob> job;    // null: no query is running
    WPARAM jobNumber = 0;
    JobProgress progress = {};
    DWORD askedSince = 0;  // tick count
    bool hadFocus = false; // the address, when the query was started
};

} // namespace

std::unique_ptr<PropertyPage> MakePrinterPage(SheetState& state) {
    return std::make_unique<PrinterPage>(state);
}
