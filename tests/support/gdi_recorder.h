// Stands between the module and the system's drawing services, through the module's import table: notes what
// the module makes, selects, deletes and draws on, and lets chosen calls fail.
#ifndef SUPPORT_GDI_RECORDER_H
#define SUPPORT_GDI_RECORDER_H

#include <map>
#include <set>
#include <string>
#include <vector>
#include <windows.h>

// A function that a loaded module imports is another until the end.
struct PatchedImport {
    template <typename Function>
    PatchedImport(HMODULE module, Function* system, Function* other)
        : PatchedImport(module, reinterpret_cast<void*>(system), reinterpret_cast<void*>(other)) {}
    PatchedImport(HMODULE module, void* system, void* other);
    ~PatchedImport();
    PatchedImport(const PatchedImport&) = delete;
    PatchedImport& operator=(const PatchedImport&) = delete;

    void** const slot;
    void* const before;
};

// One at a time.
struct GdiRecorder {
    explicit GdiRecorder(HMODULE module);
    ~GdiRecorder(); // expects no complaints

    // Lets the n-th call of a function (of any, without a name) from now on fail, counted from 1, or each.
    // What is noted of calls begins anew.
    void Fail(const char* function, size_t nth);
    static constexpr size_t kEvery = SIZE_MAX;
    // What has been left behind or done in the wrong order; empty when all is well.
    std::string Complaints() const;

    std::vector<UINT> ids;          // of the bitmaps, in the order of loading
    std::map<HDC, int> copies;      // block transfers by target
    std::map<UINT, HBITMAP> served; // bitmaps that the resources shall hold besides; copies are served
    HDC fineContext = nullptr;      // the context of twice the usual resolution

    bool hasFailed = false; // a call was let fail:
    size_t loadsBefore = 0; // bitmaps asked for before, or by it
    DWORD failedType = 0;   // OBJ_BITMAP or OBJ_FONT, where the call is about either

    // The recorder's own.
    std::string failing;
    size_t failingCall = 0, calls = 0;
    std::set<HGDIOBJ> live;
    std::map<HDC, std::map<DWORD, HGDIOBJ>> selected; // by type of object
    std::string misdeeds;
    PatchedImport patches[10];
};

#endif
