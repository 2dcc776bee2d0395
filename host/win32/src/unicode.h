// UTF-16 texts: to UTF-8, for paths that leave for the host's system, and kept as they are.
#ifndef WIN32_UNICODE_H
#define WIN32_UNICODE_H

#include <string>
#include <vector>

namespace win32 {

// A surrogate without its partner becomes the replacement character.
std::string ToUtf8(const wchar_t* text);

// With its terminator.
std::vector<wchar_t> Copy(const wchar_t* text);

} // namespace win32

#endif
