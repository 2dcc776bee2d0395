// `workbench report`: what its page is made of, and what is refused. tests/tools/workbench/report_in_browser.py
// reads the page itself.
#include "tools/workbench/workbench_run.h"
#include "workbench/lib/json_form.h"
#include "workbench/lib/picture.h"
#include "workbench/lib/printer_scene.h"
#include "workbench/report/differences.h"
#include "workbench/report/printer_looks.h"

#include <fstream>
#include <set>

namespace {

Document Parsed(const char* json) {
    return ParseJson(json, "test");
}

Json Compared(Document (*compare)(const Document&, const Document&), const char* here, const char* there) {
    return Json::parse(JsonForm(compare(Parsed(here), Parsed(there))));
}

// All combinations of the options that the public header names for DrawPrinterView are drawn.
void DrawCombinations(const FamilyFiles& family, OptionFeatures& options, size_t feature,
                      std::set<std::string>& drawn) {
    static const std::set<std::string> kDrawn = {"OpBody", "OpInTrayUnit", "OpOutTrayUnit",
                                                 "OpHDD",  "OpMailBinKit", "OpSaddleKit"};
    if (feature == options.settings.size()) {
        const Canvas canvas(kSceneSize);
        DrawScene(family, {options, true, "", {}}, canvas.context, kSceneSize);
        drawn.insert(EncodePng(canvas));
        return;
    }
    const FeatureRecord& record = options.features[feature];
    const bool isDrawn = kDrawn.count(KeyOf(record)) != 0;
    for (size_t item = 0; item < (isDrawn ? Listed(record.items).count : 1); ++item) {
        options.settings[feature] = isDrawn ? static_cast<FeatureSettings>(item) : options.settings[feature];
        DrawCombinations(family, options, feature + 1, drawn);
    }
}

TEST(WorkbenchReport, EveryPictureThatDiffersIsFoundOnce) {
    const FamilyFiles family = OpenFamilyFiles({});
    std::set<std::string> drawn;
    OptionFeatures options = ReadOptionFeatures(family);
    DrawCombinations(family, options, 0, drawn);
    const Json looks = Json::parse(JsonForm(PrinterLooks(family)));
    std::set<std::string> found;
    for (const Json& look : looks["looks"])
        EXPECT_TRUE(found.insert(look["picture"]).second) << look["id"];
    EXPECT_EQ(found.size(), drawn.size());
    EXPECT_EQ(looks["complete"], true);
    EXPECT_EQ(looks["looks"][2]["id"], "OpOutTrayUnit=OpOutTrayUnit1") << "not by the fewest changes";
    // Without a unit neither its tray nor outputs are offered. Trays are numbers 1 to 5 and, of the unit, 6.
    EXPECT_EQ(Pick(looks["looks"][0]["marks"], "mark"), Json({1, 2, 3, 4, 7}));
    EXPECT_EQ(Pick(looks["looks"][1]["marks"], "mark"), Json({1, 2, 3, 4, 6, 7}));
}

TEST(WorkbenchReport, ContentsAreThoseOfTheCommands) {
    const Folder folder(L"workbench_report");
    const auto contents = (folder.path / "contents.json").wstring();
    RunForJson(L"report --contents \"" + contents + L"\"");
    const Json report = Json::parse(Contents(contents));
    for (const auto& [command, group] : {std::pair(L"describe", "Features and lists"),
                                         {L"defaults", "Default settings"},
                                         {L"texts", "Texts and colours"}}) {
        Json shown = RunForJson(command);
        shown.erase("files");
        EXPECT_EQ(report["groups"][group], shown) << group;
    }
    // Each tray that is added is a paper source more; a finisher staples.
    const Json& changes = report["groups"]["Capabilities"]["changesByOneOption"];
    EXPECT_EQ(Pick(changes, "choice"),
              Json({"Finisher: Finisher QB-220", "Finisher: Finisher QD-440", "Finisher: Job separator",
                    "Finisher: Output rack", "Tray 2: Not installed", "Tray 3: Installed", "Tray 4: Installed",
                    "Tray 5: Installed", "Large-capacity tray: Installed"}));
    EXPECT_EQ(changes[5]["paperSources"], "Auto, Tray 1, Tray 2, Tray 3, Manual feed");
    EXPECT_EQ(report["groups"]["SNMP questions"]["optionQuestions"][8],
              Json::parse(R"({"option": "OpHDD", "answer": "EnaOpHDD", "object": ".1.3.6.1.2.1.25.2.3.1.5.2",
                              "comparison": "exists", "expected": ""})"));
}

TEST(WorkbenchReport, RowsAreComparedByTheirFirstText) {
    const char* here = R"({"groups": {"G": {
        "T": [{"n": 1, "key": "a", "v": 1}, {"n": 2, "key": "b", "v": 2}, {"n": 3, "key": "b", "v": 3},
              {"n": 4, "key": "new", "v": [1, 2]}], "P": {"x": 1}, "N": null}}})";
    const char* there = R"({"groups": {"G": {
        "T": [{"n": 2, "key": "b", "v": 2}, {"n": 1, "key": "a", "v": 1}, {"n": 3, "key": "b", "v": 4},
              {"n": 5, "key": "old", "v": 0}], "P": {"x": 1}, "N": [{"key": "k"}]}}})";
    const char* expected = R"rows([
        {"name": "G: T", "reordered": true, "rows": [
            {"row": "b (2)", "change": "differs", "n": null, "v": {"here": 3, "there": 4}},
            {"row": "new", "change": "only here", "n": 4, "v": [1, 2]},
            {"row": "old", "change": "only there", "n": 5, "v": 0}]},
        {"name": "G: N", "reordered": false, "rows": [{"row": "k", "change": "only there"}]}])rows";
    EXPECT_EQ(Compared(TableDifferences, here, there), Json::parse(expected));
    EXPECT_EQ(Compared(TableDifferences, here, here), Json::array());
}

