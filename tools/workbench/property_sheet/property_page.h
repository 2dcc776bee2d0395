// The base of the pages of the property sheet: events of the window, and what all pages do with their
// controls.
#ifndef WORKBENCH_PROPERTY_SHEET_PROPERTY_PAGE_H
#define WORKBENCH_PROPERTY_SHEET_PROPERTY_PAGE_H

#include "workbench/lib/dialog_view.h"
#include "workbench/lib/model_dialogs.h"
#include "workbench/property_sheet/sheet_state.h"

#include <map>
#include <windows.h>

#include <prsht.h> // after windows.h

using TableRows = std::vector<std::vector<std::string>>; // cells of a list view

// The sheet owns the page and outlives the page's window. Failures that the functions below throw are
// reported to the user.
class PropertyPage {
public:
    PropertyPage(UINT id, SheetState& sheetState) : templateId(id), state(sheetState) {}
    virtual ~PropertyPage() = default;
    PropertyPage(const PropertyPage&) = delete;
    PropertyPage& operator=(const PropertyPage&) = delete;

    // For the sheet. The page must not move in memory after this call.
    PROPSHEETPAGEW Description();

    // Whether the page, current or not, has handled a key message to a control of the sheet. Then nothing
    // else does.
    bool TakesKey(HWND control, WPARAM key) { return window != nullptr && OnKey(control, key); }

protected:
    virtual void Init() {}   // once, when the window is created
    virtual void Show() = 0; // shows the state, each time the page becomes current
    virtual void OnCommand(UINT control, UINT notification) = 0;
    virtual void OnNotify(const NMHDR& /*note*/) {}
    virtual void OnDraw(const DRAWITEMSTRUCT& /*item*/) {}
    virtual void OnMessage(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) {}
    // Before the sheet. True when the page has handled the key.
    virtual bool OnKey(HWND /*control*/, WPARAM /*key*/) { return false; }
    virtual void OnReset() {} // after the state has been reset
    virtual void Close() {}   // before the window is destroyed

    HWND Control(int id) const { return GetDlgItem(window, id); }
    LRESULT Send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendDlgItemMessageW(window, id, message, wParam, lParam);
    }
    void SetText(int id, const std::string& utf8) const;
    std::string Text(int id) const { return TextOf(Control(id)); }

    int FontHeight() const; // pixels

    // For a list view: its columns, then its rows, with a text for each column. The selection stays if the
    // number of rows does; the page receives no notifications meanwhile.
    void SetColumns(int id, const std::vector<std::string>& titles);
    void SetRows(int id, const TableRows& rows);

    // For a combo box: its texts and the position of the selected one, -1: none. Without texts it is
    // disabled, as a list view without rows is.
    void SetEntries(int id, const std::vector<std::string>& entries, int selected) const;

    // The same, without enabling or disabling it. Equal entries stay, also while they are dropped down.
    void FillEntries(int id, const std::vector<std::string>& entries, int selected) const;

    // A control together with its label, the control before it.
    void EnableList(int id, bool isEnabled) const;

    // Asks the person a question; false: no.
    bool Confirm(const std::string& question) const;

    // Marks the state as changed and enables Apply.
    void NoteChange() const;

    // Shows a changed state on the current page, whichever it is. All pages learn of a reset.
    enum class Event : WPARAM { kReported, kReset };
    void NotifyPages(Event event) const {
        SendMessageW(GetParent(window), PSM_QUERYSIBLINGS, static_cast<WPARAM>(event), 0);
    }

    // Runs one of the model's dialogs on copies of the settings and trays; OK stores them in the state.
    void RunModelDialog(const ModelDialog& dialog);

    const UINT templateId;
    SheetState& state;
    HWND window = nullptr;

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR Answer(UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR AnswerNote(const NMHDR& note);
    INT_PTR Apply() const;
    void TakeFocus() const;
    void Report(const std::string& failure) const;

    std::map<int, TableRows> shownRows; // of each list view
    bool isFilling = false;             // a list view
};

// Positions of the pages.
enum SheetPage { kPrinterPage, kPaperPage, kQualityPage, kVersionPage };

std::unique_ptr<PropertyPage> MakePrinterPage(SheetState& state);
std::unique_ptr<PropertyPage> MakePaperPage(SheetState& state);
std::unique_ptr<PropertyPage> MakeQualityPage(SheetState& state);
std::unique_ptr<PropertyPage> MakeVersionPage(SheetState& state);

#endif
