// The callbacks' side of uimodule/test_hooks.h.
#ifndef UIMODULE_CALL_LOG_H
#define UIMODULE_CALL_LOG_H

#include "uimodule/test_hooks.h"

// Adds a call to the log, when one is kept.
void LogCall(const UiCall& call);

// The script's answer for a control, used up once; false when it has none.
bool TakeScriptedAnswer(uint32_t control, int32_t& answer);

int32_t ScriptedDownloadManager();

#endif
