// A library that does nothing: the least that loading one can cost.
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD, void*) {
    return TRUE;
}
