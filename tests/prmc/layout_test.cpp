// Where everything lies in a binary file: the small model's bytes, worked out by hand from the file's layout.
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

struct Piece {
    uint32_t at;
    const char* what;
    std::string bytes;
};

TEST(Layout, SmallModelByteByByte) {
    // clang-format off
    const Piece pieces[] = {
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
    for (const Piece& piece : pieces) {
        EXPECT_EQ(at, piece.at) << piece.what;
        EXPECT_EQ(built.substr(at, piece.bytes.size()), piece.bytes) << piece.what;
        at += piece.bytes.size();
    }
    EXPECT_EQ(built.size(), at);
}

// Where the first record of a file's first entry lies: behind the header, the entry and one item offset.
constexpr uint32_t kRecord = 8 + 52 + 12 + 4;

// Fields of the larger records, by the offset that their readers use.
TEST(Layout, PaperRecord) {
    const std::string built = Build(R"(
PaperSize:
  default: P
  items:
    - {key: P, name: n, secondName: s, value: 9, width: 2100, length: 2970, further: [31, 32],
       set2: [128, 129], margins: [1, 2, 3, 4], set5: [272, 0, 0, 275], text: paper, values: [440, 444],
       shortName: short, longValues: [480, 484, 488], longText: long}
)");
    const auto expectWord = [&](size_t offset, uint32_t word) {
        EXPECT_EQ(built.substr(kRecord + offset, 4), Words({word})) << "at " << offset;
    };
    // clang-format off
    const uint32_t words[][2] = {{16, 9},    {24, 2100},  {28, 2970}, {32, 31},   {36, 32},   {40, 0},
                                 {44, 0},    {124, 1},    {128, 128}, {132, 129}, {136, 1},   {148, 4},
                                 {152, 0},   {272, 272},  {284, 275}, {288, 1},   {292, 0},   {296, 1},
                                 {440, 440}, {444, 444},  {480, 480}, {484, 484}, {488, 488}};
    // clang-format on
    for (const auto& [offset, word] : words)
        expectWord(offset, word);
    expectWord(0, kRecord + 620); // key: "P" and its end
    expectWord(8, kRecord + 622); // display names: "n", then "s"
    expectWord(308, kRecord + 626);
    EXPECT_EQ(built.substr(kRecord + 312, 128), Text("paper", 128));
    EXPECT_EQ(built.substr(kRecord + 448, 32), Text("short", 32));
    EXPECT_EQ(built.substr(kRecord + 492, 128), Text("long", 128));
}

struct RecordCase {
    const char* yaml;
    size_t offset; // from the first record
    std::string bytes;
};

TEST(Layout, OtherRecords) {
    // clang-format off
    const RecordCase cases[] = {
        {"InTray: {default: K, items: [{key: K, name: n, value: 258, enabled: 1, text: T}]}", 12,
         Words({258, 0, 0, 1}) + Text("T", 128)},
        {"Collate: {default: K, items: [{key: K, name: n, value: 1, extra: 70000, text: a, secondText: b}]}",
         12, Words({1, 0, 0, 70000}) + Text("a", 64) + Text("b", 64)},
        {"TabPaperPaperSize: {items: [{key: K, name: n, value: 9, values: [1, 2, 3]}]}",
         12, Words({9, 1, 2, 3})},
        {"Resolution: {default: K, items: [{key: K, name: n, values: [600, 601, 8]}]}", 12,
         Words({0, 0, 600, 601, 8})},
        {"OutPaperSize: {default: K, items: [{key: K, name: n, secondName: s, value: 357, width: 21, "
         "length: 29, values: [1, 2]}]}",
         312, Words({1, 2})},
        {"OutPaperSize: {default: K, items: [{key: K, name: n, secondName: s, value: 357, width: 21, "
         "length: 29}]}",
         12, Words({0, 357, 0, 21, 29})},
        {"PaperOption1: {default: K, items: [{key: K, name: n, value: 200}]}", 12, Words({200, 0, 0, 0})},
        {"Watermark: {default: K, items: [{key: K, name: n, text: t, font: f, values: [48, 52], "
         "color: [1, 2, 255], value2: 60, block: [64, 68], value3: 72}]}",
         48, Words({48, 52, 0xFF0201, 60, 64, 68, 72, 0})},
        {"Watermark: {default: K, items: [{key: K, name: n, text: t, font: f}]}", 0,
         Words({kRecord + 80, 0, 0, 0, 0, kRecord + 82, 0, 0, kRecord + 86, 0, 0, kRecord + 90, 0})},
        {"Text_Destination: {default: Text_DestAuto, items: [{key: Text_DestAuto}]}", 0,
         Words({kRecord + 16, 0, 0, 0}) + "Text_DestAuto"},
        {"Text_Destination: {default: Text_DestAuto, items: [{key: Text_DestAuto, name: \"\"}]}", 0,
         Words({kRecord + 16, 0, kRecord + 30, 0})},
        {"ImgShiftMFP_BackV: {min: -832, max: 832, default: -1}", 32, Words({0xFFFFFCC0, 832, 0xFFFFFFFF})},
        {"MachineInfo: {items: [{name: M, details: {Engine: 35 ppm}}]}", 0,
         Text("M", 16) + Words({1, kRecord + 24}) + Text("Engine", 16) + Text("35 ppm", 16)},
    };
    // clang-format on
    for (const RecordCase& record : cases)
        EXPECT_EQ(Build(record.yaml).substr(kRecord + record.offset, record.bytes.size()), record.bytes)
            << record.yaml;
}

} // namespace
