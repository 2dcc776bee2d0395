// The parameter data file: open, close, bytes at an offset, entries by name. The file is untrusted: whatever
// it contains, reads stay within it, searches end, and allocations stay in proportion to its size.
#ifndef PARAMDATA_PRM_FILE_H
#define PARAMDATA_PRM_FILE_H

#include "paramdata/prm_layout.h"

#include <windows.h>

constexpr size_t kPrmPathCapacity = 260;

// An open parameter data file: one zero-filled block of the global heap, owned by the caller of PrmOpen.
struct PrmFile {
    HANDLE handle;
    union {
        wchar_t widePath[kPrmPathCapacity];
        char narrowPath[kPrmPathCapacity];
    };
    uint32_t wideName;  // 1: opened by widePath, 0: by narrowPath
    uint8_t* image;     // the whole file in a global-heap block; null: reads go to the file
    uint32_t size;      // of the file, in bytes; its limit when the size is unknown
    uint64_t allowance; // bytes that may still be allocated for what the file announces
};

// Opens the file and loads it into memory; where that fails, reads go to the file. `path` is UTF-16 when
// `wideName` is 1, 8-bit when it is 0. Null when the file can't be opened or is larger than any model's.
PrmFile* PrmOpen(const void* path, uint32_t wideName);
PrmFile* PrmOpenW(const wchar_t* path);

// Closes the file and releases the handle. Null is accepted.
void PrmClose(PrmFile* file);

// Reads up to `count` bytes at the offset; `delivered` is how many, 0 at or beyond the end. False when a read
// failed. Offsets are 64 bits wide so that sums of file values can't wrap.
bool PrmRead(const PrmFile& file, void* to, uint32_t count, uint64_t offset, uint32_t& delivered);

// The `count` bytes at the offset, without a copy where the image has them all. Otherwise what can be read is
// in `buffer`, followed by zeros. Null when a read failed.
const void* PrmBytesAt(const PrmFile& file, void* buffer, uint32_t count, uint64_t offset);

// Most elements of this many bytes each that are followed, by a count or by links: what the file can contain,
// up to a fixed limit.
uint32_t PrmMaxElements(const PrmFile& file, size_t size);

// Offset of the entry with this name (ASCII case ignored); 0 when there is none.
uint32_t PrmFindEntry(const PrmFile& file, const char* name);

// A zero-filled block of the global heap for `count` records that the file announces, terminator included.
// The caller frees it. Null without memory, and when a valid file of this size could not need that much.
void* PrmAllocateRecords(PrmFile& file, uint64_t count, size_t recordSize);

#endif
