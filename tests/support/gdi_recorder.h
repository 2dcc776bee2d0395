// Records what the module creates, selects, deletes and draws on, and lets chosen calls fail. Works through
// the module's import table.
#ifndef SUPPORT_GDI_RECORDER_H
#define SUPPORT_GDI_RECORDER_H

#include <map>
#include <set>
#include <string>
#include <vector>
#include <windows.h>

// Replaces a function that a loaded module imports, until the end of the scope.
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
    ~GdiRecorder(); // expects no errors

    // From now on the n-th call of a function (with an empty name: of any) fails, counted from 1, or every
    // call. The records of calls are cleared.
    void Fail(const char* function, size_t nth);
    static constexpr size_t kEvery = SIZE_MAX;
    // What was not released or done in the wrong order; empty when there is nothing.
    std::string Errors() const;

    std::vector<UINT> ids;          // of the bitmaps, in the order of loading
    std::map<HDC, int> copies;      // block transfers by target
    std::map<UINT, HBITMAP> served; // more bitmaps of the resources; copies are returned
    HDC fineContext = nullptr;      // reports twice the usual resolution

    bool hasFailed = false; // a call has failed:
    size_t loadsBefore = 0; // bitmaps requested until then, including that call
    DWORD failedType = 0;   // OBJ_BITMAP or OBJ_FONT, if the call concerns either

    // The recorder's own.
    std::string failing;
    size_t failingCall = 0, calls = 0;
    std::set<HGDIOBJ> live;
    std::map<HDC, std::map<DWORD, HGDIOBJ>> selected; // by type of object
    std::string errors;
    PatchedImport patches[10];
};

#endif
