// The host's replacement for the system's header of this name: the services that the module's subsystems call
// on the host, with the widths and values of 64-bit Windows. Tests control the services through
// win32_control.h.
//
// wchar_t is a UTF-16 unit here (-fshort-wchar), so the C library's wide functions and std::wstring must not
// be used.
#ifndef WIN32_WINDOWS_H
#define WIN32_WINDOWS_H

#include <cstddef>
#include <cstdint>

#define WINAPI

#define TRUE  1
#define FALSE 0

#define MAX_PATH 260
#define WM_USER  0x0400

#define DLL_PROCESS_DETACH 0
#define DLL_PROCESS_ATTACH 1
#define DLL_THREAD_ATTACH  2
#define DLL_THREAD_DETACH  3

#define ERROR_FILE_NOT_FOUND      2
#define ERROR_INVALID_HANDLE      6
#define ERROR_NOT_ENOUGH_MEMORY   8
#define ERROR_READ_FAULT          30
#define ERROR_INVALID_PARAMETER   87
#define ERROR_INSUFFICIENT_BUFFER 122
#define ERROR_MOD_NOT_FOUND       126
#define ERROR_PROC_NOT_FOUND      127
#define ERROR_NEGATIVE_SEEK       131

#define GENERIC_READ          0x80000000u
#define FILE_SHARE_READ       0x00000001u
#define OPEN_EXISTING         3
#define FILE_ATTRIBUTE_NORMAL 0x00000080u
#define FILE_BEGIN            0
#define FILE_END              2

#define INVALID_HANDLE_VALUE     (reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-1)))
#define INVALID_FILE_SIZE        0xFFFFFFFFu
#define INVALID_SET_FILE_POINTER 0xFFFFFFFFu

#define GMEM_FIXED    0x0000u
#define GMEM_MOVEABLE 0x0002u
#define GMEM_ZEROINIT 0x0040u
#define GPTR          (GMEM_FIXED | GMEM_ZEROINIT)
#define GHND          (GMEM_MOVEABLE | GMEM_ZEROINIT)
#define LMEM_FIXED    0x0000u
#define LMEM_ZEROINIT 0x0040u
#define LPTR          (LMEM_FIXED | LMEM_ZEROINIT)

#define VER_PLATFORM_WIN32_NT 2

#define DC_BINS     6
#define DC_DUPLEX   7
#define DC_BINNAMES 12
#define DC_STAPLE   30

using BOOL = int;
using BYTE = uint8_t;
using WORD = uint16_t;
using DWORD = uint32_t;
using UINT = uint32_t;
using LONG = int32_t;
using INT = int32_t;
using INT_PTR = intptr_t;
using SIZE_T = size_t;
using WCHAR = wchar_t;
using WPARAM = uintptr_t;
using LPARAM = intptr_t;
using LPVOID = void*;
using LPCSTR = const char*;
using LPCWSTR = const wchar_t*;
using LPWSTR = wchar_t*;
using HANDLE = void*;
using HGLOBAL = void*;
using HLOCAL = void*;
using HINSTANCE = struct Instance*;
using HMODULE = HINSTANCE;
using HWND = struct Window*;
using HDC = struct DeviceContext*;
using RECT = struct Rectangle;
using DRAWITEMSTRUCT = struct DrawItem;
using DLGPROC = INT_PTR(WINAPI*)(HWND, UINT, WPARAM, LPARAM);
using FARPROC = INT_PTR(WINAPI*)();
static_assert(sizeof(WCHAR) == 2 && sizeof(void*) == 8);

struct OSVERSIONINFOW {
    DWORD dwOSVersionInfoSize;
    DWORD dwMajorVersion;
    DWORD dwMinorVersion;
    DWORD dwBuildNumber;
    DWORD dwPlatformId;
    WCHAR szCSDVersion[128];
};
static_assert(sizeof(OSVERSIONINFOW) == 276);

extern "C" {

DWORD WINAPI GetLastError();
void WINAPI SetLastError(DWORD error);

// What the test has set, or else version 6.1 of the NT family with its directory.
BOOL WINAPI GetVersionExW(OSVERSIONINFOW* version);
UINT WINAPI GetSystemDirectoryW(LPWSTR path, UINT capacity);

// Only a library that a test has registered by just this path loads. Each load counts one reference.
HMODULE WINAPI LoadLibraryW(LPCWSTR path);
FARPROC WINAPI GetProcAddress(HMODULE handle, LPCSTR name);
BOOL WINAPI FreeLibrary(HMODULE handle);
// Returns what the test has set, for any module.
DWORD WINAPI GetModuleFileNameW(HMODULE module, LPWSTR path, DWORD capacity);

// Files of the host, opened for reading. A backslash in a path separates folders as a slash does.
HANDLE WINAPI CreateFileW(LPCWSTR path, DWORD access, DWORD share, LPVOID security, DWORD disposition,
                          DWORD attributes, HANDLE model);
HANDLE WINAPI CreateFileA(LPCSTR path, DWORD access, DWORD share, LPVOID security, DWORD disposition,
                          DWORD attributes, HANDLE model);
BOOL WINAPI ReadFile(HANDLE file, LPVOID to, DWORD count, DWORD* delivered, LPVOID overlapped);
DWORD WINAPI SetFilePointer(HANDLE file, LONG distance, LONG* distanceHigh, DWORD from);
DWORD WINAPI GetFileSize(HANDLE file, DWORD* sizeHigh);
BOOL WINAPI CloseHandle(HANDLE file);

// Blocks that are not requested zero-filled are filled with a pattern. The handle of a movable block is not
// its address; freeing a block that is still locked counts as a leak.
HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T size);
HGLOBAL WINAPI GlobalFree(HGLOBAL handle);
LPVOID WINAPI GlobalLock(HGLOBAL handle);
BOOL WINAPI GlobalUnlock(HGLOBAL handle);
HGLOBAL WINAPI GlobalHandle(const void* block);
HLOCAL WINAPI LocalAlloc(UINT flags, SIZE_T size);
HLOCAL WINAPI LocalFree(HLOCAL block);
}

#include <winnls.h>
#include <winreg.h>

#endif
