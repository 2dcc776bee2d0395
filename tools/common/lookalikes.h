// Characters that look like those to which a text file gives a meaning, as word processors and web pages
// leave them: no-break spaces, typographic quotes and the like.
#ifndef COMMON_LOOKALIKES_H
#define COMMON_LOOKALIKES_H

#include <cstddef>
#include <string>
#include <string_view>

struct Lookalike {
    std::string_view character; // UTF-8
    const char* name;
    const char* instead; // what to type
};

// The position of the first one at or after `start`; npos when there is none.
size_t FindLookalike(std::string_view text, size_t start = 0);

// The one at this position; null when there is none.
const Lookalike* LookalikeAt(std::string_view text, size_t at);

// "; it has NAME: type INSTEAD" with the first one; empty when there is none.
std::string LookalikeHint(std::string_view text);

#endif
