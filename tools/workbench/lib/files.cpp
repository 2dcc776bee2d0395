// Reads files whole and replaces files atomically.
#include "workbench/lib/files.h"

#include "workbench/lib/document.h"
#include "workbench/lib/text.h"

#include <fstream>
#include <iterator>
#include <utility>

namespace {

// A temporary file next to the final one. It is deleted unless Keep() has renamed it. Functions return false
// and set the last error on failure.
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

std::string ReadInputFile(const std::string& path, const char* option) {
    std::ifstream file(std::filesystem::u8path(path), std::ios::binary);
    if (!file)
        throw Failure(kExitFailed, path + ": cannot be read; specify another file with " + option);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string ReadTextFile(const std::string& path, const char* option) {
    constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";
    const std::string text = ReadInputFile(path, option);
    return text.compare(0, 3, kByteOrderMark) == 0 ? text.substr(3) : text;
}

std::filesystem::path MakeFolder(const std::string& path, const char* option) {
    const auto folder = std::filesystem::absolute(std::filesystem::u8path(path)).make_preferred();
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error)
        throw Failure(kExitFailed, folder.u8string() + ": the folder cannot be made ("
                                       + ErrorText(static_cast<DWORD>(error.value()))
                                       + "); specify another one with " + option);
    return folder;
}

DWORD TryWriteFile(const std::filesystem::path& path, std::string_view bytes) {
    NewFile file(path);
    return file.IsOpen() && file.Write(bytes) && file.Keep() ? ERROR_SUCCESS : GetLastError();
}

void WriteOutputFile(const std::filesystem::path& path, std::string_view bytes, const char* option) {
    if (const DWORD error = TryWriteFile(path, bytes); error != ERROR_SUCCESS)
        throw Failure(kExitFailed, path.u8string() + ": cannot be written (" + ErrorText(error)
                                       + "); free some space, or specify another file with " + option);
}
