// Opens the driver's files and reports what is missing or damaged.
#include "workbench/lib/family_files.h"

#include "workbench/lib/text.h"

#include <vector>

namespace {

constexpr const wchar_t* kModuleName = L"TELMAR_D.DLL";
constexpr const wchar_t* kParameterName = L"TELMAR_D.PRM";
constexpr const char* kOtherFolder = "; put it there, or specify its folder with --folder";

// Call it before anything else sets the last error.
[[noreturn]] void FailToOpen(const std::filesystem::path& path, const char* what) {
    const std::string reason = ErrorText(GetLastError());
    throw Failure(kExitFailed, path.u8string() + ": " + what + " (" + reason + ")" + kOtherFolder);
}

} // namespace

std::filesystem::path ProgramFolder() {
    std::wstring path(32768, L'\0'); // the longest path of Windows
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return std::filesystem::path(path).parent_path();
}

FamilyFiles OpenFamilyFiles(const std::filesystem::path& folder) {
    FamilyFiles family;
    const auto base = folder.empty() ? ProgramFolder() : std::filesystem::absolute(folder);
    family.modulePath = base / kModuleName;
    family.parameterPath = base / kParameterName;

    family.module.reset(LoadLibraryW(family.modulePath.c_str()));
    if (family.module == nullptr)
        FailToOpen(family.modulePath, "the module cannot be loaded");

    family.parameters.reset(PrmOpenW(family.parameterPath.c_str()));
    if (family.parameters == nullptr)
        FailToOpen(family.parameterPath, "the parameter data file cannot be opened");
    if (PrmFindEntry(*family.parameters, "FeatureSetting") == 0)
        throw Failure(kExitFailed, family.parameterPath.u8string()
                                       + ": not a parameter data file, or damaged: it has no FeatureSetting; "
                                         "examine it with 'prmc check', or build it again");

    InitDeviceData(family.module.get());
    family.table.reset(deviceTable);
    if (family.table == nullptr)
        throw Failure(kExitFailed,
                      family.parameterPath.u8string()
                          + ": no device data: the path is too long for the module, or memory is "
                            "exhausted");
    return family;
}

FamilyFiles ModuleOf(const FamilyFiles& family) {
    FamilyFiles files;
    files.modulePath = family.modulePath;
    files.module.reset(LoadLibraryW(files.modulePath.c_str()));
    return files;
}

Library OpenTemplates(const FamilyFiles& family) {
    const auto path = family.modulePath.parent_path() / L"TELMAR_S.DLL";
    Library library(LoadLibraryW(path.c_str()));
    if (library == nullptr)
        throw Failure(kExitFailed, path.u8string() + ": the dialog templates cannot be loaded ("
                                       + ErrorText(GetLastError()) + "); put the file there");
    return library;
}

std::string FileVersion(const std::filesystem::path& path) {
    DWORD unused;
    std::vector<uint8_t> data(GetFileVersionInfoSizeW(path.c_str(), &unused));
    void* found;
    UINT size;
    if (data.empty() || !GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(data.size()), data.data())
        || !VerQueryValueW(data.data(), L"\\", &found, &size))
        return "unknown";
    const auto& info = *static_cast<const VS_FIXEDFILEINFO*>(found);
    std::string version;
    for (const DWORD part : {info.dwFileVersionMS, info.dwFileVersionLS})
        version +=
            (version.empty() ? "" : ".") + std::to_string(HIWORD(part)) + "." + std::to_string(LOWORD(part));
    return version;
}

Document FamilyDocument(const FamilyFiles& family) {
    return {
        {"module", family.modulePath.u8string()},
        {"version", FileVersion(family.modulePath)},
        {"parameterFile", family.parameterPath.u8string()},
        {"parameterBytes", family.parameters->size},
    };
}

void* FindModuleExport(const FamilyFiles& family, const char* name) {
    const FARPROC function = GetProcAddress(family.module.get(), name);
    if (function == nullptr)
        throw Failure(kExitFailed, family.modulePath.u8string() + ": has no export " + name
                                       + "; it is another file of that name, or an older version: build it "
                                         "again");
    return reinterpret_cast<void*>(function);
}
