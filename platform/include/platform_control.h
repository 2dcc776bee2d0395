// How a test steers the host's stand-in for the system and sees what the code under test has left behind.
// Used by host tests and fuzz targets only; not safe for several threads at once.
#ifndef PLATFORM_CONTROL_H
#define PLATFORM_CONTROL_H

#include <windows.h>

#include <initializer_list>

namespace platform {

// Everything back to the start: no fault, no library, no module file name, counts of the past at 0.
// Call it while nothing is live.
void Reset();

// What is held now, and what has been asked for since the reset. A block released to the wrong heap shows as
// a negative number.
struct Counts {
    int globalBlocks;
    int localBlocks;
    int files;
    int libraryReferences;
    unsigned allocations;  // of both heaps, failed ones included
    size_t allocatedBytes; // sum of all that succeeded
};
Counts Count();

// From the allocation of this number from now on (1: the next one), of either heap, that many fail. 0: none.
void FailAllocations(unsigned first, unsigned howMany = 1);

struct FileFaults {
    unsigned failingRead = 0; // the read of this number from now fails (1: the next one); 0: none
    DWORD mostPerRead = 0;    // bytes that one read delivers at most; 0: no limit
    bool sizeFails = false;
    bool seekFails = false;
};
void SetFileFaults(const FileFaults& ordered);

// One function of a library. Takes a function of any signature.
struct Export {
    template <typename Result, typename... Arguments>
    Export(const char* exportName, Result (*exportFunction)(Arguments...))
        : name(exportName),
          function(reinterpret_cast<FARPROC>(reinterpret_cast<void (*)()>(exportFunction))) {}

    const char* name;
    FARPROC function;
};

// Makes LoadLibraryW of exactly this path succeed until the reset.
void RegisterLibrary(const wchar_t* path, std::initializer_list<Export> exports = {});

// What GetModuleFileNameW answers for every module; before, it fails.
void SetModuleFileName(const wchar_t* path);

// Version of the system: platform family and major number.
void SetVersion(DWORD id, DWORD major);

// Without a separator at its end. "C:\\Windows\\system32" before a test sets another.
void SetSystemDirectory(const wchar_t* path);

} // namespace platform

#endif