// A paper source that only one model has does not make every picture differ.
TEST(WorkbenchReport, PicturesAreComparedByOptionsAndMarks) {
    const char* here = R"({"marks": [{"source": "T1", "name": "One"}, {"source": "T2", "name": "Two"}], "looks": [
        {"id": "", "picture": "p", "marks": [{"mark": 0, "overlay": "o"}, {"mark": 1, "overlay": "q"}]},
        {"id": "A", "picture": "p", "marks": []},
        {"id": "B", "picture": "p", "marks": [{"mark": 1, "overlay": "q"}]}]})";
    const char* there =
        R"({"marks": [{"source": "T2", "name": "Zwei"}], "looks": [{"id": "", "picture": "p", "marks": [{"mark": 0, "overlay": "q"}]},
        {"id": "A", "picture": "other", "marks": []}, {"id": "B", "picture": "p", "marks": []}]})";
    EXPECT_EQ(Pick(Pick(Compared(LookDifferences, here, there)["pairs"], "here"), "id"), Json({"A", "B"}));
}

TEST(WorkbenchReport, UnusableInputIsRefused) {
    const Folder folder(L"workbench_report", {"workbench.exe", "TELMAR_D.DLL", "TELMAR_D.PRM"});
    const std::wstring out = L"report --out \"" + folder.path.wstring() + L"\"";
    const auto write = [&](const char* name, const char* text) {
        std::ofstream(folder.path / name, std::ios::binary) << text;
        return L" \"" + (folder.path / name).wstring() + L"\"";
    };
    ExpectFailure(L"report", 2, "--out DIR, --contents FILE");
    ExpectFailure(out + L" --against-dialogs .", 2, "--against");
    ExpectFailure(L"report --contents c.json --against .", 2, "--against requires --out");
    ExpectFailure(out + L" --against nowhere", 1, "nowhere.*TELMAR_D.DLL: the module cannot be loaded");
    ExpectFailure(out + L" --findings" + write("f.txt", "{}"), 1, "f.txt: not a list of findings");
    Json row = Json::parse(R"({"dialog": 128, "kind": "colours", "opens": true, "title": "T", "dpi": 96, "width": 8,
                               "height": 4, "file": "gone.png"})");
    const auto expectRefused = [&](const char* message) {
        write("dialogs-96.json", Json::array({row}).dump().c_str());
        ExpectFailure(out + L" --dialogs \"" + folder.path.wstring() + L"\"", 1, message);
    };
    expectRefused("gone.png: cannot be read");
    row["dpi"] = 0; // a divisor
    expectRefused("dialogs-96.json: not a list of 'workbench dialogs'");
    ExpectFailure(out + L" --dialogs nowhere", 1, "nowhere: cannot be read");
    EXPECT_FALSE(fs::exists(folder.path / "report.html"));
}

} // namespace
