// Parameter data file: open, close, bytes at an offset, entries by name. The file is untrusted: no content
// makes a read leave the file, a search run on for ever or a builder allocate out of proportion.
#ifndef PARAMDATA_PRM_FILE_H
#define PARAMDATA_PRM_FILE_H

#include "paramdata/prm_layout.h"

#include <windows.h>

constexpr size_t kPrmPathCapacity = 260;

// An open parameter data file; one zero-filled global-heap block, owned by whoever opened it.
struct PrmFile {
    HANDLE handle;
    union {
        wchar_t widePath[kPrmPathCapacity];
        char narrowPath[kPrmPathCapacity];
    };
    uint32_t wideName;  // 1: opened by widePath, 0: by narrowPath
    uint8_t* image;     // the whole file in a global-heap block; null: reads go to the file
    uint32_t size;      // of the file, in bytes
    uint64_t allowance; // bytes that the builders may still allocate on the file's word
};

// Opens the file and loads it into memory; when that can't be done, the handle reads from the file directly.
// `path` is UTF-16 when `wideName` is 1, 8-bit when it is 0. Null when the file can't be opened.
PrmFile* PrmOpen(const void* path, uint32_t wideName);
PrmFile* PrmOpenW(const wchar_t* path);

// Closes the file and releases the handle. Null is accepted.
void PrmClose(PrmFile* file);

// Reads up to `count` bytes at the offset. Result: bytes delivered, 0 at or beyond the end, -1 when a read
// failed. Offsets are 64 bits wide so that sums of file values can't wrap.
int32_t PrmRead(const PrmFile& file, void* to, uint32_t count, uint64_t offset);

// Offset of the entry with this name (ASCII case ignored); 0 when there is none.
uint32_t PrmFindEntry(const PrmFile& file, const char* name);

// Zero-filled global-heap block of `count` records that the file announces, terminator included. Null when
// there is no memory, or when honest contents of a file of this size could not need so much. The caller frees
// it.
void* PrmAllocateRecords(PrmFile& file, uint64_t count, size_t recordSize);

#endif
