// The bytes of a binary file as its parser takes them: every block is claimed before it is read. It must lie
// inside the file and on no other block, so no byte is read as two things and no loop can run for ever.
// Offsets are 64-bit here.
#ifndef PRMC_PRM_BYTES_H
#define PRMC_PRM_BYTES_H

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

    // Findings from here on are about this entry; empty: about the file.
    void SetEntry(const std::string& name);
    void Fault(uint64_t at, const std::string& message);

    uint64_t Size() const { return bytes.size(); }

    // A number of up to four bytes inside a claimed block.
    uint32_t Read(uint64_t at, size_t width) const;
    uint32_t Read32(uint64_t at) const { return Read(at, 4); }

    // Takes a block for one purpose. `linkAt` is where its offset stands, for the message. False, with a
    // fault, when it can't be there.
    bool Claim(uint64_t start, uint64_t size, uint64_t linkAt, const std::string& what);

    // Text of a fixed field inside a claimed block.
    std::string ReadField(uint64_t at, size_t size);

    // Text that the offset at `linkAt` leads to; none, with a fault, when there is none.
    std::optional<std::string> ReadKey(uint64_t linkAt);
    std::optional<std::string> ReadName(uint64_t linkAt);

    // The model has no place for these bytes: they are lost unless they are 0.
    void NoteLoss(uint64_t at, uint64_t size);
    bool HasLoss() const { return isLossy; } // since SetEntry

    // Texts may share bytes with one another, but not with blocks. Call it when all blocks are claimed.
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
