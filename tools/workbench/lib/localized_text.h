// Texts for the user from the program's string tables, which exist in English and German. All texts are
// UTF-8.
#ifndef WORKBENCH_LIB_LOCALIZED_TEXT_H
#define WORKBENCH_LIB_LOCALIZED_TEXT_H

#include <string>
#include <vector>
#include <windows.h>

constexpr LANGID kEnglish = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
constexpr LANGID kGerman = MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN);

// Selects "en" or "de" instead of the user's language: for all texts, and for the dialogs, message boxes and
// formats of the calling thread. Call it before any window is opened. An empty name changes nothing.
void UseLanguage(const std::string& name);

// The text in the user's language; {1}, {2} ... are replaced by the arguments. Empty when there is no such
// text.
std::string LocalizedText(UINT id, const std::vector<std::string>& arguments = {});

// The language of these texts, for TextIn.
LANGID UserLanguage();

// The same in a given language. Output of commands is always English.
std::string TextIn(LANGID language, UINT id, const std::vector<std::string>& arguments = {});

#endif
