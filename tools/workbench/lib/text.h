// Texts: conversion between the module's texts and UTF-8, numbers, and what a Windows error means.
#ifndef WORKBENCH_LIB_TEXT_H
#define WORKBENCH_LIB_TEXT_H

#include "workbench/lib/module_parts.h"

#include <optional>
#include <string>
#include <string_view>

std::string Utf8(std::wstring_view text);

// From an 8-bit code page. The module's keys and texts are in the system's.
std::string Utf8(std::string_view text, UINT codePage = CP_ACP);

// To UTF-16.
std::wstring Wide(std::string_view text, UINT codePage = CP_UTF8);

// The text in a field of a record, which it may fill without a terminator.
template <typename Char, size_t N>
std::string FieldText(const Char (&field)[N]) {
    return Utf8(std::basic_string_view<Char>(field, TextLength(field)));
}

// A text that a printer has sent. Printers use either UTF-8 or an 8-bit code page and do not say which: valid
// UTF-8 is taken as that, anything else as the system's code page. Long texts arrive cut, so an incomplete
// character at the end of UTF-8 is dropped.
std::string PrinterText(std::string_view bytes);

// The same for a field of a record.
template <size_t N>
std::string PrinterText(const char (&field)[N]) {
    return PrinterText(std::string_view(field, TextLength(field)));
}

bool IsUtf8(std::string_view bytes);

// In the system's code page; none when the text has a character that the code page lacks.
std::optional<std::string> ToCodePage(const std::string& utf8);

// Without spaces, tabs and line breaks at both ends.
std::string Trimmed(const std::string& text);

// The same on one line: blanks instead of line breaks and all other control characters, which would control
// the terminal.
std::string OneLine(std::string text);

// Appends to a list in words, after a comma.
void AddPart(std::string& list, const std::string& part);

// The bytes in base 64, as data URIs contain them.
std::string Base64(std::string_view bytes);

// The number that the text consists of; -1 when it is anything but 1 to `maxDigits` digits.
int ParseNumber(const std::string& text, size_t maxDigits);

// A last-error value with the system's message, on one line.
std::string ErrorText(DWORD error);

// "2026-11-25 16:05", local time.
std::string LocalTimeText();

#endif
