// Loads and frees the module and, in turn, a library that does nothing. First in a process that lacks system
// libraries of the module, then in one that has them all. There it is also measured against what any module
// with the same duties costs, and how much of the rest is reading the parameter file.
#include "bench/stopwatch.h"

#include <filesystem>

namespace {

constexpr int kRounds = 300;
constexpr DWORD kFileCapacity = 1 << 20;

// False when the library does not load.
bool LoadAndFree(const std::filesystem::path& library) {
    HMODULE module = LoadLibraryW(library.c_str());
    return module != nullptr && FreeLibrary(module) != FALSE;
}

struct Files {
    std::filesystem::path module, templates, parameters, empty;
    std::filesystem::path snmpLibraries[2];
};

Files FindFiles(const std::filesystem::path& folder) {
    wchar_t system[MAX_PATH] = {};
    GetSystemDirectoryW(system, MAX_PATH);
    const std::filesystem::path systemFolder = system;
    return {folder / "TELMAR_D.DLL",
            folder / "TELMAR_S.DLL",
            folder / "TELMAR_D.PRM",
            folder / "empty.dll",
            {systemFolder / "MGMTAPI.DLL", systemFolder / "SNMPAPI.DLL"}};
}

// An empty library that looks for the system's SNMP libraries and loads the dialog templates.
bool LoadLeast(const Files& files) {
    HMODULE library = LoadLibraryW(files.empty.c_str());
    for (const std::filesystem::path& snmpLibrary : files.snmpLibraries)
        LoadAndFree(snmpLibrary);
    return library != nullptr && LoadAndFree(files.templates) && FreeLibrary(library) != FALSE;
}

bool ReadParameters(const Files& files) {
    static char bytes[kFileCapacity];
    DWORD count = 0;
    HANDLE file = CreateFileW(files.parameters.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                              0, nullptr);
    const bool isRead = file != INVALID_HANDLE_VALUE && GetFileSize(file, nullptr) <= kFileCapacity
                        && ReadFile(file, bytes, kFileCapacity, &count, nullptr) != FALSE;
    CloseHandle(file);
    return isRead && count != 0;
}

// Does the work once in every round; adds its times. False when it fails.
template <typename Work>
bool AddTime(std::vector<double>& times, const Work& work) {
    bool isDone = false;
    times.push_back(Measure([&] { isDone = work(); }));
    return isDone;
}

} // namespace

int wmain(int, wchar_t** arguments) {
    const Files files = FindFiles(std::filesystem::absolute(arguments[0]).parent_path());
    std::vector<double> alone, empty, module, least, parameters;
    bool isDone = true;
    LoadLibraryW(L"WINSPOOL.DRV"); // every host of a printer driver has the spooler's library
    for (int i = 0; i < kRounds && isDone; ++i)
        isDone = AddTime(alone, [&] { return LoadAndFree(files.module); })
                 && AddTime(empty, [&] { return LoadAndFree(files.empty); });
    for (const wchar_t* library : {L"WS2_32.DLL", L"COMCTL32.DLL"})
        LoadLibraryW(library);
    for (int i = 0; i < kRounds && isDone; ++i)
        isDone = AddTime(module, [&] { return LoadAndFree(files.module); })
                 && AddTime(least, [&] { return LoadLeast(files); })
                 && AddTime(parameters, [&] { return ReadParameters(files); });
    if (!isDone) {
        fprintf(stderr, "load_bench: TELMAR_D.DLL, TELMAR_S.DLL, TELMAR_D.PRM and empty.dll must be in this "
                        "program's folder\n");
        return 1;
    }
    PrintTimes("LoadAlone", alone);
    PrintTimes("LoadEmpty", empty);
    PrintTimes("Load", module);
    PrintTimes("LoadLeast", least);
    PrintTimes("ReadParameters", parameters);
    return 0;
}
