// Runs a fuzz target over given files, whole and cut; over small ones also with every byte and, unless they are text,
// every 32-bit field replaced by awkward values. The inputs are always the same, so this is a plain test. A failing
// input ends the program.
#include "require.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <vector>

namespace {

using Bytes = std::vector<uint8_t>;

constexpr size_t kSmall = 8192;   // bytes of the largest file whose fields are all replaced
constexpr size_t kMessage = 256;  // of the largest whose octets are
constexpr size_t kMaxCuts = 1024; // of one file

void Run(const Bytes& bytes) {
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
}

void RunCuts(const Bytes& bytes) {
    for (size_t length = 0; length < bytes.size(); length += 1 + bytes.size() / kMaxCuts)
        Run(Bytes(bytes.data(), bytes.data() + length));
}

void RunReplacedFields(const Bytes& bytes) {
    const auto size = static_cast<uint32_t>(bytes.size());
    Bytes changed(bytes);
    for (uint32_t offset = 0; offset + sizeof(uint32_t) <= size; offset += sizeof(uint32_t)) {
        uint32_t saved;
        memcpy(&saved, &bytes[offset], sizeof(saved));
        for (const uint32_t value : {0u, 1u, offset, size - 1, size, size / 4, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFCu,
                                     0xFFFFFFFFu, saved + 1, saved - 1}) {
            memcpy(&changed[offset], &value, sizeof(value));
            Run(changed);
        }
        memcpy(&changed[offset], &saved, sizeof(saved));
    }
}

// Lengths, tags and characters of a message are single bytes.
void RunReplacedOctets(const Bytes& bytes) {
    Bytes changed(bytes);
    for (size_t i = 0; i < bytes.size(); ++i) {
        for (unsigned value = 0; value < 256; ++value) {
            changed[i] = static_cast<uint8_t>(value);
            Run(changed);
        }
        changed[i] = bytes[i];
    }
}

// Overwrites each terminator and the bytes after it: texts that overrun a key, a name, a text, the longest read.
void RunLongTexts(const Bytes& bytes) {
    for (size_t end = 1; end < bytes.size(); ++end)
        for (const size_t length : {size_t{40}, size_t{127}, size_t{128}, size_t{129}, size_t{320}, size_t{700}}) {
            if (bytes[end] != 0 || bytes[end - 1] == 0 || end + length > bytes.size())
                break;
            Bytes overrun(bytes);
            memset(&overrun[end], 'A', length);
            Run(overrun);
        }
}

} // namespace

int main(int count, char** paths) {
    for (int i = 1; i < count; ++i) {
        std::ifstream stream(paths[i], std::ios::binary);
        const Bytes bytes((std::istreambuf_iterator<char>(stream)), {});
        printf("%s: %zu bytes\n", paths[i], bytes.size());
        fflush(stdout); // a failure then shows which file it came from
        if (!stream)
            return 1;
        Run(bytes);
        RunCuts(bytes);
        const bool isText = std::find(bytes.begin(), bytes.end(), 0) == bytes.end();
        if (bytes.size() <= kSmall && !isText) {
            RunReplacedFields(bytes);
            RunLongTexts(bytes);
        }
        if (bytes.size() <= kMessage)
            RunReplacedOctets(bytes);
    }
    return count > 1 ? 0 : 1;
}
