// Models that build on another: what is taken over, changed, added and removed, and where errors are reported.
#include "engine_support.h"

#include "common/files.h"
#include "prmc/checks/warnings.h"
#include "prmc/diff.h"
#include "prmc/forms/yaml_writer.h"
#include "prmc/model_file.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <regex>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

const char* const kBase = R"(Copies: {min: 1, max: 999, default: 5}
Country: {value: 7}
DevInfo: {PrintRate: 35, Staple: "TRUE"}
MediaColor:
  default: W
  items:
    - {key: W, name: White, value: 3, text: T}
    - {key: Y, name: Yellow, value: 4}
)";

struct Base : testing::Test {
    Base() {
        fs::create_directory(folder);
        WriteFileWhole(Path("base.yaml"), kBase);
    }
    ~Base() override { fs::remove_all(folder); }

    std::string Path(const std::string& name) const { return (folder / name).string(); }

    // The model that the text describes, and the findings as "FILE:PLACE: MESSAGE", one a line.
    std::pair<std::string, std::string> Read(const std::string& text) const {
        WriteFileWhole(Path("model.yaml"), text);
        const ModelFile read = ReadModelFile(Path("model.yaml"));
        std::string findings;
        for (const Finding& finding : read.findings.list)
            findings += (findings.empty() ? "" : "\n") + fs::path(read.files[finding.place.file]).filename().string()
                        + ":" + FindingText(finding);
        return {read.findings.HasErrors() ? "" : WriteYaml(read.model), findings};
    }

    const fs::path folder = fs::path(testing::TempDir()) / ("base_test_" + std::to_string(getpid()));
};

TEST_F(Base, WhatIsSaidIsReadOverTheBase) {
    const auto [model, findings] = Read(R"(base: base.yaml
copies: {max: 99}
Country:
DevInfo: {staple: "FALSE", PrintRateUnit: PPM, PrintRate: }
MediaColor:
  default: b
  change:
    w: {name: Natural}
    Y:
    B: {name: Blue, value: 9}
MediaPrePunched: {default: N, items: [{key: N, name: No, value: 0}]}
)");
    EXPECT_EQ(findings, "");
    const auto [whole, ofWhole] = Read(R"(Copies: {min: 1, max: 99, default: 5}
DevInfo: {staple: "FALSE", PrintRateUnit: PPM}
MediaColor:
  default: B
  items:
    - {key: W, name: Natural, value: 3, text: T}
    - {key: B, name: Blue, value: 9}
MediaPrePunched: {default: N, items: [{key: N, name: No, value: 0}]}
)");
    EXPECT_EQ(ofWhole, "");
    EXPECT_EQ(model, whole);
}

TEST_F(Base, ItemsReplaceTheBaseAndKeepItsDefault) {
    const auto [model, findings] =
        Read("base: base.yaml\nMediaColor: {items: [{key: G, name: Grey, value: 1}, {key: W, name: N, value: 2}]}");
    EXPECT_EQ(findings, "");
    EXPECT_NE(model.find("  default: W\n  items:\n    - {key: G,"), std::string::npos) << model;
    EXPECT_EQ(model.find("Yellow"), std::string::npos) << model;
}

TEST_F(Base, BasesMayBuildOnBases) {
    WriteFileWhole(Path("middle.yaml"),
                   "base: base.yaml\nCountry: {value: 9}\nMediaColor: {default: Y, change: {W: }}");
    const auto [model, findings] = Read("base: middle.yaml\nCopies: {default: 1}");
    EXPECT_EQ(findings, "");
    EXPECT_EQ(model, Read("Copies: {min: 1, max: 999, default: 1}\nCountry: {value: 9}\n"
                          "DevInfo: {PrintRate: 35, Staple: \"TRUE\"}\n"
                          "MediaColor: {default: Y, items: [{key: Y, name: Yellow, value: 4}]}")
                         .first);
}

