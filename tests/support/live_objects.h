// The system objects of the process, for tests that everything is released.
#ifndef SUPPORT_LIVE_OBJECTS_H
#define SUPPORT_LIVE_OBJECTS_H

#include <utility>
#include <vector>
#include <windows.h>

// How many more graphics objects the process can make: wine's GetGuiResources counts nothing.
inline size_t CountFreeObjects() {
    std::vector<HRGN> regions;
    while (HRGN region = CreateRectRgn(0, 0, 1, 1))
        regions.push_back(region);
    for (HRGN region : regions)
        DeleteObject(region);
    return regions.size();
}

using LiveObjects = std::pair<int, size_t>; // windows of this thread, and CountFreeObjects

inline LiveObjects CountLiveObjects() {
    int windows = 0;
    const WNDENUMPROC countOne = [](HWND, LPARAM sum) -> BOOL { return ++*reinterpret_cast<int*>(sum), TRUE; };
    EnumThreadWindows(GetCurrentThreadId(), countOne, reinterpret_cast<LPARAM>(&windows));
    return {windows, CountFreeObjects()};
}

#endif
