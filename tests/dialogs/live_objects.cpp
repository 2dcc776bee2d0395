// Objects of the system: see the header. Wine's GetGuiResources counts nothing, so the graphics objects are
// counted in the table of their handles, which each process sees.
#include "dialogs/live_objects.h"

#include <cstdint>
#include <windows.h>

namespace {

struct HandleEntry { // of the graphics system
    uint64_t object;
    uint16_t process, unique;
    uint8_t kind, flags; // kind 0: free
    uint64_t userPointer;
};
static_assert(sizeof(HandleEntry) == 32 - 8);
constexpr size_t kTableInProcessBlock = 0xF8, kHandles = 0x4000;

int CountTableEntries() {
    const auto processBlock = reinterpret_cast<const uint8_t* (*)()>(
        reinterpret_cast<void (*)()>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetCurrentPeb")));
    const uint8_t* const process = processBlock();
    const auto* table = *reinterpret_cast<const HandleEntry* const*>(process + kTableInProcessBlock);
    int count = 0;
    for (size_t i = 0; i < kHandles; ++i)
        count += table[i].kind != 0;
    return count;
}

BOOL CALLBACK CountWindow(HWND window, LPARAM sum) {
    ++*reinterpret_cast<int*>(sum);
    EnumChildWindows(
        window, [](HWND, LPARAM inner) -> BOOL { return ++*reinterpret_cast<int*>(inner), TRUE; }, sum);
    return TRUE;
}

} // namespace

std::ostream& operator<<(std::ostream& out, const LiveObjects& objects) {
    return out << objects.windows << " windows, " << objects.graphics << " graphics objects";
}

LiveObjects CountLiveObjects() {
    LiveObjects objects = {};
    EnumThreadWindows(GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&objects.windows));
    const auto counted = static_cast<int>(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS));
    objects.graphics = counted != 0 ? counted : CountTableEntries();
    return objects;
}
