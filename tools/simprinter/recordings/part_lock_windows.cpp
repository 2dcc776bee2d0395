// The lock of Windows: of a byte behind all that a recording has, since locked bytes can't be written
// otherwise.
#include "simprinter/recordings/part_lock.h"

#include "common/files.h"
#include "common/text.h"
#include "common/wide_text.h"
#include "simprinter/recordings/record.h"

#include <stdexcept>

namespace {

HANDLE OpenPart(const std::string& part) {
    return CreateFileW(FilePath(part).c_str(), GENERIC_READ | GENERIC_WRITE,
                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

// Whether the name is still that of the file: its recorder may just have renamed it.
bool HasFile(const std::string& part, HANDLE handle) {
    HANDLE const other = OpenPart(part);
    BY_HANDLE_FILE_INFORMATION own, named;
    const bool isSame = GetFileInformationByHandle(handle, &own) && GetFileInformationByHandle(other, &named)
                        && own.nFileIndexLow == named.nFileIndexLow
                        && own.nFileIndexHigh == named.nFileIndexHigh
                        && own.dwVolumeSerialNumber == named.dwVolumeSerialNumber;
    CloseHandle(other);
    return isSame;
}

} // namespace

PartLock::PartLock(const std::string& part) {
    for (;; CloseHandle(handle)) {
        handle = OpenPart(part);
        if (handle == INVALID_HANDLE_VALUE)
            throw std::runtime_error("cannot write " + QuotePath(part) + ": "
                                     + SystemErrorText(GetLastError()));
        OVERLAPPED last = {};
        last.OffsetHigh = 1;
        if (!LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &last)
            && GetLastError() == ERROR_LOCK_VIOLATION) {
            CloseHandle(handle);
            throw std::runtime_error(InUseText(part));
        }
        if (HasFile(part, handle))
            return;
    }
}

PartLock::~PartLock() {
    CloseHandle(handle);
}
