// Blocks of the global heap as the bidirectional library's records want them: movable, zero-filled and
// locked.
#ifndef DEVCOMM_BIDI_LOCKED_BLOCK_H
#define DEVCOMM_BIDI_LOCKED_BLOCK_H

#include <cstddef>
#include <windows.h>

// Null without memory.
inline void* AllocateLockedOctets(size_t octets) {
    HGLOBAL handle = GlobalAlloc(GHND, octets);
    void* block = handle != nullptr ? GlobalLock(handle) : nullptr;
    if (handle != nullptr && block == nullptr)
        GlobalFree(handle);
    return block;
}

template <typename Record>
Record* AllocateLocked() {
    return static_cast<Record*>(AllocateLockedOctets(sizeof(Record)));
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
