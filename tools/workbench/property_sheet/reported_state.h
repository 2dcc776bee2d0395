// The part of the sheet's state that a printer has reported: how a report is applied, and what is kept of it
// between runs.
#ifndef WORKBENCH_PROPERTY_SHEET_REPORTED_STATE_H
#define WORKBENCH_PROPERTY_SHEET_REPORTED_STATE_H

#include "workbench/property_sheet/sheet_state.h"

// Applies the results of a query. What the printer did not report stays if it comes from the same printer. A
// tray with a size is installed.
void ApplyReport(SheetState& state, DeviceReport report);

// The date and time of a report, as it is kept. False when the text is none.
bool ParseTime(const std::string& text, SYSTEMTIME& time);

// Resets options and papers to the model's defaults when they come from another printer than the one at this
// address, whose query has failed.
void ForgetOtherReport(SheetState& state, const std::string& address);

// When the report was made, which options it lacks, the addresses of printers that have answered, and whether
// the printer is queried again every minute.
Document ReportedDocument(const SheetState& state);

// The reverse. What is missing stays as it is. False when a value is of the wrong type.
bool LoadReported(const Document& kept, SheetState& state);

#endif
