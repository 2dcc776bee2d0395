// Overwrites a line of the console.
#include "workbench/lib/progress_line.h"

#include "workbench/lib/output.h"

#include <windows.h>

ProgressLine::ProgressLine() {
    DWORD mode;
    isShown = GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode) != FALSE;
}

ProgressLine::~ProgressLine() {
    Show("");
}

void ProgressLine::Show(const std::string& text) {
    if (!isShown || text == shown)
        return;
    const size_t surplus = shown.size() > text.size() ? shown.size() - text.size() : 0;
    Print(STD_ERROR_HANDLE, "\r" + text + std::string(surplus, ' ') + (text.empty() ? "\r" : ""));
    shown = text;
}
