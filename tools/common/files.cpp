// Reads and writes whole files. A new file gets a temporary name in the same folder and is then renamed.
#include "common/files.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Fail(const std::string& what, const std::string& path, int reason) {
    throw std::runtime_error("cannot " + what + " '" + path + "': " + std::strerror(reason));
}

#ifdef _WIN32
std::FILE* OpenToRead(const std::string& path) {
    return _wfopen(FilePath(path).c_str(), L"rb");
}

int OpenTemporaryFile(std::string& path) {
    path += '.' + std::to_string(getpid()) + ".part";
    return _wopen(FilePath(path).c_str(), _O_WRONLY | _O_CREAT | _O_TRUNC | _O_BINARY, _S_IREAD | _S_IWRITE);
}

// A folder's list of who may write is not read; creating the file then fails.
bool CanCreateFiles(const fs::path&) {
    return true;
}

bool AllowAsOtherFiles(int) {
    return true; // the folder gives it the rights of any new file
}
#else
std::FILE* OpenToRead(const std::string& path) {
    return std::fopen(path.c_str(), "rb");
}

int OpenTemporaryFile(std::string& path) {
    path += ".XXXXXX";
    return mkstemp(path.data());
}

bool CanCreateFiles(const fs::path& folder) {
    return access(folder.c_str(), W_OK | X_OK) == 0;
}

// mkstemp allows only its user to read the file.
bool AllowAsOtherFiles(int descriptor) {
    const mode_t mask = umask(0);
    umask(mask);
    return fchmod(descriptor, 0666 & ~mask) == 0;
}
#endif

struct TemporaryFile {
    std::string path;
    int descriptor;

    explicit TemporaryFile(const std::string& target) : path(target), descriptor(OpenTemporaryFile(path)) {
        if (descriptor < 0)
            Fail("create a temporary file next to", target, errno);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        Close();
        std::error_code ignored; // it is gone after the rename
        fs::remove(FilePath(path), ignored);
    }

    // Windows renames no open file.
    void Close() {
        if (descriptor >= 0)
            close(std::exchange(descriptor, -1));
    }
};

void WriteAll(int descriptor, std::string_view contents, const std::string& path) {
    while (!contents.empty()) {
        const auto written = write(descriptor, contents.data(), static_cast<unsigned>(contents.size()));
        if (written < 0 && errno != EINTR)
            Fail("write", path, errno);
        contents.remove_prefix(static_cast<size_t>(written > 0 ? written : 0));
    }
}

} // namespace

std::string ReadFile(const std::string& path, size_t most) {
    std::FILE* file = OpenToRead(path);
    if (!file)
        Fail("read", path, errno);
    std::string contents(most + 1, '\0');
    errno = 0;
    contents.resize(std::fread(contents.data(), 1, contents.size(), file));
    const int reason = std::ferror(file) ? errno : 0;
    std::fclose(file);
    if (reason != 0)
        Fail("read", path, reason);
    if (contents.size() > most)
        throw std::runtime_error("cannot read '" + path + "': it has more than " + std::to_string(most)
                                 + " bytes, the most that is read of such a file");
    return contents;
}

std::string FileToReplace(const std::string& path) {
    const auto refuse = [&](const std::string& why) {
        throw std::runtime_error("cannot write '" + path + "': " + why);
    };
    std::error_code ignored;
    const fs::file_status status = fs::status(FilePath(path), ignored);
    if (path.empty())
        refuse("the name is empty");
    if (fs::is_directory(status))
        refuse("it is a folder");
    if (fs::exists(status) && !fs::is_regular_file(status))
        refuse("it is not a file but a device or a pipe");
    const bool isLink = fs::is_symlink(fs::symlink_status(FilePath(path), ignored));
    if (isLink && !fs::exists(status))
        refuse("it is a link to a file that does not exist");
    const std::string target =
        isLink ? fs::canonical(FilePath(path)).u8string() : path; // a link stays a link
    const fs::path parent = FilePath(target).parent_path(), folder = parent.empty() ? "." : parent;
    if (!fs::is_directory(folder, ignored))
        refuse("there is no folder '" + folder.u8string() + "'");
    if (!CanCreateFiles(folder))
        Fail("create a temporary file next to", path, errno);
    return target;
}

void WriteFileWhole(const std::string& path, std::string_view contents) {
    std::error_code ignored;
    const fs::file_status status = fs::status(FilePath(path), ignored);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        std::ofstream stream(FilePath(path), std::ios::binary);
        if (!stream.write(contents.data(), static_cast<std::streamsize>(contents.size())).flush())
            Fail("write", path, errno);
        return;
    }
    const std::string target = FileToReplace(path);
    TemporaryFile temporary(target);
    WriteAll(temporary.descriptor, contents, path);
    if (!AllowAsOtherFiles(temporary.descriptor))
        Fail("write", path, errno);
    temporary.Close();
    std::error_code error;
    fs::rename(FilePath(temporary.path), FilePath(target), error);
    if (error)
        Fail("write", path, error.default_error_condition().value());
}
