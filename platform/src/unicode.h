// UTF-16 to UTF-8, for paths that leave for the host's system.
#ifndef PLATFORM_UNICODE_H
#define PLATFORM_UNICODE_H

#include <string>

namespace platform {

// A surrogate without its partner becomes the replacement character.
std::string ToUtf8(const wchar_t* text);

} // namespace platform

#endif
