// The record of the calls that a test may look at, the failure it has ordered among them, and what releases
// make of the last error.
#include "services.h"
#include "win32_control.h"

namespace {

std::vector<std::string> calls;
unsigned callsToFailure = 0; // 0: none is ordered
DWORD orderedError = 0;
bool releasesSetLastError = false;
DWORD errorOfReleases = 0;

} // namespace

namespace win32 {

void ResetCalls() {
    calls.clear();
    callsToFailure = 0;
    releasesSetLastError = false;
}

DWORD RecordCall(const std::string& call) {
    calls.push_back(call);
    return callsToFailure != 0 && --callsToFailure == 0 ? orderedError : 0;
}

void Released() {
    if (releasesSetLastError)
        SetLastError(errorOfReleases);
}

const std::vector<std::string>& Calls() {
    return calls;
}

void FailCall(unsigned number, DWORD error) {
    callsToFailure = number;
    orderedError = error;
}

void LetReleasesSetLastError(DWORD error) {
    releasesSetLastError = true;
    errorOfReleases = error;
}

} // namespace win32
