// Bounds-checked access to a binary file: claims blocks and reads numbers and texts.
#include "prmc/forms/prm_bytes.h"

#include "common/text.h"
#include "paramdata/prm_layout.h"

#include <algorithm>

void PrmBytes::SetEntry(const std::string& name) {
    entryName = name;
    isLossy = false;
}

void PrmBytes::Error(uint64_t at, const std::string& message) {
    findings.Error(AtOffset(at), entryName.empty() ? message : Quote(entryName) + ": " + message);
}

uint32_t PrmBytes::Read(uint64_t at, size_t width) const {
    uint32_t number = 0;
    for (size_t i = 0; i < width; ++i)
        number |= static_cast<uint32_t>(static_cast<uint8_t>(bytes[at + i])) << (8 * i);
    return number;
}

bool PrmBytes::OverlapsBlock(uint64_t start, uint64_t end) const {
    const auto after = blocks.lower_bound(end);
    return after != blocks.begin() && std::prev(after)->second > start;
}

bool PrmBytes::Claim(uint64_t start, uint64_t size, uint64_t linkAt, const std::string& what) {
    const uint64_t end = start + size;
    if (end > bytes.size()) {
        Error(linkAt, what + " at " + Hex(start) + " extends beyond the file");
        return false;
    }
    if (OverlapsBlock(start, end)) {
        Error(linkAt, what + " at " + Hex(start) + " overlaps another block");
        return false;
    }
    if (size > 0)
        blocks[start] = end;
    return true;
}

std::string PrmBytes::ReadField(uint64_t at, size_t size) {
    const std::string_view field = bytes.substr(at, size);
    const size_t length = std::min(field.find('\0'), size);
    if (length == size)
        Error(at, "the text " + Quote(Utf8FromBytes(field)) + " has no terminator");
    NoteLoss(at + length, size - length);
    return Utf8FromBytes(field.substr(0, length));
}

// Whether there can be a text at the offset that is stored at `linkAt`; if not, reports an error.
bool PrmBytes::CheckTextOffset(uint64_t linkAt, const char* what) {
    const uint64_t at = Read32(linkAt);
    if (at == 0)
        Error(linkAt, std::string("the ") + what + " is missing");
    else if (at >= bytes.size())
        Error(linkAt, std::string("the ") + what + " at " + Hex(at) + " is outside the file");
    else
        return true;
    return false;
}

std::optional<std::string> PrmBytes::ReadKey(uint64_t linkAt) {
    if (!CheckTextOffset(linkAt, "key"))
        return {};
    const uint64_t at = Read32(linkAt);
    const std::string_view text = bytes.substr(at, kPrmMaxTextBytes + 1);
    const size_t length = text.find('\0');
    if (length == std::string_view::npos) {
        Error(linkAt, "the key at " + Hex(at) + " has no terminator");
        return {};
    }
    texts.push_back({at, at + length + 1, linkAt, entryName});
    return Utf8FromBytes(text.substr(0, length));
}

std::optional<std::string> PrmBytes::ReadName(uint64_t linkAt) {
    if (!CheckTextOffset(linkAt, "display name"))
        return {};
    const uint64_t at = Read32(linkAt);
    std::u16string text;
    for (uint64_t unitAt = at;; unitAt += 2) {
        if (unitAt + 2 > bytes.size() || text.size() > kPrmMaxTextChars) {
            Error(linkAt, "the display name at " + Hex(at) + " has no terminator");
            return {};
        }
        const auto unit = static_cast<char16_t>(Read(unitAt, 2));
        if (unit == 0)
            break;
        text.push_back(unit);
    }
    texts.push_back({at, at + 2 * text.size() + 2, linkAt, entryName});
    bool isWellFormed;
    std::string name = Utf8FromUtf16(text, isWellFormed);
    if (!isWellFormed)
        Error(linkAt, "the display name at " + Hex(at) + " is not valid UTF-16");
    return name;
}

void PrmBytes::NoteLoss(uint64_t at, uint64_t size) {
    isLossy = isLossy || bytes.substr(at, size).find_first_not_of('\0') != std::string_view::npos;
}

void PrmBytes::CheckTexts() {
    for (const Text& text : texts) {
        SetEntry(text.entry);
        if (OverlapsBlock(text.start, text.end))
            Error(text.linkAt, "the text at " + Hex(text.start) + " overlaps a block");
    }
}
