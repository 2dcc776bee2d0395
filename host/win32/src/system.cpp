// What the system says of itself: its version and its directory, as a test has set them.
#include "services.h"
#include "unicode.h"
#include "win32_control.h"

#include <algorithm>
#include <vector>

namespace {

constexpr DWORD kUsualMajor = 6;

DWORD platformId = VER_PLATFORM_WIN32_NT;
DWORD majorVersion = kUsualMajor;
std::vector<wchar_t> systemDirectory; // with its terminator; empty: the call fails

} // namespace

BOOL WINAPI GetVersionExW(OSVERSIONINFOW* version) {
    if (version->dwOSVersionInfoSize != sizeof(*version))
        return win32::Fail(ERROR_INSUFFICIENT_BUFFER);
    version->dwPlatformId = platformId;
    version->dwMajorVersion = majorVersion;
    version->dwMinorVersion = 1;
    version->dwBuildNumber = 7601;
    version->szCSDVersion[0] = 0;
    return TRUE;
}

UINT WINAPI GetSystemDirectoryW(LPWSTR path, UINT capacity) {
    const auto needed = static_cast<UINT>(systemDirectory.size());
    if (needed <= capacity)
        std::copy(systemDirectory.begin(), systemDirectory.end(), path);
    return needed <= capacity && needed > 0 ? needed - 1 : needed;
}

namespace win32 {

void ResetSystem() {
    SetVersion(VER_PLATFORM_WIN32_NT, kUsualMajor);
    SetSystemDirectory(L"C:\\Windows\\system32");
}

void SetVersion(DWORD id, DWORD major) {
    platformId = id;
    majorVersion = major;
}

void SetSystemDirectory(const wchar_t* path) {
    systemDirectory = Copy(path);
}

} // namespace win32
