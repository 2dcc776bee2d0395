// Binary to YAML and back gives the same bytes: for the model that is shipped and for texts that YAML would
// misread.
#include "engine_support.h"

#include "common/files.h"
#include "common/text.h"
#include "paramdata/feature_switches.h"
#include "prmc/yaml_writer.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using Messages = std::vector<std::string>;

std::string DumpOf(const std::string& bytes) {
    Messages messages;
    std::string yaml = WriteYaml(FromPrm(bytes, messages));
    EXPECT_EQ(messages, Messages{});
    return yaml;
}

TEST(RoundTrip, ShippedModel) {
    const std::string built = Build(ReadFile(MODEL_FILE));
    EXPECT_TRUE(Build(DumpOf(built)) == built);
}

TEST(RoundTrip, DumpIsMadeForPeople) {
    EXPECT_EQ(DumpOf(Build(kSmallModel)), R"(Copies: {min: 1, max: 999, default: 5}

OpInTrayUnit:
  default: B
  items:
    - {key: A, name: "é"}
    - {key: B, name: ""}

Country: {value: 7}

DevInfo:
  PDLType: PCL6 PS3

MediaColor:
  default: W
  items:
    - {key: W, name: White, value: 3, text: T}
)");
}

TEST(RoundTrip, TextsThatYamlWouldMisread) {
    // clang-format off
    const char* const names[] = {
        "null", "~", "a: b", "a #b", "- a", "[a]", "{a}", "'a'", "\\\"a\\\"", "a\\\\b", " a ", "a,b", "&a",
        "*a", "!a", "|", ">", "%a", "@a", "?", "\\ta\\nb", "\\x1B%-12345X", "\\u00E9\\u0085\\u2028",
        "\\U0001D11E", "\\uFEFF", "a  b", "", "010", "yes",
    };
    // clang-format on
    std::string yaml = "MediaTypeList_Tray:\n  items:\n";
    size_t count = 0;
    for (const char* name : names)
        yaml += "    - {key: K" + std::to_string(count++) + ", name: \"" + name + "\"}\n";
    const std::string built = Build(yaml);
    const std::string dumped = DumpOf(built);
    EXPECT_TRUE(Build(dumped) == built) << dumped;

    Messages messages;
    const Model model = FromYaml(dumped, messages);
    EXPECT_EQ(model.entries.at(0).records.at(8).values.at(1).text, "\"a\"");
    EXPECT_EQ(model.entries.at(0).records.at(23).values.at(1).text, "\xF0\x9D\x84\x9E");
}

// A display name counts in UTF-16 characters: one beyond the first plane takes two of the 31.
TEST(RoundTrip, DisplayNamesCountInUtf16) {
    EXPECT_EQ(Utf16FromUtf8("a\xC3\xA9\xE2\x82\xAC\xF0\x9D\x84\x9E"), u"a\u00E9\u20AC\U0001D11E");
    for (const char* bad :
         {"\x80", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF8"})
        EXPECT_EQ(FindBadUtf8(std::string("ab") + bad), 2u) << bad;

    Messages messages;
    std::string name;
    for (int i = 0; i < 16; ++i)
        name += "\xF0\x9D\x84\x9E";
    FromYaml("MediaTypeList_Tray: {items: [{key: K, name: " + name + "}]}", messages);
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_NE(messages[0].find("has 32 characters, at most 31 are shown"), std::string::npos) << messages[0];
}

// The model says something of every entry, of every item that the driver knows, of every feature switch and
// of every device fact.
TEST(ShippedModel, IsComplete) {
    Messages messages;
    const Model model = FromYaml(ReadFile(MODEL_FILE), messages);
    EXPECT_EQ(messages, Messages{});
    for (const EntryRow& row : KnownEntries()) {
        const auto entry = std::find_if(model.entries.begin(), model.entries.end(),
                                        [&](const Entry& candidate) { return candidate.row == &row; });
        if (entry == model.entries.end()) {
            ADD_FAILURE() << row.name << " is missing";
            continue;
        }
        const auto expectRow = [&](const char* name) {
            const std::vector<Pair>& pairs = entry->records.at(0).values.at(0).pairs;
            EXPECT_TRUE(
                std::any_of(pairs.begin(), pairs.end(), [&](const Pair& pair) { return pair.name == name; }))
                << row.name << " has no row " << name;
        };
        for (const FactRow& fact : row.facts)
            expectRow(fact.name);
        EXPECT_TRUE(row.keys.count == 0 || entry->records.size() == row.keys.count) << row.name;
        if (entry->name == "FeatureSetting") {
            for (const FeatureSwitchRow& feature : kFeatureSwitches)
                expectRow(feature.name);
        }
    }
}

} // namespace
