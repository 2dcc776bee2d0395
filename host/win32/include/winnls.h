// The host's replacement for the system's header of this name, included by windows.h: conversion to the ANSI
// code page that a test has set. Conversions are recorded and can be made to fail.
#ifndef WIN32_WINNLS_H
#define WIN32_WINNLS_H

#include <windows.h>

#define CP_UTF8 65001

extern "C" {

UINT WINAPI GetACP();
// Code pages 1252 (of it Latin-1; "?" for what is not in it) and CP_UTF8.
int WINAPI WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR text, int length, char* to, int capacity,
                               LPCSTR defaultChar, BOOL* usedDefaultChar);
}

#endif
