// What TELMAR_U.DLL exports for tests besides the callbacks: a log of the calls, answers by script, and a
// download manager. A dialog frees the library at its end: whoever uses these holds the library by a
// LoadLibrary of their own, or log and script are gone with it.
//
// A library that lacks callbacks is another library: `add_ui_module(TARGET WITHOUT CALLBACK...)` builds it
// from the same sources, with a shorter export table, as bin/TARGET/TELMAR_U.DLL (uimodule/CMakeLists.txt).
#ifndef UIMODULE_TEST_HOOKS_H
#define UIMODULE_TEST_HOOKS_H

#include <cstdint>
#include <windows.h>

// One call. What a callback is not given, is 0.
struct UiCall {
    char callback[32];
    HWND dialog;         // of MyDialogBox: the owner
    HWND hintWindow;     // that DoConstraints is given, or CreateToolWnd gives
    uint32_t control;    // of DoConstraints and ReqDrawStopInfoIcon
    uint32_t dialogId;   // of ReplaceDlgDispStringCmnItem and DispHintControl; of MyDialogBox: the template
    uint32_t hasContext; // 1: the context (of MyDialogBox: the parameter) is not null
    int32_t result;      // of DoConstraints, IsInstalledDLManager and MyDialogBox
};
static_assert(sizeof(UiCall) == 64);

constexpr uint32_t kMostUiCalls = 1024; // that a log keeps; later ones are only counted
constexpr uint32_t kMostUiAnswers = 32; // that a script holds

extern "C" {

// Empties the log and keeps one from now on. Calls are listed in the order in which they were made, but
// MyDialogBox and CreateToolWnd in that in which they returned.
void WINAPI UiTestStartLog();

// Copies the first calls, `capacity` at the most, and returns how many there were in all.
uint32_t WINAPI UiTestReadLog(UiCall* calls, uint32_t capacity);

// Ends and empties the log, forgets the script and the download manager.
void WINAPI UiTestClear();

// The next `times` calls of DoConstraints for this control (0: for all controls) answer so, whatever the
// settings say. 100 and 101 mark the choice as refused. What was said of the control before is replaced.
// False when the script is full.
BOOL WINAPI UiTestAnswer(uint32_t control, int32_t answer, uint32_t times);

// What IsInstalledDLManager answers.
void WINAPI UiTestSetDownloadManager(int32_t answer);
}

#endif
