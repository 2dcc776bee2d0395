// Damaged binary files: each class of damage is found and named, and no damage at all makes the parser or the
// YAML writer fail. Offsets are those of the small model's file, see layout_test.cpp.
#include "engine_support.h"

#include "prmc/diff.h"
#include "prmc/yaml_writer.h"

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>

namespace {

using Messages = std::vector<std::string>;

struct Damage {
    size_t at;
    std::string bytes;
    const char* message; // one of the findings
};

// clang-format off
const Damage kDamages[] = {
    // Entry chain
    {0x004, Words({0x2B1}),      "the chain end 0x2B1 lies outside the file"},
    {0x004, Words({8}),          "the file holds no entries"},
    {0x038, Words({8}),          "the entry chain leads back to 0x8"},
    {0x1F8, Words({0x1C8}),      "the entry chain leads back to 0x1C8"},
    {0x038, Words({0x290}),      "the next entry at 0x290 reaches outside the file"},
    {0x038, Words({0x4C}),       "the next entry at 0x4C overlaps another block"},
    // Items
    {0x0AC, Words({0xFFFFFFFF}), "'OpInTrayUnit': 4294967295 items can't be in a file of this size"},
    {0x0AC, Words({150}),        "'OpInTrayUnit': the item offset array at 0xB8 reaches outside the file"},
    {0x0B4, Words({0x78}),       "'OpInTrayUnit': the item offset array at 0x78 overlaps another block"},
    {0x0B8, Words({0xFFFFFFF0}), "'OpInTrayUnit': item 0 at 0xFFFFFFF0 reaches outside the file"},
    {0x0BC, Words({0xC0}),       "'OpInTrayUnit': item 1 at 0xC0 overlaps another block"},
    {0x0CC, Words({0xC0}),       "'OpInTrayUnit': the item chain leads to 0xC0, item 1 is at 0xD0"},
    {0x098, Words({0}),          "'OpInTrayUnit': the item chain leads to 0x0, item 0 is at 0xC0"},
    {0x120, Words({0}),          "'Country': country has one record, not 0"},
    {0x16C, Words({2}),          "'DevInfo': name/value table has one record, not 2"},
    {0x17C, Words({1000}),       "'DevInfo': the block of 1000 rows at 0x188 reaches outside the file"},
    {0x184, Words({0x17C}),      "'DevInfo': the block of 1 rows at 0x17C overlaps another block"},
    {0x0B0, Words({0xFFFF0000}), "'OpInTrayUnit': the default record at 0xFFFF0000 reaches outside the file"},
    {0x0B0, Words({0}),          "'OpInTrayUnit' needs 'default: KEY': the settings start from it"},
    // Texts
    {0x0C0, Words({0}),          "'OpInTrayUnit': the key is missing"},
    {0x0C0, Words({0x2B0}),      "'OpInTrayUnit': the key at 0x2B0 lies outside the file"},
    {0x0C0, Words({0x7C}),       "'OpInTrayUnit': the text at 0x7C overlaps a block"},
    {0x0C0, Words({0xE2}),       "key 'B' occurs twice: remove one"},
    {0x0C8, Words({0x2AF}),      "'OpInTrayUnit': the display name at 0x2AF has no terminator"},
    {0x0C8, Words({0xFFFFFFFF}), "'OpInTrayUnit': the display name at 0xFFFFFFFF lies outside the file"},
    {0x0E4, std::string("\x00\xD8", 2), "'OpInTrayUnit': the display name at 0xE4 is not well-formed UTF-16"},
    {0x188, std::string(32, 'x'), "'DevInfo': the text 'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx' has no terminator"},
    {0x21C, "\xFF",           "text 'ÿ' has a character other than ASCII: only names can have it"},
    // What a model can't hold
    {0x000, Words({1}),          "note: the header's first word is not 0 and is lost"},
    {0x0A0, Words({1}),          "note: 'OpInTrayUnit': bytes that no reader reads are not 0 and are lost"},
    {0x0C4, Words({1}),          "note: 'OpInTrayUnit': bytes that no reader reads are not 0 and are lost"},
    {0x0DC, Words({1}),          "note: 'OpInTrayUnit': bytes that no reader reads are not 0 and are lost"},
    {0x048, Words({1}),          "note: 'Copies': bytes that no reader reads are not 0 and are lost"},
    {0x1A0, "x",              "note: 'DevInfo': bytes that no reader reads are not 0 and are lost"},
    {0x0EC, "Kountry",        "note: unknown entry 'Kountry' is left out"},
};
// clang-format on

TEST(PrmDamage, EachIsFoundAndNamed) {
    const std::string sound = Build(kSmallModel);
    for (const Damage& damage : kDamages) {
        std::string bytes = sound;
        bytes.replace(damage.at, damage.bytes.size(), damage.bytes);
        Messages messages;
        FromPrm(bytes, messages);
        const std::string wanted = damage.message;
        EXPECT_TRUE(std::any_of(messages.begin(), messages.end(),
                                [&](const std::string& message) { return message.rfind(wanted, 0) == 0; }))
            << wanted << "\nis not among the " << messages.size() << " findings, the first of them "
            << (messages.empty() ? "(none)" : messages.front());
    }
}

// A default that is a record of its own keeps its key; the item with that key is the default.
TEST(PrmDamage, DefaultRecordOfItsOwn) {
    std::string bytes = Build(kSmallModel);
    const size_t record = bytes.size();
    bytes += Words({0xE0, 0, 0xE4, 0});
    bytes.replace(0x0B0, 4, Words({static_cast<uint32_t>(record)}));
    Messages messages;
    const Model model = FromPrm(bytes, messages);
    EXPECT_EQ(messages,
              Messages{"note: 'OpInTrayUnit': the default is a record of its own; only its key is kept"});
    EXPECT_EQ(model.entries.at(1).defaultItem, 0u);
}

// Whatever the bytes are, they are parsed and dumped; and a file without findings is dumped as a model that
// is sound and the same.
void ExpectSurvives(const std::string& bytes) {
    Messages messages;
    const Model model = FromPrm(bytes, messages);
    const std::string yaml = WriteYaml(model);
    if (!messages.empty())
        return;
    const Model again = FromYaml(yaml, messages);
    EXPECT_EQ(messages, Messages{});
    EXPECT_EQ(DiffModels(model, again), Messages{});
}

TEST(PrmDamage, CutFilesAreFaulty) {
    const std::string sound = Build(kSmallModel);
    for (size_t length = 0; length < sound.size(); ++length) {
        Messages messages;
        WriteYaml(FromPrm(sound.substr(0, length), messages));
        EXPECT_FALSE(messages.empty()) << length;
    }
}

TEST(PrmDamage, AnyByteMayChange) {
    const std::string sound = Build(kSmallModel);
    for (size_t at = 0; at < sound.size(); ++at) {
        for (const int change : {0x01, 0x80, 0xFF, static_cast<int>(static_cast<uint8_t>(sound[at]))}) {
            std::string bytes = sound;
            bytes[at] = static_cast<char>(bytes[at] ^ change);
            ExpectSurvives(bytes);
        }
    }
}

} // namespace
