// The log of calls and the script of answers: see uimodule/test_hooks.h.
#include "uimodule/call_log.h"

namespace {

bool isLogging;
uint32_t callCount; // may be more than there is room for
UiCall log[kMostUiCalls];

struct ScriptRow {
    uint32_t control;
    int32_t answer;
    uint32_t times; // 0: the row is free
};
ScriptRow script[kMostUiAnswers];
int32_t downloadManager;

ScriptRow* FindRow(uint32_t control) {
    for (ScriptRow& row : script)
        if (row.times != 0 && row.control == control)
            return &row;
    return nullptr;
}

ScriptRow* FindFreeRow() {
    for (ScriptRow& row : script)
        if (row.times == 0)
            return &row;
    return nullptr;
}

} // namespace

void LogCall(const UiCall& call) {
    if (!isLogging)
        return;
    if (callCount < kMostUiCalls)
        log[callCount] = call;
    ++callCount;
}

bool TakeScriptedAnswer(uint32_t control, int32_t& answer) {
    ScriptRow* row = FindRow(control);
    if (row == nullptr)
        return false;
    answer = row->answer;
    --row->times;
    return true;
}

int32_t ScriptedDownloadManager() {
    return downloadManager;
}

void WINAPI UiTestStartLog() {
    callCount = 0;
    isLogging = true;
}

uint32_t WINAPI UiTestReadLog(UiCall* calls, uint32_t capacity) {
    for (uint32_t i = 0; calls != nullptr && i < capacity && i < callCount && i < kMostUiCalls; ++i)
        calls[i] = log[i];
    return callCount;
}

void WINAPI UiTestClear() {
    callCount = 0;
    isLogging = false;
    for (ScriptRow& row : script)
        row = {};
    downloadManager = 0;
}

BOOL WINAPI UiTestAnswer(uint32_t control, int32_t answer, uint32_t times) {
    ScriptRow* row = FindRow(control);
    if (row == nullptr)
        row = FindFreeRow();
    if (row == nullptr)
        return FALSE;
    *row = {control, answer, times};
    return TRUE;
}

void WINAPI UiTestSetDownloadManager(int32_t answer) {
    downloadManager = answer;
}
