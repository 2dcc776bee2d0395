// The module's entry point: start-up and shut-down.
#ifndef FRAME_ENTRY_H
#define FRAME_ENTRY_H

#include <windows.h>

// Called by the system under the loader lock. Process attach sets up everything that the exports need,
// process detach releases it; the thread reasons do nothing. TRUE in every case: a failed step never fails
// the load.
extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* reserved);

#endif
