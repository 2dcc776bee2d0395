// Blocks of the global heap for records of the bidirectional library: movable, zero-filled, locked.
#ifndef DEVCOMM_BIDI_LOCKED_BLOCK_H
#define DEVCOMM_BIDI_LOCKED_BLOCK_H

#include <cstddef>
#include <windows.h>

// Null without memory.
inline void* AllocateLockedBytes(size_t size) {
    HGLOBAL handle = GlobalAlloc(GHND, size);
    void* block = handle != nullptr ? GlobalLock(handle) : nullptr;
    if (handle != nullptr && block == nullptr)
        GlobalFree(handle);
    return block;
}

template <typename Record>
Record* AllocateLocked() {
    return static_cast<Record*>(AllocateLockedBytes(sizeof(Record)));
}

// Accepts null.
inline void FreeLocked(void* block) {
    if (block == nullptr)
        return;
    HGLOBAL handle = GlobalHandle(block);
    GlobalUnlock(handle);
    GlobalFree(handle);
}

#endif
