// Global and local heap over the host's own, so that its sanitizers watch every block; owns the counts of
// blocks and the failure that a test has ordered.
#include "platform_control.h"
#include "services.h"

#include <cstdlib>
#include <cstring>

namespace {

constexpr int kUnfilled = 0xCD; // what a block holds that was not asked for zero-filled

platform::Counts counts = {};
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
    void* block = FailureIsOrdered() ? nullptr : std::malloc(size);
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
    platform::Released();
    return nullptr;
}

} // namespace

HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T size) {
    return Allocate(flags, size, counts.globalBlocks);
}

HGLOBAL WINAPI GlobalFree(HGLOBAL block) {
    return Release(block, counts.globalBlocks);
}

HLOCAL WINAPI LocalAlloc(UINT flags, SIZE_T size) {
    return Allocate(flags, size, counts.localBlocks);
}

HLOCAL WINAPI LocalFree(HLOCAL block) {
    return Release(block, counts.localBlocks);
}

namespace platform {

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

} // namespace platform
