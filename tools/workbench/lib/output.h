// Texts on their way out: conversion of the module's texts to UTF-8, and writing to the console or a
// redirected file.
#ifndef WORKBENCH_LIB_OUTPUT_H
#define WORKBENCH_LIB_OUTPUT_H

#include <string>
#include <string_view>
#include <windows.h>

std::string Utf8(std::wstring_view text);

// From an 8-bit code page: the system's, in which the module's keys and texts are, unless another is named.
std::string Utf8(std::string_view text, UINT codePage = CP_ACP);

// Back to UTF-16.
std::wstring Wide(std::string_view text, UINT codePage = CP_UTF8);

// A last-error value and what the system says of it.
std::string ErrorText(DWORD error);

// In a box, for a person who has no console to look at.
void TellPerson(const std::string& utf8, HWND owner = nullptr);

// Writes UTF-8 to STD_OUTPUT_HANDLE or STD_ERROR_HANDLE: as UTF-16 to a console, byte for byte to a file or a
// pipe.
void Print(DWORD where, std::string_view utf8);

#endif
