// The host's replacement for the system's header of this name, included by windows.h: reading of registry
// values that a test has set. Opening and querying are recorded and can be made to fail.
#ifndef WIN32_WINREG_H
#define WIN32_WINREG_H

#include <windows.h>

#define ERROR_SUCCESS   0
#define ERROR_MORE_DATA 234

#define KEY_READ 0x00020019u
#define REG_SZ   1

using HKEY = struct RegistryKey*;
#define HKEY_LOCAL_MACHINE (reinterpret_cast<HKEY>(static_cast<uintptr_t>(0x80000002u)))

extern "C" {

LONG WINAPI RegOpenKeyExW(HKEY parent, LPCWSTR path, DWORD options, DWORD access, HKEY* key);
LONG WINAPI RegQueryValueExW(HKEY key, LPCWSTR name, DWORD* reserved, DWORD* type, BYTE* data, DWORD* size);
LONG WINAPI RegCloseKey(HKEY key);
}

#endif
