// Reads and writes whole files. A new file gets a temporary name in the same folder and is then renamed.
#include "common/files.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Fail(const std::string& what, const std::string& path, int reason) {
    throw std::runtime_error("cannot " + what + " '" + path + "': " + std::strerror(reason));
}

struct TemporaryFile {
    std::string path;
    int descriptor;

    explicit TemporaryFile(const std::string& target)
        : path(target + ".XXXXXX"), descriptor(mkstemp(path.data())) {
        if (descriptor < 0)
            Fail("create a temporary file next to", target, errno);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        close(descriptor);
        unlink(path.c_str()); // fails after the rename, which is fine
    }
};

void WriteAll(int descriptor, std::string_view contents, const std::string& path) {
    while (!contents.empty()) {
        const ssize_t written = write(descriptor, contents.data(), contents.size());
        if (written < 0 && errno != EINTR)
            Fail("write", path, errno);
        contents.remove_prefix(static_cast<size_t>(written > 0 ? written : 0));
    }
}

} // namespace

std::string ReadFile(const std::string& path, size_t most) {
    std::FILE* file = std::fopen(path.c_str(), "rb");
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
    const fs::file_status status = fs::status(path, ignored);
    if (path.empty())
        refuse("the name is empty");
    if (fs::is_directory(status))
        refuse("it is a folder");
    if (fs::exists(status) && !fs::is_regular_file(status))
        refuse("it is not a file but a device or a pipe");
    const bool isLink = fs::is_symlink(fs::symlink_status(path, ignored));
    if (isLink && !fs::exists(status))
        refuse("it is a link to a file that does not exist");
    const std::string target = isLink ? fs::canonical(path).string() : path; // a link stays a link
    const fs::path parent = fs::path(target).parent_path(), folder = parent.empty() ? "." : parent;
    if (!fs::is_directory(folder, ignored))
        refuse("there is no folder '" + folder.string() + "'");
    if (access(folder.c_str(), W_OK | X_OK) != 0)
        Fail("create a temporary file next to", path, errno);
    return target;
}

void WriteFileWhole(const std::string& path, std::string_view contents) {
    std::error_code ignored;
    const fs::file_status status = fs::status(path, ignored);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        std::ofstream stream(path, std::ios::binary);
        if (!stream.write(contents.data(), static_cast<std::streamsize>(contents.size())).flush())
            Fail("write", path, errno);
        return;
    }
    const std::string target = FileToReplace(path);
    const TemporaryFile temporary(target);
    WriteAll(temporary.descriptor, contents, path);
    const mode_t mask = umask(0);
    umask(mask);
    if (fchmod(temporary.descriptor, 0666 & ~mask) != 0
        || std::rename(temporary.path.c_str(), target.c_str()) != 0)
        Fail("write", path, errno);
}
