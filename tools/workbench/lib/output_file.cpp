// Files that a command writes: see the header.
#include "workbench/lib/output_file.h"

#include "workbench/lib/document.h"
#include "workbench/lib/output.h"

#include <utility>

namespace {

// A file beside the final one, which is removed unless it takes that one's place. Its functions are false,
// with the last error, where the system declines.
struct NewFile {
    explicit NewFile(const std::filesystem::path& finalPath) : keptAs(finalPath), path(finalPath) {
        path += L".part";
        handle = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                             nullptr);
    }
    ~NewFile() {
        if (!IsOpen())
            return;
        CloseHandle(handle);
        DeleteFileW(path.c_str());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    bool IsOpen() const { return handle != INVALID_HANDLE_VALUE; }

    bool Write(std::string_view bytes) const {
        DWORD written = 0;
        return WriteFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != FALSE;
    }

    bool Keep() {
        CloseHandle(std::exchange(handle, INVALID_HANDLE_VALUE));
        if (MoveFileExW(path.c_str(), keptAs.c_str(), MOVEFILE_REPLACE_EXISTING))
            return true;
        const DWORD error = GetLastError();
        DeleteFileW(path.c_str());
        SetLastError(error);
        return false;
    }

    const std::filesystem::path keptAs;
    std::filesystem::path path;
    HANDLE handle;
};

} // namespace

void WriteOutputFile(const std::filesystem::path& path, std::string_view bytes, const char* option) {
    NewFile file(path);
    if (!file.IsOpen() || !file.Write(bytes) || !file.Keep()) {
        const std::string reason = ErrorText(GetLastError());
        throw Failure(kExitFailed, path.u8string() + ": can't be written (" + reason
                                       + "); make room for it, or name another file with " + option);
    }
}
