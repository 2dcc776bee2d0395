// The export that the frame itself answers.
#include "frame/exports.h"

void* WINAPI DDProc_FeatureNameItemTable() {
    return nullptr;
}
