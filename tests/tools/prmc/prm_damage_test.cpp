// Damaged binary files: each kind of damage is reported. The offsets are those of the small model's file, see
// layout_test.cpp. That none crashes the parser or the YAML writer is the fuzz target's to show.
#include "engine_support.h"

#include <cstdint>
#include <gtest/gtest.h>

namespace {

// clang-format off
// Offset, bytes, and the start of one of the findings.
const std::tuple<size_t, std::string, const char*> kDamages[] = {
    // Entry chain
    {0x004, Words({0x2B1}),      "the chain end 0x2B1 is outside the file"},
    {0x004, Words({8}),          "the file has no entries"},
    {0x038, Words({8}),          "the entry chain loops back to 0x8"},
    {0x038, Words({0x290}),      "the next entry at 0x290 extends beyond the file"},
    {0x038, Words({0x4C}),       "the next entry at 0x4C overlaps another block"},
    // Items
    {0x0AC, Words({0xFFFFFFFF}), "'OpInTrayUnit': 4294967295 items can't fit in a file of this size"},
    {0x0AC, Words({150}),        "'OpInTrayUnit': the item offset array at 0xB8 extends beyond the file"},
    {0x0B8, Words({0xFFFFFFF0}), "'OpInTrayUnit': item 0 at 0xFFFFFFF0 extends beyond the file"},
    {0x0BC, Words({0xC0}),       "'OpInTrayUnit': item 1 at 0xC0 overlaps another block"},
    {0x0CC, Words({0xC0}),       "'OpInTrayUnit': the item chain leads to 0xC0, item 1 is at 0xD0"},
    {0x098, Words({0}),          "'OpInTrayUnit': the item chain leads to 0x0, item 0 is at 0xC0"},
    {0x120, Words({0}),          "'Country': country must have one record, not 0"},
    {0x16C, Words({2}),          "'DevInfo': name/value table must have one record, not 2"},
    {0x17C, Words({1000}),       "'DevInfo': the block of 1000 rows at 0x188 extends beyond the file"},
    {0x0B0, Words({0xFFFF0000}), "'OpInTrayUnit': the default record at 0xFFFF0000 extends beyond the file"},
    {0x0B0, Words({0}),          "'OpInTrayUnit' needs 'default: KEY', the item that the default settings use"},
    // Texts
    {0x0C0, Words({0}),          "'OpInTrayUnit': the key is missing"},
    {0x0C0, Words({0x2B0}),      "'OpInTrayUnit': the key at 0x2B0 is outside the file"},
    {0x0C0, Words({0x7C}),       "'OpInTrayUnit': the text at 0x7C overlaps a block"},
    {0x0C8, Words({0x2AF}),      "'OpInTrayUnit': the display name at 0x2AF has no terminator"},
    {0x0C8, Words({0xFFFFFFFF}), "'OpInTrayUnit': the display name at 0xFFFFFFFF is outside the file"},
    {0x0E4, std::string("\x00\xD8", 2), "'OpInTrayUnit': the display name at 0xE4 is not valid UTF-16"},
    {0x188, std::string(32, 'x'), "'DevInfo': the text 'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx' has no terminator"},
    // What a model has no field for
    {0x000, Words({1}),          "warning: the header's first word is not 0; it is lost"},
    {0x0A0, Words({1}),          "warning: 'OpInTrayUnit': unused bytes are not 0; they are lost"},
    {0x0C4, Words({1}),          "warning: 'OpInTrayUnit': unused bytes are not 0; they are lost"},
    {0x0DC, Words({1}),          "warning: 'OpInTrayUnit': unused bytes are not 0; they are lost"},
    {0x048, Words({1}),          "warning: 'Copies': unused bytes are not 0; they are lost"},
    {0x1A0, "x",              "warning: 'DevInfo': unused bytes are not 0; they are lost"},
    {0x0EC, "Kountry",        "warning: unknown entry 'Kountry' is skipped"},
};
// clang-format on

TEST(PrmDamage, EveryDamageIsReported) {
    const std::string sound = Build(kSmallModel);
    for (const auto& [at, damage, wanted] : kDamages) {
        Lines messages;
        FromPrm(std::string(sound).replace(at, damage.size(), damage), messages);
        bool found = false;
        for (const std::string& message : messages)
            found |= message.rfind(wanted, 0) == 0;
        EXPECT_TRUE(found) << wanted << "\nis not in " << testing::PrintToString(messages);
    }
}

// The default becomes the item with the separate record's key.
TEST(PrmDamage, SeparateDefaultRecordIsMatchedByKey) {
    std::string bytes = Build(kSmallModel);
    bytes.replace(0x0B0, 4, Words({static_cast<uint32_t>(bytes.size())}));
    bytes += Words({0xE0, 0, 0xE4, 0});
    Lines messages;
    const Model model = FromPrm(bytes, messages);
    EXPECT_EQ(messages, Lines{"warning: 'OpInTrayUnit': the default is a separate record; only its key is kept"});
    EXPECT_EQ(model.entries.at(1).defaultItem, 0u);
    messages.clear();
    FromPrm(bytes.replace(bytes.size() - 16, 4, Words({0xE1})), messages); // behind the key, an empty text
    EXPECT_EQ(messages.front(), "'OpInTrayUnit': the default record's key '' is not the key of any item");
}

TEST(PrmDamage, EveryCutFileHasErrors) {
    const std::string sound = Build(kSmallModel);
    for (size_t size = 0; size < sound.size(); ++size) {
        Lines messages;
        FromPrm(sound.substr(0, size), messages);
        EXPECT_FALSE(messages.empty()) << size;
    }
}

} // namespace
