// Opens and reads the parameter data file. Normally the whole file is in memory; without that memory each
// read goes to the file, with the same results for any file of a model.
#include "paramdata/prm_file.h"

#include "base/text.h"

#include <cstring>

namespace {

// A list in memory is at most 9 times as large as its items in the file: 144 bytes from 16.
constexpr uint64_t kAllowanceFactor = 16;
constexpr uint64_t kAllowanceBase = 4096;

// Reads from the file's position until `count` bytes have been read or the file ends. False when a read
// fails.
bool ReadFully(HANDLE handle, void* to, uint32_t count, uint32_t& delivered) {
    delivered = 0;
    while (delivered < count) {
        DWORD part = 0;
        if (!ReadFile(handle, static_cast<uint8_t*>(to) + delivered, count - delivered, &part, nullptr))
            return false;
        if (part == 0)
            break;
        delivered += part;
    }
    return true;
}

// Loads the whole file. On any failure there is no image.
void LoadImage(PrmFile& file) {
    auto* image = static_cast<uint8_t*>(GlobalAlloc(GMEM_FIXED, file.size));
    if (image == nullptr)
        return;
    uint32_t delivered = 0;
    if (ReadFully(file.handle, image, file.size, delivered)) {
        memset(image + delivered, 0, file.size - delivered); // of a file that has become shorter
        file.image = image;
    } else {
        GlobalFree(image);
    }
    SetFilePointer(file.handle, 0, nullptr, FILE_BEGIN);
}

// Whether the image has all these bytes.
bool IsInImage(const PrmFile& file, uint64_t offset, uint32_t count) {
    return file.image != nullptr && offset <= file.size && count <= file.size - offset;
}

// The entry at the offset; null unless the file has all of it.
const PrmEntry* EntryAt(const PrmFile& file, uint32_t offset, PrmEntry& buffer) {
    if (IsInImage(file, offset, sizeof(PrmEntry)))
        return reinterpret_cast<const PrmEntry*>(file.image + offset);
    uint32_t delivered = 0;
    const bool isRead = PrmRead(file, &buffer, sizeof(buffer), offset, delivered);
    return isRead && delivered == sizeof(buffer) ? &buffer : nullptr;
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
    DWORD sizeHigh = 0;
    const DWORD size = GetFileSize(file->handle, &sizeHigh);
    if (size == INVALID_FILE_SIZE) {
        file->size = kPrmMaxFileBytes;
    } else if (sizeHigh == 0 && size <= kPrmMaxFileBytes) {
        file->size = size;
        LoadImage(*file);
    } else {
        PrmClose(file);
        return nullptr;
    }
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

bool PrmRead(const PrmFile& file, void* to, uint32_t count, uint64_t offset, uint32_t& delivered) {
    delivered = 0;
    if (file.image != nullptr) {
        if (offset >= file.size)
            return true;
        const uint64_t left = file.size - offset;
        delivered = count < left ? count : static_cast<uint32_t>(left);
        memcpy(to, file.image + offset, delivered);
        return true;
    }
    if (offset > UINT32_MAX)
        return true;
    LONG high = 0;
    if (SetFilePointer(file.handle, static_cast<LONG>(offset), &high, FILE_BEGIN) != offset)
        return true;
    return ReadFully(file.handle, to, count, delivered);
}

const void* PrmBytesAt(const PrmFile& file, void* buffer, uint32_t count, uint64_t offset) {
    if (IsInImage(file, offset, count))
        return file.image + offset;
    memset(buffer, 0, count);
    uint32_t delivered = 0;
    return PrmRead(file, buffer, count, offset, delivered) ? buffer : nullptr;
}

uint32_t PrmMaxElements(const PrmFile& file, size_t size) {
    const auto possible = static_cast<uint32_t>(file.size / size);
    const uint32_t limit = file.image != nullptr ? kPrmMaxElements : kPrmMaxUnbuffered;
    return possible < limit ? possible : limit;
}

uint32_t PrmFindEntry(const PrmFile& file, const char* name) {
    PrmHeader header = {};
    uint32_t delivered = 0;
    PrmRead(file, &header, sizeof(header), 0, delivered);

    const uint32_t maxEntries = PrmMaxElements(file, sizeof(PrmEntry)); // the chain may lead anywhere
    const char initial = FoldCase(name[0]);
    uint32_t offset = kPrmFirstEntry;
    for (uint32_t i = 0; i < maxEntries; ++i) {
        PrmEntry buffer;
        const PrmEntry* entry = EntryAt(file, offset, buffer);
        if (entry == nullptr)
            return 0;
        if (FoldCase(entry->name[0]) == initial && SameText(entry->name, name)) // most differ at once
            return offset < header.chainEnd ? offset : 0;
        if (entry->next >= header.chainEnd)
            return 0;
        offset = entry->next;
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
