// One page of the property sheet: what its window asks of it, and what all pages do with their controls.
#ifndef WORKBENCH_PROPERTY_SHEET_PROPERTY_PAGE_H
#define WORKBENCH_PROPERTY_SHEET_PROPERTY_PAGE_H

#include "workbench/property_sheet/sheet_state.h"

#include <windows.h>

#include <prsht.h> // after windows.h

// A page belongs to the sheet, which outlives its window. Failures that its functions throw are told to who
// uses the sheet.
class PropertyPage {
public:
    PropertyPage(UINT id, SheetState& sheetState) : templateId(id), state(sheetState) {}
    virtual ~PropertyPage() = default;
    PropertyPage(const PropertyPage&) = delete;
    PropertyPage& operator=(const PropertyPage&) = delete;

    // For the sheet, once the page has its place in memory.
    PROPSHEETPAGEW Description();

protected:
    virtual void Init() {}   // once
    virtual void Show() = 0; // what the state says now; each time when the page comes to the front
    virtual void OnCommand(UINT control, UINT notification) = 0;
    virtual void OnNotify(const NMHDR& /*note*/) {}
    virtual void OnDraw(const DRAWITEMSTRUCT& /*item*/) {}
    virtual void OnMessage(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) {}
    virtual void Close() {} // the window goes

    HWND Control(int id) const { return GetDlgItem(window, id); }
    LRESULT Send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendDlgItemMessageW(window, id, message, wParam, lParam);
    }
    void SetText(int id, const std::string& utf8) const;
    std::string Text(int id) const;

    int FontHeight() const; // pixels

    // A list view: its columns, once; its rows, a text for each column.
    void SetColumns(int id, const std::vector<const char*>& titles) const;
    void SetRows(int id, const std::vector<std::vector<std::string>>& rows) const;
    void SetCell(int id, size_t row, size_t column, const std::string& utf8) const;
    int SelectedRow(int id) const;
    void SelectRow(int id, int row) const;

    // A combo box: its texts, and the one that is selected; -1: none.
    void SetEntries(int id, const std::vector<std::string>& entries, int selected) const;

    // There is something to be kept.
    void NoteChange() const;

    // Has one of the model's dialogs run, while the sheet waits. It works on copies, which OK brings back.
    void RunModelDialog(uint32_t id, bool isForTrays);

    const UINT templateId;
    SheetState& state;
    HWND window = nullptr;

private:
    static INT_PTR CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR Answer(UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR Apply() const;
    void FitColumn(int id, WPARAM column) const;
    void Tell(const std::string& failure) const;
};

// The pages, by their position.
enum SheetPage { kPrinterPage, kPaperPage, kQualityPage, kVersionPage };

std::unique_ptr<PropertyPage> MakePrinterPage(SheetState& state);
std::unique_ptr<PropertyPage> MakePaperPage(SheetState& state);
std::unique_ptr<PropertyPage> MakeQualityPage(SheetState& state);
std::unique_ptr<PropertyPage> MakeVersionPage(SheetState& state);

#endif
