// The dialog that looks for printers on the network and lists them as they answer.
#ifndef WORKBENCH_PROPERTY_SHEET_SEARCH_DIALOG_H
#define WORKBENCH_PROPERTY_SHEET_SEARCH_DIALOG_H

#include <optional>
#include <string>
#include <windows.h>

// The address of the printer that the user has chosen; none when the dialog was cancelled.
std::optional<std::string> FindPrinter(HWND owner);

#endif
