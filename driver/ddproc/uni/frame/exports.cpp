// The export that the frame itself answers.
#include "base/records.h"

void* WINAPI DDProc_FeatureNameItemTable() {
    return nullptr;
}
