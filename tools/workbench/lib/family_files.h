// The driver's files in one folder: the module, loaded by its full path as the generic modules do, the
// parameter data file, and what the module's own code makes of that file in this process.
#ifndef WORKBENCH_LIB_FAMILY_FILES_H
#define WORKBENCH_LIB_FAMILY_FILES_H

#include "frame/device_data.h"
#include "paramdata/device_table.h"
#include "paramdata/prm_file.h"
#include "workbench/lib/document.h"

#include <filesystem>
#include <memory>

// Releases what the module's own code hands out as plain pointers.
struct Release {
    void operator()(HMODULE module) const { FreeLibrary(module); }
    void operator()(PrmFile* file) const { PrmClose(file); }
    void operator()(DeviceTable* /*table*/) const { FreeDeviceData(); }
};

struct FamilyFiles {
    std::filesystem::path modulePath;
    std::filesystem::path parameterPath;
    std::unique_ptr<std::remove_pointer_t<HMODULE>, Release> module;
    std::unique_ptr<PrmFile, Release> parameters;
    std::unique_ptr<DeviceTable, Release> table; // and all else that the initialisation has built
};

// Opens the files of this folder; of the program's own folder when it is empty. To be called once: it also
// fills the process-wide default settings, texts and lists. Throws Failure when a file is missing or
// unusable.
FamilyFiles OpenFamilyFiles(const std::filesystem::path& folder);

// The library of the model's dialog templates, beside the module. Throws Failure when it can't be loaded.
using Library = std::unique_ptr<std::remove_pointer_t<HMODULE>, Release>;
Library OpenTemplates(const FamilyFiles& family);

// "major.minor.patch.build" of a file's version resource; "unknown" when it has none.
std::string FileVersion(const std::filesystem::path& path);

// Where the files lie and which version the module is: the first section of every document.
Document FamilyDocument(const FamilyFiles& family);

// An export of the module under its declared type: ModuleExport<decltype(&Name)>(family, "Name"). Throws
// Failure when the module lacks it.
void* FindModuleExport(const FamilyFiles& family, const char* name);
template <typename Function>
Function ModuleExport(const FamilyFiles& family, const char* name) {
    return reinterpret_cast<Function>(FindModuleExport(family, name));
}

// The same, by the name that it is declared under.
#define EXPORT(family, name) ModuleExport<decltype(&(name))>(family, #name)

#endif
