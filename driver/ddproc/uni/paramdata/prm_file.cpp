// Parameter data file: see the header. Normally the whole file is one image in memory; the road without an
// image gives the same results, only slower.
#include "paramdata/prm_file.h"

#include "base/text.h"

#include <cstring>

namespace {

// A file whose size can't be asked is taken to be no larger than this.
constexpr uint32_t kUnknownSize = 16u << 20;

// Lists in memory are a few times larger than their items in the file (144 bytes from 16 at the worst).
constexpr uint64_t kAllowanceFactor = 16;
constexpr uint64_t kAllowanceBase = 4096;

// Reads on from the file's position until `count` bytes have arrived or the file ends. -1 when a read fails.
int64_t ReadOn(HANDLE handle, void* to, uint32_t count) {
    uint32_t total = 0;
    while (total < count) {
        DWORD delivered = 0;
        if (!ReadFile(handle, static_cast<uint8_t*>(to) + total, count - total, &delivered, nullptr))
            return -1;
        if (delivered == 0)
            break;
        total += delivered;
    }
    return total;
}

// Loads the whole file; on any failure the handle stays without an image.
void LoadImage(PrmFile& file) {
    const DWORD size = GetFileSize(file.handle, nullptr);
    if (size == INVALID_FILE_SIZE)
        return;
    file.size = size;
    auto* image = static_cast<uint8_t*>(GlobalAlloc(GPTR, size));
    if (image == nullptr)
        return;
    if (ReadOn(file.handle, image, size) >= 0)
        file.image = image;
    else
        GlobalFree(image);
    SetFilePointer(file.handle, 0, nullptr, FILE_BEGIN);
}

} // namespace

PrmFile* PrmOpen(const void* path, uint32_t wideName) {
    auto* file = static_cast<PrmFile*>(GlobalAlloc(GPTR, sizeof(PrmFile)));
    if (file == nullptr)
        return nullptr;
    file->wideName = wideName;
    if (wideName != 0) {
        CopyText(file->widePath, static_cast<const wchar_t*>(path));
        file->handle = CreateFileW(file->widePath, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                   FILE_ATTRIBUTE_NORMAL, nullptr);
    } else {
        CopyText(file->narrowPath, static_cast<const char*>(path));
        file->handle = CreateFileA(file->narrowPath, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                   FILE_ATTRIBUTE_NORMAL, nullptr);
    }
    if (file->handle == INVALID_HANDLE_VALUE) {
        GlobalFree(file);
        return nullptr;
    }
    file->size = kUnknownSize;
    LoadImage(*file);
    file->allowance = kAllowanceFactor * file->size + kAllowanceBase;
    return file;
}

PrmFile* PrmOpenW(const wchar_t* path) {
    return PrmOpen(path, 1);
}

void PrmClose(PrmFile* file) {
    if (file == nullptr)
        return;
    CloseHandle(file->handle);
    if (file->image != nullptr)
        GlobalFree(file->image);
    GlobalFree(file);
}

int32_t PrmRead(const PrmFile& file, void* to, uint32_t count, uint64_t offset) {
    count = count < INT32_MAX ? count : INT32_MAX;
    if (file.image != nullptr) {
        if (offset >= file.size)
            return 0;
        const uint64_t left = file.size - offset;
        count = count < left ? count : static_cast<uint32_t>(left);
        memcpy(to, file.image + offset, count);
        return static_cast<int32_t>(count);
    }
    if (offset > UINT32_MAX)
        return 0;
    LONG high = 0;
    const DWORD position = SetFilePointer(file.handle, static_cast<LONG>(offset), &high, FILE_BEGIN);
    if (position != offset)
        return 0;
    return static_cast<int32_t>(ReadOn(file.handle, to, count));
}

uint32_t PrmFindEntry(const PrmFile& file, const char* name) {
    PrmHeader header = {};
    PrmRead(file, &header, sizeof(header), 0);

    // The chain may lead anywhere, backwards too; a file of this size holds no more entries than this.
    const uint32_t mostEntries = file.size / sizeof(PrmEntry);
    uint32_t offset = kPrmFirstEntry;
    for (uint32_t i = 0; i < mostEntries; ++i) {
        PrmEntry entry;
        if (PrmRead(file, &entry, sizeof(entry), offset) < static_cast<int32_t>(sizeof(entry)))
            return 0;
        if (SameText(entry.name, name))
            return offset < header.chainEnd ? offset : 0;
        if (entry.next >= header.chainEnd)
            return 0;
        offset = entry.next;
    }
    return 0;
}

void* PrmAllocateRecords(PrmFile& file, uint64_t count, size_t recordSize) {
    if (count > file.allowance / recordSize)
        return nullptr;
    void* records = GlobalAlloc(GPTR, count * recordSize);
    if (records != nullptr)
        file.allowance -= count * recordSize;
    return records;
}
