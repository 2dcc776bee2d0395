// The two exports that always return null.
#include "base/records.h"

void* WINAPI DDProc_FeatureNameItemTable() {
    return nullptr;
}
