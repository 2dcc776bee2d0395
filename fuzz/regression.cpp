// Runs a fuzz target over given files, whole and cut; over small ones also with every 32-bit field and every byte
// replaced by awkward values. The inputs are always the same, so this is a plain test. A failing input ends the
// program.
#include "require.h"

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

size_t RunCuts(const Bytes& bytes) {
    const size_t stride = 1 + bytes.size() / kMaxCuts;
    size_t runs = 0;
    for (size_t length = 0; length < bytes.size(); length += stride, ++runs)
        Run(Bytes(bytes.data(), bytes.data() + length));
    return runs;
}

size_t RunReplacedFields(Bytes bytes) {
    const auto size = static_cast<uint32_t>(bytes.size());
    size_t runs = 0;
    for (uint32_t offset = 0; offset + sizeof(uint32_t) <= size; offset += sizeof(uint32_t)) {
        uint32_t saved;
        memcpy(&saved, &bytes[offset], sizeof(saved));
        for (const uint32_t value : {0u, 1u, offset, size - 1, size, size / 4, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFCu,
                                     0xFFFFFFFFu, saved + 1, saved - 1}) {
            memcpy(&bytes[offset], &value, sizeof(value));
            Run(bytes);
            ++runs;
        }
        memcpy(&bytes[offset], &saved, sizeof(saved));
    }
    return runs;
}

// Lengths, tags and characters of a message are single bytes.
size_t RunReplacedOctets(Bytes bytes) {
    size_t runs = 0;
    for (uint8_t& octet : bytes) {
        const uint8_t saved = octet;
        for (unsigned value = 0; value < 256; ++value, ++runs) {
            octet = static_cast<uint8_t>(value);
            Run(bytes);
        }
        octet = saved;
    }
    return runs;
}

// Overwrites each terminator and the bytes after it: texts that overrun a key, a name, a text, the longest read.
size_t RunLongTexts(const Bytes& bytes) {
    size_t runs = 0;
    for (size_t end = 1; end < bytes.size(); ++end)
        for (const size_t length : {size_t{40}, size_t{130}, size_t{320}, size_t{700}}) {
            if (bytes[end] != 0 || bytes[end - 1] == 0 || end + length > bytes.size())
                break;
            Bytes overrun(bytes);
            memset(&overrun[end], 'A', length);
            Run(overrun);
            ++runs;
        }
    return runs;
}

} // namespace

int main(int count, char** paths) {
    for (int i = 1; i < count; ++i) {
        std::ifstream stream(paths[i], std::ios::binary);
        const Bytes bytes((std::istreambuf_iterator<char>(stream)), {});
        if (!stream) {
            fprintf(stderr, "%s: can't be read\n", paths[i]);
            return 1;
        }
        printf("%s: ", paths[i]);
        fflush(stdout); // a failure then shows which file it came from
        Run(bytes);
        const size_t cuts = RunCuts(bytes);
        const size_t replaced = bytes.size() <= kSmall ? RunReplacedFields(bytes) : 0;
        const size_t octets = bytes.size() <= kMessage ? RunReplacedOctets(bytes) : 0;
        const size_t overrun = bytes.size() <= kSmall ? RunLongTexts(bytes) : 0;
        printf("%zu bytes, %zu cuts, %zu replaced fields, %zu replaced octets, %zu long texts\n", bytes.size(), cuts,
               replaced, octets, overrun);
    }
    return count > 1 ? 0 : 1;
}
