// Messages to the user: on the console, in a redirected file or in a message box.
#ifndef WORKBENCH_LIB_OUTPUT_H
#define WORKBENCH_LIB_OUTPUT_H

#include <string>
#include <string_view>
#include <windows.h>

// Writes UTF-8 to STD_OUTPUT_HANDLE or STD_ERROR_HANDLE: to a console as UTF-16, to a file or a pipe byte for
// byte. Line ends stay as they are.
void Print(DWORD where, std::string_view utf8);

// Shows a message box with this caption. Returns when it is closed.
void ShowWarning(const std::string& utf8, const std::string& caption, HWND owner = nullptr);

#endif
