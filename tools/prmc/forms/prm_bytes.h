// Bounds-checked access to a binary file. Every block is claimed before it is read: it must be inside the
// file and must not overlap another one, so no byte is read twice and every loop ends. Offsets are 64-bit so
// that sums can't wrap.
#ifndef PRMC_FORMS_PRM_BYTES_H
#define PRMC_FORMS_PRM_BYTES_H

#include "prmc/model.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class PrmBytes {
public:
    PrmBytes(std::string_view file, Findings& where) : bytes(file), findings(where) {}

    // The entry that the following findings are about; empty: the file as a whole.
    void SetEntry(const std::string& name);
    void Error(uint64_t at, const std::string& message);

    uint64_t Size() const { return bytes.size(); }

    // A number of up to four bytes, little-endian, inside a claimed block.
    uint32_t Read(uint64_t at, size_t width) const;
    uint32_t Read32(uint64_t at) const { return Read(at, 4); }

    // Claims a block; false, with an error at `linkAt`, the position of its offset, when it can't be there.
    bool Claim(uint64_t start, uint64_t size, uint64_t linkAt, const std::string& what);

    // The text of a fixed-size field inside a claimed block.
    std::string ReadField(uint64_t at, size_t size);

    // The text at the offset that is stored at `linkAt`; nothing, with an error, when it can't be read.
    std::optional<std::string> ReadKey(uint64_t linkAt);
    std::optional<std::string> ReadName(uint64_t linkAt);

    // The model has no field for these bytes; records a loss unless they are 0.
    void NoteLoss(uint64_t at, uint64_t size);
    bool HasLoss() const { return isLossy; } // since SetEntry

    // Texts may overlap each other, but no block. Call this when all blocks are claimed.
    void CheckTexts();

private:
    struct Text {
        uint64_t start;
        uint64_t end;
        uint64_t linkAt;
        std::string entry;
    };

    bool OverlapsBlock(uint64_t start, uint64_t end) const;
    bool CheckTextOffset(uint64_t linkAt, const char* what);

    std::string_view bytes;
    Findings& findings;
    std::map<uint64_t, uint64_t> blocks; // start to end, disjoint
    std::vector<Text> texts;
    std::string entryName;
    bool isLossy = false;
};

#endif
