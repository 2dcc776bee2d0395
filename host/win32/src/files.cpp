// Reading of files through the host's file descriptors; owns the open files' count and the faults a test has
// ordered.
#include "services.h"
#include "unicode.h"
#include "win32_control.h"

#include <algorithm>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct OpenFile {
    int descriptor;
};

int liveFiles = 0;
win32::FileFaults faults;

int Descriptor(HANDLE file) {
    return static_cast<OpenFile*>(file)->descriptor;
}

HANDLE Open(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        SetLastError(ERROR_FILE_NOT_FOUND);
        return INVALID_HANDLE_VALUE;
    }
    ++liveFiles;
    return new OpenFile{descriptor};
}

// Passes on whether a call failed, and sets the last error when it did.
bool Failed(bool failed, DWORD error) {
    if (failed)
        SetLastError(error);
    return failed;
}

} // namespace

HANDLE WINAPI CreateFileW(LPCWSTR path, DWORD, DWORD, LPVOID, DWORD, DWORD, HANDLE) {
    return Open(win32::ToUtf8(path));
}

HANDLE WINAPI CreateFileA(LPCSTR path, DWORD, DWORD, LPVOID, DWORD, DWORD, HANDLE) {
    return Open(path);
}

BOOL WINAPI ReadFile(HANDLE file, LPVOID to, DWORD count, DWORD* delivered, LPVOID) {
    *delivered = 0;
    if (Failed(faults.failingRead != 0 && --faults.failingRead == 0, ERROR_READ_FAULT))
        return FALSE;
    const ssize_t got =
        read(Descriptor(file), to, faults.mostPerRead != 0 ? std::min(count, faults.mostPerRead) : count);
    if (Failed(got < 0, ERROR_READ_FAULT))
        return FALSE;
    *delivered = static_cast<DWORD>(got);
    return TRUE;
}

DWORD WINAPI SetFilePointer(HANDLE file, LONG distance, LONG* distanceHigh, DWORD from) {
    static constexpr int kWhence[] = {SEEK_SET, SEEK_CUR, SEEK_END};
    int64_t offset = distance;
    if (distanceHigh != nullptr)
        offset = static_cast<int64_t>(*distanceHigh) * (int64_t{1} << 32) + static_cast<uint32_t>(distance);
    if (Failed(faults.seekFails || from > FILE_END, ERROR_INVALID_PARAMETER))
        return INVALID_SET_FILE_POINTER;
    const int64_t position = lseek(Descriptor(file), offset, kWhence[from]);
    if (Failed(position < 0, ERROR_NEGATIVE_SEEK))
        return INVALID_SET_FILE_POINTER;
    if (distanceHigh != nullptr)
        *distanceHigh = static_cast<LONG>(position >> 32);
    SetLastError(0);
    return static_cast<DWORD>(position);
}

DWORD WINAPI GetFileSize(HANDLE file, DWORD* sizeHigh) {
    struct stat status = {};
    if (Failed(faults.sizeFails || fstat(Descriptor(file), &status) != 0, ERROR_INVALID_HANDLE))
        return INVALID_FILE_SIZE;
    if (sizeHigh != nullptr)
        *sizeHigh = static_cast<DWORD>(status.st_size >> 32);
    SetLastError(0);
    return static_cast<DWORD>(status.st_size) + faults.missing;
}

BOOL WINAPI CloseHandle(HANDLE file) {
    if (Failed(file == nullptr || file == INVALID_HANDLE_VALUE, ERROR_INVALID_HANDLE))
        return FALSE;
    --liveFiles;
    close(Descriptor(file));
    delete static_cast<OpenFile*>(file);
    return TRUE;
}

namespace win32 {

void ResetFiles() {
    faults = {};
    liveFiles = 0;
}

int LiveFiles() {
    return liveFiles;
}

void SetFileFaults(const FileFaults& ordered) {
    faults = ordered;
}

} // namespace win32
