// Writes messages to the standard handles or into a message box.
#include "workbench/lib/output.h"

#include "workbench/lib/text.h"

void Print(DWORD where, std::string_view utf8) {
    HANDLE handle = GetStdHandle(where);
    DWORD mode;
    DWORD written;
    if (GetConsoleMode(handle, &mode)) {
        const std::wstring wide = Wide(utf8);
        WriteConsoleW(handle, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr);
        return;
    }
    while (!utf8.empty()
           && WriteFile(handle, utf8.data(), static_cast<DWORD>(utf8.size()), &written, nullptr))
        utf8.remove_prefix(written);
}

void ShowWarning(const std::string& utf8, const std::string& caption, HWND owner) {
    MessageBoxW(owner, Wide(utf8).c_str(), Wide(caption).c_str(), MB_OK | MB_ICONWARNING);
}
