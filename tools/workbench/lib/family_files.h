// The driver's files in one folder: the module, loaded by its full path as the generic modules do, the
// parameter data file, and the tables that the module's own code builds from it in this process.
#ifndef WORKBENCH_LIB_FAMILY_FILES_H
#define WORKBENCH_LIB_FAMILY_FILES_H

#include "workbench/lib/document.h"
#include "workbench/lib/module_parts.h"

#include <filesystem>
#include <memory>

// Releases what the system and the module's code return as plain pointers.
struct Release {
    void operator()(HMODULE module) const { FreeLibrary(module); }
    void operator()(PrmFile* file) const { PrmClose(file); }
    void operator()(DeviceTable* /*table*/) const { FreeDeviceData(); }
};
using Library = std::unique_ptr<std::remove_pointer_t<HMODULE>, Release>;

struct FamilyFiles {
    std::filesystem::path modulePath;
    std::filesystem::path parameterPath;
    Library module;
    std::unique_ptr<PrmFile, Release> parameters;
    std::unique_ptr<DeviceTable, Release> table; // also owns the media type lists
};

// The folder of the program's own file.
std::filesystem::path ProgramFolder();

// Opens the files of this folder, or of the program's own folder when the path is empty. Call it once: it
// also fills the default settings, texts and lists of the process. Throws Failure when a file is missing or
// unusable.
FamilyFiles OpenFamilyFiles(const std::filesystem::path& folder);

// The module of these files, kept loaded as long as the result exists, for a thread that may outlive them.
// Nothing else of the files is opened.
FamilyFiles ModuleOf(const FamilyFiles& family);

// TELMAR_S.DLL next to the module, with the dialog templates. Throws Failure when it cannot be loaded.
Library OpenTemplates(const FamilyFiles& family);

// "major.minor.patch.build" from the file's version resource; "unknown" when it has none.
std::string FileVersion(const std::filesystem::path& path);

// Paths and version of the driver's files: the first section of most documents.
Document FamilyDocument(const FamilyFiles& family);

// An export of the module under its declared type: ModuleExport<decltype(&Name)>(family, "Name"). Throws
// Failure when the module lacks it.
void* FindModuleExport(const FamilyFiles& family, const char* name);
template <typename Function>
Function ModuleExport(const FamilyFiles& family, const char* name) {
    return reinterpret_cast<Function>(FindModuleExport(family, name));
}

// The same for an export that telmar_d.h declares under its own name.
#define EXPORT(family, name) ModuleExport<decltype(&(name))>(family, #name)

#endif
