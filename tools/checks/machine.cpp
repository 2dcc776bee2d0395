// Reads from the system what a failure can depend on.
#include "checks/machine.h"

#include "checks/package_files.h"
#include "checks/program.h"

#include <vector>
#include <windows.h>

namespace fs = std::filesystem;

namespace {

template <typename Function>
Function* FromNtdll(const char* name) {
    FARPROC found = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name);
    return reinterpret_cast<Function*>(reinterpret_cast<void (*)()>(found));
}

std::string ReadWindowsValue(const wchar_t* name) {
    wchar_t text[200] = L"";
    DWORD size = sizeof(text);
    RegGetValueW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", name, RRF_RT_REG_SZ,
                 nullptr, text, &size);
    return fs::path(text).u8string();
}

std::string ReadRevision() {
    DWORD revision = 0, size = sizeof(revision);
    RegGetValueW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", L"UBR",
                 RRF_RT_REG_DWORD, nullptr, &revision, &size);
    return std::to_string(revision);
}

bool IsElevated() {
    HANDLE token = nullptr;
    TOKEN_ELEVATION elevation = {};
    DWORD size = 0;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return false;
    GetTokenInformation(token, TokenElevation, &elevation, sizeof(elevation), &size);
    CloseHandle(token);
    return elevation.TokenIsElevated != 0;
}

std::string LanguageName(LANGID language) {
    wchar_t name[LOCALE_NAME_MAX_LENGTH] = L"";
    LCIDToLocaleName(MAKELCID(language, SORT_DEFAULT), name, LOCALE_NAME_MAX_LENGTH, 0);
    return fs::path(name).u8string();
}

} // namespace

std::string SystemName() {
    RTL_OSVERSIONINFOW version = {}; // GetVersionEx would hide versions that the manifest does not name
    version.dwOSVersionInfoSize = sizeof(version);
    if (auto* const read = FromNtdll<LONG WINAPI(RTL_OSVERSIONINFOW*)>("RtlGetVersion"))
        read(&version);
    auto* const wine = FromNtdll<const char*()>("wine_get_version");
    return "Windows " + std::to_string(version.dwMajorVersion) + "." + std::to_string(version.dwMinorVersion)
           + "." + std::to_string(version.dwBuildNumber)
           + (wine != nullptr ? std::string(", by wine ") + wine() : "");
}

std::string VersionOf(const fs::path& file) {
    std::vector<BYTE> info(GetFileVersionInfoSizeW(file.c_str(), nullptr));
    void* found = nullptr;
    UINT size = 0;
    if (info.empty() || !GetFileVersionInfoW(file.c_str(), 0, static_cast<DWORD>(info.size()), info.data())
        || !VerQueryValueW(info.data(), L"\\", &found, &size))
        return "";
    const auto& fixed = *static_cast<const VS_FIXEDFILEINFO*>(found);
    return std::to_string(HIWORD(fixed.dwFileVersionMS)) + "." + std::to_string(LOWORD(fixed.dwFileVersionMS))
           + "." + std::to_string(HIWORD(fixed.dwFileVersionLS)) + "."
           + std::to_string(LOWORD(fixed.dwFileVersionLS));
}

std::string DescribeMachine(const fs::path& module) {
    const HDC screen = GetDC(nullptr);
    const int resolution = GetDeviceCaps(screen, LOGPIXELSX), depth = GetDeviceCaps(screen, BITSPIXEL);
    ReleaseDC(nullptr, screen);
    BOOL smooths = FALSE;
    UINT smoothing = 0;
    SystemParametersInfoW(SPI_GETFONTSMOOTHING, 0, &smooths, 0);
    SystemParametersInfoW(SPI_GETFONTSMOOTHINGTYPE, 0, &smoothing, 0);
    HIGHCONTRASTW contrast = {};
    contrast.cbSize = sizeof(contrast);
    SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0);
    SYSTEM_INFO system = {};
    GetNativeSystemInfo(&system);
    return "System: " + SystemName() + "\nEdition: " + ReadWindowsValue(L"ProductName") + " "
           + ReadWindowsValue(L"DisplayVersion") + ", revision " + ReadRevision()
           + "\nProcessors: " + std::to_string(system.dwNumberOfProcessors) + ", architecture "
           + std::to_string(system.wProcessorArchitecture)
           + " (9: x86-64, 12: ARM64)\nElevated: " + (IsElevated() ? "yes" : "no")
           + "\nLanguage of the user: " + LanguageName(GetUserDefaultUILanguage()) + "\nRegion of the user: "
           + LanguageName(GetUserDefaultLangID()) + "\nCode page: " + std::to_string(GetACP())
           + "\nScreen, as programs without DPI awareness see it: "
           + std::to_string(GetSystemMetrics(SM_CXSCREEN)) + " x "
           + std::to_string(GetSystemMetrics(SM_CYSCREEN)) + " pixels, " + std::to_string(resolution)
           + " dpi, " + std::to_string(depth)
           + " bits\nMonitors: " + std::to_string(GetSystemMetrics(SM_CMONITORS)) + "\nText smoothing: "
           + (!smooths                                 ? "none"
              : smoothing == FE_FONTSMOOTHINGCLEARTYPE ? "ClearType"
                                                       : "grey")
           + "\nHigh contrast: " + ((contrast.dwFlags & HCF_HIGHCONTRASTON) != 0 ? "on" : "off")
           + "\nRemote session: " + (GetSystemMetrics(SM_REMOTESESSION) != 0 ? "yes" : "no")
           + "\nModule: " + module.filename().u8string() + " " + VersionOf(module)
           + "\nSHA-256 of the module: " + Sha256(ReadFileBytes(module)) + "\n";
}

bool IsEnglish() {
    return PRIMARYLANGID(GetUserDefaultUILanguage()) == LANG_ENGLISH;
}
