// Writes zips with minizip.
#include "checks/log_zip.h"

#include "checks/program.h"

#include <zip.h>

#include <iowin32.h> // after zip.h

bool WriteZip(const std::filesystem::path& zip, const std::vector<std::filesystem::path>& files) {
    zlib_filefunc64_def access = {};
    fill_win32_filefunc64W(&access); // paths are UTF-16
    zipFile file = zipOpen2_64(zip.c_str(), APPEND_STATUS_CREATE, nullptr, &access);
    if (file == nullptr)
        return false;
    bool isWritten = true;
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    zip_fileinfo info = {};
    info.tmz_date = {now.wSecond, now.wMinute, now.wHour, now.wDay, now.wMonth - 1, now.wYear};
    for (const std::filesystem::path& each : files) {
        const std::string bytes = ReadFileBytes(each);
        isWritten = isWritten
                    && zipOpenNewFileInZip(file, each.filename().u8string().c_str(), &info, nullptr, 0,
                                           nullptr, 0, nullptr, Z_DEFLATED, Z_DEFAULT_COMPRESSION)
                           == ZIP_OK
                    && zipWriteInFileInZip(file, bytes.data(), static_cast<unsigned>(bytes.size())) == ZIP_OK
                    && zipCloseFileInZip(file) == ZIP_OK;
    }
    return zipClose(file, nullptr) == ZIP_OK && isWritten;
}
