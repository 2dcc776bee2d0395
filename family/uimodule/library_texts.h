// Texts from the library's string tables, in the user's language. uimodule/resource_ids.h has their numbers.
#ifndef UIMODULE_LIBRARY_TEXTS_H
#define UIMODULE_LIBRARY_TEXTS_H

#include <cstdint>
#include <windows.h>

// This library. Set when it is loaded.
extern HINSTANCE library;

struct LibraryText {
    wchar_t text[512];
};

// Empty when there is no such text.
inline LibraryText TextOf(uint16_t id) {
    LibraryText text = {};
    LoadStringW(library, id, text.text, sizeof(text.text) / sizeof(text.text[0]));
    return text;
}

#endif
