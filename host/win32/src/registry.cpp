// The keys and values that a test has set under HKEY_LOCAL_MACHINE; owns them and the open keys' count. An
// open key's handle is the address of its record.
#include "services.h"
#include "unicode.h"
#include "win32_control.h"

#include <algorithm>
#include <list>
#include <map>

namespace {

std::map<std::string, std::map<std::string, std::vector<BYTE>>> keys; // values by name, by the key's path
std::list<std::string> openKeys;                                      // their paths

} // namespace

LONG WINAPI RegOpenKeyExW(HKEY parent, LPCWSTR path, DWORD options, DWORD access, HKEY* key) {
    const std::string wanted = win32::ToUtf8(path);
    const DWORD error = win32::RecordCall("RegOpenKeyExW " + wanted);
    if (error != 0)
        return static_cast<LONG>(error);
    if (parent != HKEY_LOCAL_MACHINE || options != 0 || access != KEY_READ)
        return ERROR_INVALID_PARAMETER;
    if (keys.count(wanted) == 0)
        return ERROR_FILE_NOT_FOUND;
    openKeys.push_back(wanted);
    *key = reinterpret_cast<HKEY>(&openKeys.back());
    return ERROR_SUCCESS;
}

LONG WINAPI RegQueryValueExW(HKEY key, LPCWSTR name, DWORD* /*reserved*/, DWORD* type, BYTE* data,
                             DWORD* size) {
    const std::string wanted = win32::ToUtf8(name);
    const DWORD error = win32::RecordCall("RegQueryValueExW " + wanted + " " + std::to_string(*size));
    if (error != 0)
        return static_cast<LONG>(error);
    const auto& values = keys[*reinterpret_cast<const std::string*>(key)];
    const auto found = values.find(wanted);
    if (found == values.end())
        return ERROR_FILE_NOT_FOUND;
    const DWORD capacity = *size;
    *size = static_cast<DWORD>(found->second.size());
    if (type != nullptr)
        *type = REG_SZ;
    if (data == nullptr)
        return ERROR_SUCCESS;
    if (capacity < *size)
        return ERROR_MORE_DATA;
    std::copy(found->second.begin(), found->second.end(), data);
    return ERROR_SUCCESS;
}

LONG WINAPI RegCloseKey(HKEY key) {
    openKeys.remove_if([key](std::string& open) { return reinterpret_cast<HKEY>(&open) == key; });
    win32::Released();
    return ERROR_SUCCESS;
}

namespace win32 {

void ResetRegistry() {
    keys.clear();
    openKeys.clear();
}

int LiveRegistryKeys() {
    return static_cast<int>(openKeys.size());
}

void AddRegistryKey(const wchar_t* path) {
    keys[ToUtf8(path)];
}

void SetRegistryValue(const wchar_t* path, const wchar_t* name, const std::vector<BYTE>& data) {
    keys[ToUtf8(path)][ToUtf8(name)] = data;
}

} // namespace win32
