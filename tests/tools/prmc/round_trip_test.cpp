// Binary to YAML and back gives the same bytes for whole models. The fuzz target does the same for odd texts.
#include "engine_support.h"

#include "common/files.h"
#include "common/text.h"
#include "paramdata/feature_switches.h"
#include "prmc/forms/yaml_writer.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

std::string DumpOf(const std::string& bytes) {
    Lines messages;
    std::string yaml = WriteYaml(FromPrm(bytes, messages));
    EXPECT_EQ(messages, Lines{});
    return yaml;
}

TEST(RoundTrip, ModelsAreTheSame) {
    EXPECT_EQ(DumpOf(Build(kSmallModel)), kSmallModel);
    const std::string built = Build(ReadFile(MODEL_FILE));
    EXPECT_TRUE(Build(DumpOf(built)) == built);
}

TEST(Utf8, InvalidFormsAreFound) {
    EXPECT_EQ(Utf16FromUtf8("a\xC3\xA9\xE2\x82\xAC\xF0\x9D\x84\x9E"), u"a\u00E9\u20AC\U0001D11E");
    for (const char* bad : {"\x80", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF8"})
        EXPECT_EQ(FindBadUtf8(std::string("ab") + bad), 2u) << bad;
}

// The model has every entry, every item that the driver knows, every feature switch and every device fact.
TEST(ShippedModel, IsComplete) {
    Lines messages;
    const Model model = FromYaml(ReadFile(MODEL_FILE), messages);
    EXPECT_EQ(messages, Lines{});
    for (const EntryRow& row : KnownEntries()) {
        const auto entry = std::find_if(model.entries.begin(), model.entries.end(),
                                        [&](const Entry& candidate) { return candidate.row == &row; });
        ASSERT_NE(entry, model.entries.end()) << row.name;
        EXPECT_TRUE(row.keys.count == 0 || entry->records.size() == row.keys.count) << row.name;
        std::vector<const char*> names;
        for (const FactRow& fact : row.facts)
            names.push_back(fact.name);
        if (entry->name == "FeatureSetting")
            for (const FeatureSwitchRow& feature : kFeatureSwitches)
                names.push_back(feature.name);
        for (const std::string name : names) {
            const std::vector<Pair>& pairs = entry->records.at(0).values.at(0).pairs;
            EXPECT_TRUE(std::any_of(pairs.begin(), pairs.end(), [&](const Pair& pair) { return pair.name == name; }))
                << row.name << " has no row " << name;
        }
    }
}

} // namespace
