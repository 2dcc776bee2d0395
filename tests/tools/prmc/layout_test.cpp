// The layout of binary files. The expected bytes are computed by hand.
#include "engine_support.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace {

std::string Text(const char* text, size_t size) {
    std::string bytes = text;
    bytes.resize(size);
    return bytes;
}

std::string EntryBlock(const char* name, uint32_t firstItem, uint32_t next) {
    return Text(name, 32) + Words({firstItem, 0, 0, 0, next});
}

TEST(Layout, EveryByteOfTheSmallModel) {
    // clang-format off
    const std::tuple<uint32_t, const char*, std::string> pieces[] = {
        {0x000, "header: chain end", Words({0, 0x2B0})},
        {0x008, "Copies", EntryBlock("Copies", 0, 0x78)},
        {0x03C, "info: no items", Words({0, 0, 0})},
        {0x048, "numeric block: 36 the lower bound, 40 the upper, 44 the default",
         Words({0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 999, 5})},

        {0x078, "OpInTrayUnit: item chain", EntryBlock("OpInTrayUnit", 0xC0, 0xEC)},
        {0x0AC, "info: the second item is the default", Words({2, 0xD0, 0xB8})},
        {0x0B8, "item offsets", Words({0xC0, 0xD0})},
        {0x0C0, "item A", Words({0xE0, 0, 0xE4, 0xD0})},
        {0x0D0, "item B: end of the chain", Words({0xE2, 0, 0xE8, 0})},
        {0x0E0, "keys", std::string("A\0B\0", 4)},
        {0x0E4, "display names: U+00E9, empty, filled up to 4 bytes", std::string("\xE9\0\0\0\0\0\0\0", 8)},

        {0x0EC, "Country", EntryBlock("Country", 0, 0x138)},
        {0x120, "info", Words({1, 0, 0x12C})},
        {0x12C, "item offset, record", Words({0x130, 7, 0})},

        {0x138, "DevInfo", EntryBlock("DevInfo", 0, 0x1C8)},
        {0x16C, "info", Words({1, 0, 0x178})},
        {0x178, "item offset, table header", Words({0x17C, 1, 0, 0x188})},
        {0x188, "row", Text("PDLType", 32) + Text("PCL6 PS3", 32)},

        {0x1C8, "MediaColor: items are not chained", EntryBlock("MediaColor", 0, 0x2B0)},
        {0x1FC, "info", Words({1, 0x20C, 0x208})},
        {0x208, "item offset", Words({0x20C})},
        {0x20C, "record of 148 bytes", Words({0x2A0, 0, 0x2A2, 3}) + Text("T", 128) + Words({0})},
        {0x2A0, "key", Text("W", 2)},
        {0x2A2, "display name, filled up to 4 bytes", std::string("W\0h\0i\0t\0e\0\0\0\0\0", 14)},
    };
    // clang-format on
    const std::string built = Build(kSmallModel);
    size_t at = 0;
    for (const auto& [wantedAt, what, bytes] : pieces) {
        EXPECT_EQ(at, wantedAt) << what;
        EXPECT_EQ(built.substr(at, bytes.size()), bytes) << what;
        at += bytes.size();
    }
    EXPECT_EQ(built.size(), at);
}

// Offset of the first record of a file's first entry: after the header, the entry and one item offset.
constexpr uint32_t kRecord = 8 + 52 + 12 + 4;

TEST(Layout, FieldsOfEveryRecord) {
    const char* const paper = "PaperSize: {default: P, items: [{key: P, name: n, secondName: s, value: 9, width: 2100, "
                              "length: 2970, further: [31, 32], geometry2: [128, 129], margins: [1, 2, 3, 4], "
                              "geometry5: [272, 0, 0, 275], text: paper, values: [440, 444], shortName: short, "
                              "longValues: [480, 484, 488], longText: long}]}";
    const char* const outputPaper = "OutPaperSize: {default: K, items: [{key: K, name: n, secondName: s, value: 357, "
                                    "width: 21, length: 29, values: [1, 2]}]}";
    // clang-format off
    // Offsets are from the first record.
    const std::tuple<const char*, size_t, std::string> cases[] = {
        {paper, 0, Words({kRecord + 620, 0, kRecord + 622, 0, 9, 0, 2100, 2970, 31, 32, 0, 0})},
        {paper, 124, Words({1, 128, 129, 1, 2, 3, 4, 0})},
        {paper, 272, Words({272, 0, 0, 275, 1, 0, 1, 0, 0, kRecord + 626}) + Text("paper", 128)},
        {paper, 440, Words({440, 444}) + Text("short", 32) + Words({480, 484, 488}) + Text("long", 128)},
        {"InTray: {default: K, items: [{key: K, name: n, value: 258, enabled: 1, text: T}]}",
         12, Words({258, 0, 0, 1}) + Text("T", 128)},
        {"Collate: {default: K, items: [{key: K, name: n, value: 1, extra: 70000, text: a, secondText: b}]}",
         12, Words({1, 0, 0, 70000}) + Text("a", 64) + Text("b", 64)},
        {"TabPaperPaperSize: {items: [{key: K, name: n, value: 9, values: [1, 2, 3]}]}", 12, Words({9, 1, 2, 3})},
        {"Resolution: {default: K, items: [{key: K, name: n, values: [600, 601, 8]}]}", 12, Words({0, 0, 600, 601, 8})},
        {outputPaper, 12, Words({0, 357, 0, 21, 29})},
        {outputPaper, 312, Words({1, 2})},
        {"PaperOption1: {default: K, items: [{key: K, name: n, value: 200}]}", 12, Words({200, 0, 0, 0})},
        {"Watermark: {default: K, items: [{key: K, name: n, text: t, font: f, values: [48, 52], "
         "color: [1, 2, 255], value2: 60, block: [64, 68], value3: 72}]}",
         0, Words({kRecord + 80, 0, 0, 0, 0, kRecord + 82, 0, 0, kRecord + 86, 0, 0, kRecord + 90, 48, 52, 0xFF0201,
                   60, 64, 68, 72, 0})},
        {"Text_Destination: {default: Text_DestAuto, items: [{key: Text_DestAuto}]}",
         0, Words({kRecord + 16, 0, 0, 0}) + "Text_DestAuto"},
        {"ImgShiftMFP_BackV: {min: -832, max: 832, default: -1}", 32, Words({0xFFFFFCC0, 832, 0xFFFFFFFF})},
        {"MachineInfo: {items: [{name: M, details: {Engine: 35 ppm}}]}",
         0, Text("M", 16) + Words({1, kRecord + 24}) + Text("Engine", 16) + Text("35 ppm", 16)},
    };
    // clang-format on
    for (const auto& [yaml, offset, bytes] : cases)
        EXPECT_EQ(Build(yaml).substr(kRecord + offset, bytes.size()), bytes) << yaml << " at " << offset;
}

} // namespace
