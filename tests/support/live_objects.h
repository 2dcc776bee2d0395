// The system objects of the process, for tests that everything is released.
#ifndef SUPPORT_LIVE_OBJECTS_H
#define SUPPORT_LIVE_OBJECTS_H

#include "support/wine.h"

#include <vector>
#include <windows.h>

// The graphics objects of the process. Wine's GetGuiResources counts nothing: there, those that it could still make are
// counted, up to a number that it never reaches.
inline size_t CountGraphicsObjects() {
    if (!IsWine())
        return GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    constexpr size_t kMaxObjects = 1 << 20;
    std::vector<HRGN> regions;
    while (HRGN region = CreateRectRgn(0, 0, 1, 1))
        regions.push_back(region);
    for (HRGN region : regions)
        DeleteObject(region);
    return kMaxObjects - regions.size();
}

struct LiveObjects {
    int windows; // of this thread
    size_t graphics, user;
};

inline LiveObjects CountLiveObjects() {
    int windows = 0;
    const WNDENUMPROC countOne = [](HWND, LPARAM sum) -> BOOL { return ++*reinterpret_cast<int*>(sum), TRUE; };
    EnumThreadWindows(GetCurrentThreadId(), countOne, reinterpret_cast<LPARAM>(&windows));
    return {windows, CountGraphicsObjects(), GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS)};
}

// Fails when rounds after `before` have left something behind. Windows keeps some objects for all windows of a process,
// which it makes when it first needs them; what leaks does so in every round.
inline testing::AssertionResult HasLeftNothing(const LiveObjects& before, int rounds) {
    const LiveObjects now = CountLiveObjects();
    const auto kept = static_cast<size_t>(IsWine() ? 0 : rounds - 1);
    if (now.windows == before.windows && now.graphics <= before.graphics + kept && now.user <= before.user + kept)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "windows, graphics and user objects: " << now.windows << ", " << now.graphics
                                       << ", " << now.user << "; before: " << before.windows << ", " << before.graphics
                                       << ", " << before.user;
}

#endif
