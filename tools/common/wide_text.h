// Texts of Windows, which has them in UTF-16, and UTF-8, in which these tools have theirs. Windows only.
#ifndef COMMON_WIDE_TEXT_H
#define COMMON_WIDE_TEXT_H

#include <string>
#include <string_view>
#include <windows.h>

std::wstring WideText(std::string_view utf8);
std::string Utf8FromWide(std::wstring_view wide);

// The system's text for a last-error value, without a full stop; its number where there is none.
std::string SystemErrorText(DWORD error);

#endif