TEST_F(Base, FindingsNameTheFileAndLineThatSaidIt) {
    WriteFileWhole(Path("bad.yaml"),
                   "Country: {value: 7}\nCopies: {min: 1, max: 9, default: 12}\nMediaColor: {itms: []}");
    WriteFileWhole(Path("loop.yaml"), "base: model.yaml");
    const std::pair<const char*, const char*> models[] = {
        {"base: none.yaml\nCopies: {max: 99}\nMediaColor: {change: {W: }}",
         "model.yaml:1:7: base: cannot read 'FOLDER/none.yaml': No such file or directory"},
        {"base: none.txt",
         "model.yaml:1:7: base: 'FOLDER/none.txt' has an unknown file type: its name must end in .yaml or .PRM"},
        {"base:\nCopies: {max: 99}", "model.yaml:1:1: 'base' must be the name of a file"},
        {"base: base.yaml\nDevInfo:\n  Trim:\n\nWatermark:\n",
         "model.yaml:3:3: the base has no row 'Trim' to remove\n"
         "model.yaml:5:1: 'Watermark' has no contents, and no base has it"},
        {"base: [base.yaml]", "model.yaml:1:1: 'base' must be the name of a file"},
        {"base: loop.yaml", "loop.yaml:1:7: a model can't build on itself: 'model.yaml' builds on this file"},
        {"base: bad.yaml\nCountry: {value: x}",
         "model.yaml:2:18: 'value' must be a whole number such as 42, -42 or 0x2A, not 'x'\n"
         "bad.yaml:2:35: default 12 is not within 1 to 9\n"
         "bad.yaml:3:14: a list has no field 'itms'; did you mean 'items'?"},
        {"base: bad.yaml\nCopies: {max: 20, min: 15}\nMediaColor:",
         "bad.yaml:2:35: default 12 is not within 15 to 20\n"
         "bad.yaml:3:14: a list has no field 'itms'; did you mean 'items'?"},
        {"base: base.yaml\nCopies: {min: 1000}", "model.yaml:2:15: min 1000 is above max 999"},
        {"base: base.yaml\nCountry: {value: 1}\ncountry: {value: 2}",
         "model.yaml:3:1: entry 'country' occurs twice: remove one"},
        {"base: base.yaml\nMediaColor: {change: {w: }}",
         "model.yaml:2:1: default 'W' is not the key of any item; did you mean 'Y'?"},
        {"base: base.yaml\nMediaColor: {change: {W: Natural}}",
         "model.yaml:2:26: expected the fields that change: {FIELD: VALUE, ...}"},
        {"base: base.yaml\nMediaColor: {change: {X: }}",
         "model.yaml:2:23: the base's 'MediaColor' has no item 'X' to remove; did you mean 'W'?"},
        {"base: base.yaml\nMediaColor: {change: {X: {name: X}}}",
         "model.yaml:2:26: 'value' is missing: an item of 'MediaColor' needs it"},
        {"base: base.yaml\nMediaColor: {change: {W: {key: Y}}}",
         "model.yaml:2:32: 'key' is before the colon already, and stays 'W': remove it here"},
        {"base: base.yaml\nMediaColor: {items: [], change: {}}",
         "model.yaml:2:1: 'items' replaces all items of the base: put the changes in it, too"},
        {"MediaTypeList_Tray: {change: {W: }}",
         "model.yaml:1:22: there is nothing to change: no base has 'MediaTypeList_Tray'"},
    };
    for (const auto& [text, expected] : models) {
        const std::string findings = Read(text).second;
        EXPECT_EQ(std::regex_replace(findings, std::regex(folder.string()), "FOLDER"), expected) << text;
    }
}

TEST_F(Base, WarningsOfWhatIsRemovedNameTheLineThatRemovesIt) {
    WriteFileWhole(Path("base.yaml"), "FeatureSetting: {MediaColor: Enable}\n" + std::string(kBase));
    WriteFileWhole(Path("middle.yaml"), "base: base.yaml\nMediaColor:");
    WriteFileWhole(Path("model.yaml"), "base: middle.yaml");
    ModelFile read = ReadModelFile(Path("model.yaml"));
    FindWarnings(read.model, read.findings);
    ASSERT_EQ(read.findings.list.size(), 1u);
    EXPECT_EQ(FindingText(read.findings.list[0]), "2:1: warning: feature 'MediaColor' is on, but the list "
                                                  "'MediaColor' is missing or empty: there is nothing to choose from");
    EXPECT_EQ(fs::path(read.files[read.findings.list[0].place.file]).filename(), "middle.yaml");
}

TEST(GermanModel, DiffersInTextsForPeopleOnly) {
    const ModelFile english = ReadModelFile(MODEL_FILE);
    const ModelFile german = ReadModelFile(fs::path(MODEL_FILE).replace_extension(".de.yaml").string());
    EXPECT_TRUE(german.findings.list.empty());
    const std::regex text("[^:]*/(name|secondName): .*|Watermark/[^:]*/text: .*");
    for (const std::string& line : DiffModels(english.model, german.model))
        EXPECT_TRUE(std::regex_match(line, text)) << line;
}

} // namespace
