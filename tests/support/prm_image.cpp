// Builds parameter data files byte by byte, and temporary files of them.
#include "support/prm_image.h"

#include <fstream>
#include <sstream>
#include <unistd.h>

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        parts.push_back(part);
    return parts;
}

PrmImage::PrmImage() : bytes(sizeof(PrmHeader)) {
    Entry("First");
}

uint32_t PrmImage::Put(const void* record, size_t size) {
    const uint32_t offset = Size();
    const auto* from = static_cast<const uint8_t*>(record);
    bytes.insert(bytes.end(), from, from + size);
    return offset;
}

uint32_t PrmImage::Text(const std::string& text) {
    return Put(RawBytes(text.size() / 4 * 4 + 4).Text(0, text));
}

uint32_t PrmImage::Wide(const wchar_t* text) {
    size_t length = 0;
    while (text[length] != 0)
        ++length;
    return Put(RawBytes(length / 2 * 4 + 4).Wide(0, text));
}

PrmTextItem PrmImage::WithText(const std::string& key, const wchar_t* display, uint32_t value,
                               const std::string& text) {
    PrmTextItem item = {Head(key, display), value, {}, {}};
    text.copy(item.text, sizeof(item.text));
    memset(item.unread, 0xAB, sizeof(item.unread));
    return item;
}

PrmMediaItem PrmImage::Media(const std::string& key, const wchar_t* display, uint32_t value, uint32_t extra,
                             const std::string& text) {
    PrmMediaItem item = {Head(key, display), value, {}, extra, {}};
    text.copy(item.text, sizeof(item.text));
    memset(item.unread, 0xAB, sizeof(item.unread));
    return item;
}

uint32_t PrmImage::Entry(const std::string& name, const std::vector<uint32_t>& itemOffsets, uint32_t firstItem,
                         uint32_t defaultRecord) {
    const auto count = static_cast<uint32_t>(itemOffsets.size());
    const uint32_t offsets = count == 0 ? 0 : Put(itemOffsets.data(), count * sizeof(uint32_t));
    const uint32_t entry = Put(RawBytes(52).Text(0, name).U32(32, firstItem));
    Put(RawBytes(12).U32(0, count).U32(4, defaultRecord).U32(8, offsets));
    if (lastEntry != 0)
        At<PrmEntry>(lastEntry).next = entry;
    lastEntry = entry;
    At<PrmEntry>(entry).next = At<PrmHeader>(0).chainEnd = Size();
    return entry;
}

uint32_t PrmImage::Table(const std::string& name, const std::string& rows) {
    const uint32_t firstRow = Size();
    uint32_t count = 0;
    for (const std::string& row : Split(rows, ';')) {
        const size_t equals = row.find('=');
        Put(RawBytes(64).Text(0, row.substr(0, equals)).Text(32, row.substr(equals + 1)));
        ++count;
    }
    return Entry(name, {Put(RawBytes(12).U32(0, count).U32(4, 0xABABABAB).U32(8, firstRow))});
}

uint32_t PrmImage::Range(const std::string& name, uint32_t at36, uint32_t at40, uint32_t at44) {
    const uint32_t entry = Entry(name);
    Put(RawBytes(48).U8(0, 0xAB, 36).U32(36, at36).U32(40, at40).U32(44, at44));
    return entry;
}

uint32_t PrmImage::StringValue(const std::string& name, const std::string& value) {
    const uint32_t key = Text(value);
    return Entry(name, {}, 0, Put(RawBytes(16).U32(0, key)));
}

// Test programs may run at the same time, and one test may use several files. The name is relative: it is the same in
// every code page, whatever the letters of the folder are.
TemporaryFile::TemporaryFile(const std::vector<uint8_t>& bytes) {
    static unsigned number = 0;
    path = "lumora_" + std::to_string(getpid()) + "_" + std::to_string(++number) + ".prm";
    widePath = Widened(path);
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(file.flush()) << path;
}
