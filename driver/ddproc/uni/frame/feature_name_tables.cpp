// DDProc_FeatureNameItemTable, which is also exported as DDProc_FeatureNameValuePtr. This model has no such
// table.
#include "base/records.h"

void* WINAPI DDProc_FeatureNameItemTable() {
    return nullptr;
}
