// Global and local heap over the host's own, so that its sanitizers watch every block; owns the counts of
// blocks and the failure that a test has ordered.
#include "services.h"
#include "win32_control.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <list>
#include <memory>

namespace {

constexpr int kUnfilled = 0xCD; // contents of a block that is not requested zero-filled

// No machine grants a larger block, so that tests need none on which one fails.
constexpr SIZE_T kMaxBytes = SIZE_T{1} << 30;

win32::Counts counts = {};
unsigned failFirst = 0; // allocations from now until the first that fails; 0: none is ordered
unsigned failCount = 0;

// Whether the allocation that is being made is one of those that a test wants to fail.
bool FailureIsOrdered() {
    if (failFirst > 1) {
        --failFirst;
        return false;
    }
    if (failFirst == 0 || failCount == 0)
        return false;
    --failCount;
    return true;
}

void* Allocate(UINT flags, SIZE_T size, int& liveBlocks) {
    ++counts.allocations;
    void* block = FailureIsOrdered() || size > kMaxBytes ? nullptr : std::malloc(size);
    if (block == nullptr) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    std::memset(block, (flags & GMEM_ZEROINIT) != 0 ? 0 : kUnfilled, size);
    ++liveBlocks;
    counts.allocatedBytes += size;
    return block;
}

void* Release(void* block, int& liveBlocks) {
    if (block != nullptr)
        --liveBlocks;
    std::free(block);
    win32::Released();
    return nullptr;
}

// The record of a movable block; its address is the handle.
struct MovableBlock {
    void* block;
    int locks;
};
std::list<MovableBlock*> movableBlocks;

// Null for the handle of a fixed block, which is its address.
MovableBlock* FindMovable(const void* handle) {
    const auto found = std::find(movableBlocks.begin(), movableBlocks.end(), handle);
    return found != movableBlocks.end() ? *found : nullptr;
}

} // namespace

HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T size) {
    void* block = Allocate(flags, size, counts.globalBlocks);
    if (block == nullptr || (flags & GMEM_MOVEABLE) == 0)
        return block;
    auto* handle = new MovableBlock{block, 0};
    movableBlocks.push_back(handle);
    return handle;
}

HGLOBAL WINAPI GlobalFree(HGLOBAL handle) {
    MovableBlock* movable = FindMovable(handle);
    if (movable == nullptr)
        return Release(handle, counts.globalBlocks);
    if (movable->locks != 0)
        return handle;
    movableBlocks.remove(movable);
    const std::unique_ptr<MovableBlock> owner(movable);
    return Release(movable->block, counts.globalBlocks);
}

LPVOID WINAPI GlobalLock(HGLOBAL handle) {
    MovableBlock* movable = FindMovable(handle);
    if (movable == nullptr)
        return handle; // a fixed block needs no lock
    ++movable->locks;
    return movable->block;
}

BOOL WINAPI GlobalUnlock(HGLOBAL handle) {
    MovableBlock* movable = FindMovable(handle);
    if (movable != nullptr && movable->locks > 0)
        --movable->locks;
    return movable != nullptr && movable->locks > 0 ? TRUE : FALSE;
}

HGLOBAL WINAPI GlobalHandle(const void* block) {
    for (MovableBlock* each : movableBlocks)
        if (each->block == block)
            return each;
    return nullptr;
}

HLOCAL WINAPI LocalAlloc(UINT flags, SIZE_T size) {
    return Allocate(flags, size, counts.localBlocks);
}

HLOCAL WINAPI LocalFree(HLOCAL block) {
    return Release(block, counts.localBlocks);
}

namespace win32 {

void ResetHeaps() {
    counts = {};
    FailAllocations(0);
}

void Reset() {
    ResetCalls();
    ResetCodePages();
    ResetFiles();
    ResetHeaps();
    ResetModules();
    ResetSockets();
    ResetRegistry();
    ResetSpooler();
    ResetSystem();
}

Counts Count() {
    Counts now = counts;
    now.files = LiveFiles();
    now.libraryReferences = LiveLibraryReferences();
    now.sockets = LiveSockets();
    now.socketUses = LiveSocketUses();
    now.printers = LivePrinters();
    now.registryKeys = LiveRegistryKeys();
    return now;
}

void FailAllocations(unsigned first, unsigned howMany) {
    failFirst = first;
    failCount = howMany;
}

} // namespace win32
