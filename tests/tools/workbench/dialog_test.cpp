// `workbench dialog` as a process, on a screen: what scripts change, what the report shows and what is
// refused. Expected values are those of the model file and of the dialogs' rules.
#include "support/wine.h"
#include "tools/workbench/workbench_run.h"
#include "workbench/lib/json_form.h"
#include "workbench/lib/picture.h"

#include <algorithm>
#include <fstream>
#include <map>

namespace {

constexpr const char* kProfiles = R"({
    "rgbSources": [{"name": "Monitor"}, {"name": "Scanner", "qualifier": "flat", "location": 77}],
    "simulations": [{"name": "Offset", "qualifier": "coated", "location": 5}],
    "destinations": [{"name": "Matt"}, {"name": "Gloss \u00e4", "location": 3}]})";

struct DialogFolder : Folder {
    DialogFolder() : Folder(L"workbench_dialog") { Write("p.json", kProfiles); }
    std::wstring Write(const char* name, const std::string& text) const {
        std::ofstream(path / name, std::ios::binary) << text;
        return L" \"" + (path / name).wstring() + L"\"";
    }
    Json Run(const std::string& script, const std::wstring& options = L"") const {
        return RunForJson(L"dialog 128 --script" + Write("s.txt", script) + L" --profiles" + Write("p.json", kProfiles)
                          + L" " + options);
    }
};

Json ControlRow(const Json& report, int control) {
    const Json ids = Pick(report["controls"], "control");
    return report["controls"][static_cast<size_t>(std::find(ids.begin(), ids.end(), control) - ids.begin())];
}

TEST(WorkbenchDialog, ScriptChangesAreReported) {
    const DialogFolder folder;
    const Json report = folder.Run("# no press is simulated yet\r\nchoose 1627 Black toner only\r\n" // refused
                                   "choose 1354 Exact match  # images\n  choose 1524 #6\nchoose 1627 #2\n"
                                   "choose 1524 None\n" // refused: black toner only for a press
                                   "choose 1509 Scanner (flat)\nchoose 1584 Gloss \u00e4 Memory\nok");
    EXPECT_EQ(report["dialog"]["end"], "OK");
    // OK also writes new records of built-in RGB sources: by default these have a location and no text.
    EXPECT_EQ(Changes(report),
              "image.colorMatch:1:3 simulation:0:128 textRgbSource:1:257 graphicsDestination:0:128 "
              "simulationGray:0:2 simulationProfile.qualifier::coated simulationProfile.name::Offset "
              "textRgbProfile.qualifier::flat textRgbProfile.name::Scanner textRgbProfile.location:5:77 "
              "imageRgbProfile.qualifier::sRGB imageRgbProfile.location:5:0 "
              "graphicsRgbProfile.qualifier::sRGB graphicsRgbProfile.location:5:0 "
              "graphicsDestinationProfile.name::Gloss \u00e4 graphicsDestinationProfile.location:0:3 ");
    std::string hints; // "!" after each line that left a hint
    for (const Json& row : report["actions"])
        hints += row["line"].dump() + (row["hint"].is_null() ? " " : "! ");
    EXPECT_EQ(hints, "2! 3 4 5 6! 7 8 9 ");
    const Json simulation = ControlRow(report, 1524);
    EXPECT_EQ(simulation["label"], "Press to simulate:");
    EXPECT_EQ(simulation["shows"], "Offset (coated) Flash memory");
    EXPECT_EQ(ControlRow(report, 1526)["shows"], "off");
    const Json gloss = Json::parse(R"({"list": 1592, "index": 2, "data": 129, "text": "Gloss \u00e4 Memory"})");
    EXPECT_EQ(std::count(report["entries"].begin(), report["entries"].end(), gloss), 1) << report["entries"];
}

TEST(WorkbenchDialog, DefaultsResetAndCancelDiscards) {
    const DialogFolder folder;
    const Json report = folder.Run("choose 1330 Detail\nchoose 1354 Vivid\ndefaults\nrefresh\nchoose 1330 Detail\n"
                                   "key escape");
    EXPECT_EQ(report["dialog"]["end"], "Cancel");
    EXPECT_EQ(report["changes"], Json::array());
    EXPECT_EQ(ControlRow(report, 1354)["shows"], "Photographic");
}

// Starts with a record of zeros, which are valid choices. Keys go to the focused control.
TEST(WorkbenchDialog, KeysAndSettingsFileAreUsed) {
    const DialogFolder folder;
    const Json report = folder.Run("\xEF\xBB\xBF" // a byte order mark
                                   "choose 1524 DIC\nchoose 1627 #0\nkey tab\nkey space\nkey enter\n",
                                   L"--settings" + folder.Write("record", std::string(7808, '\0')) + L" --out \""
                                       + folder.path.wstring() + L"/end.png\"");
    EXPECT_EQ(report["dialog"]["endCode"], 1);
    EXPECT_EQ(report["pictures"].size(), 1) << "of a dialog that a key closes";
    EXPECT_NE(ReadPicture((folder.path / "end.png").u8string()), nullptr);
    EXPECT_EQ(Changes(report), "simulation:0:5 matchPaperColor:0:1 textRgbProfile.qualifier::Device RGB "
                               "imageRgbProfile.qualifier::Device RGB graphicsRgbProfile.qualifier::Device RGB ");
}

TEST(WorkbenchDialog, PictureIncludesHintBelow) {
    const DialogFolder folder;
    const std::string path = folder.path.u8string();
    const Json report = folder.Run("picture " + path + "/a.png\nchoose 1504 CIE RGB\nclick 1526\ncancel",
                                   L"--out \"" + folder.path.wstring() + L"/b.png\"");
    const int bottom = report["pictures"][0]["height"]; // of the dialog alone
    EXPECT_EQ(report["pictures"][1]["width"], report["pictures"][0]["width"]);
    EXPECT_GT(report["pictures"][1]["height"], bottom);
    folder.Run("picture " + path + "/c.png", L"--out \"" + folder.path.wstring() + L"/d.png\"");
    EXPECT_TRUE(Contents(folder.path / "c.png") == Contents(folder.path / "d.png")) << "focus as it opens";
    const auto refused = ReadPicture(path + "/b.png");
    EXPECT_NE(GetPixel(refused->context, 3, bottom + 3), RGB(0, 0, 0)) << "no hint below the dialog";
    const auto* pixels = static_cast<const DWORD*>(refused->pixels);
    EXPECT_GT(std::count(pixels, pixels + refused->size.cx * refused->size.cy, 0xFFCC0000), 50) << "no stop sign";
}

TEST(WorkbenchDialog, FlagsShortenListsAndLockControls) {
    const Json locked = DialogFolder().Run("", L"--short-rgb --locked");
    EXPECT_EQ(locked["dialog"]["disabled"].size(), 42);
    EXPECT_EQ(locked["entries"][2]["list"], 1354) << "1504 has two entries";
}

TEST(WorkbenchDialog, TrayChangesAreReportedAfterOk) {
    const DialogFolder folder;
    const std::string script = "choose 1844 Tray 2\nchoose 1860 A4\nchoose 1094 #1\nchoose 1844 #6\n"
                               "choose 1003 Thick 1\n";
    const Json size =
        Json::parse(R"({"tray": "InTray2", "attribute": "size", "before": "Unknown", "after": "A4", "value": 9})");
    for (const bool isOk : {true, false}) {
        const Json report = RunForJson(L"dialog 155 --script" + folder.Write("s.txt", script + (isOk ? "ok" : "")));
        EXPECT_EQ(report["dialog"]["endCode"], isOk ? 1 : 2);
        EXPECT_EQ(report["dialog"]["pageTold"], isOk);
        EXPECT_EQ(ControlRow(report, 1844)["shows"], "Manual feed");
        EXPECT_EQ(ControlRow(report, 1003)["shows"], "Thick 1");
        EXPECT_EQ(Pick(report["changes"], "attribute"), isOk ? Json({"size", "hole", "type"}) : Json::array());
        EXPECT_EQ(Pick(report["changes"], "after"), isOk ? Json({"A4", "Pre-punched", "Thick 1"}) : Json::array());
        EXPECT_TRUE(!isOk || report["changes"][0] == size) << report["changes"];
    }
    const Json locked = RunForJson(L"dialog 155 --locked");
    EXPECT_EQ(locked["dialog"]["disabled"], Json({1844, 1860, 1862, 1003, 1086, 1091, 1094}));
}

TEST(WorkbenchDialog, RefusedPaperIsUndoneAndExplainedUntilAnotherTrayIsSelected) {
    const DialogFolder folder;
    const Json report =
        RunForJson(L"dialog 155 --script"
                   + folder.Write("s.txt", "choose 1094 Pre-punched\nchoose 1003 Envelope\nchoose 1844 Tray 2\nok"));
    const Json hints = Pick(report["actions"], "hint");
    EXPECT_TRUE(hints[0].is_null() && hints[2].is_null()) << hints;
    EXPECT_EQ(hints[1].get<std::string>().find("Envelopes have no holes."), 0);
    EXPECT_EQ(Pick(report["changes"], "attribute"), Json({"hole"}));
}

// As the arrow keys choose in a closed list: an entry that is refused is left again.
TEST(WorkbenchDialog, EveryEntryCanBeReachedFromTheDefaults) {
    const DialogFolder folder;
    for (const int dialog : {122, 125, 128, 155}) { // the others have some of these lists
        const auto run = [&](const std::string& script) {
            return RunForJson(L"dialog " + std::to_wstring(dialog) + L" --script" + folder.Write("s.txt", script)
                              + (dialog < 155 ? L" --profiles" + folder.Write("p.json", kProfiles) : L""));
        };
        std::map<int, std::vector<std::string>> lists;
        std::string script = dialog == 155 ? "choose 1003 Plain paper\n" : "refresh\n";
        const Json report = run(script);
        for (const Json& entry : report["entries"])
            lists[entry["list"]].push_back(entry["text"]);
        lists.erase(1844); // the trays
        EXPECT_GE(lists.size(), 3);
        std::vector<bool> isEnd = {false}; // for each line
        const auto choose = [&](int list, size_t index, bool isLast) {
            script += "choose " + std::to_string(list) + " #" + std::to_string(index) + "\n";
            isEnd.push_back(isLast);
        };
        for (const auto& [list, texts] : lists) {
            const auto shown = std::find(texts.begin(), texts.end(), ControlRow(report, list)["shows"]);
            ASSERT_NE(shown, texts.end()) << list;
            const auto start = static_cast<size_t>(shown - texts.begin());
            for (size_t i = start + 1; i < texts.size(); ++i)
                choose(list, i, i + 1 == texts.size() && i != start + 1);
            for (size_t i = start; i-- > 0;)
                choose(list, i, i == 0 && start != 1);
            choose(list, start, false);
        }
        const Json walked = run(script);
        ASSERT_EQ(walked["actions"].size(), isEnd.size());
        for (size_t i = 0; i < isEnd.size(); ++i)
            EXPECT_TRUE(isEnd[i] || walked["actions"][i]["hint"].is_null()) << dialog << ' ' << walked["actions"][i];
    }
}

TEST(WorkbenchDialog, HelpDoesNotStopAScript) {
    const DialogFolder folder;
    const std::string picture = "picture " + folder.path.u8string() + "/p.png\n";
    const Json report = folder.Run("click 9\nchoose 1354 Vivid\n" + picture + "key f1\n" + picture + "key escape\n"
                                   + picture + "click 1528\nok");
    EXPECT_EQ(Changes(report).substr(0, 20), "image.colorMatch:1:0");
    const Json refused = folder.Run("click 1526\nclick 9\nkey escape\nok"); // back from help
    EXPECT_EQ(refused["actions"][2]["hint"], "To match the colour of the paper, choose a press to simulate.");
    const Json widths = Pick(report["pictures"], "width"); // with what is open next to the dialog
    EXPECT_EQ(widths[0], widths[1]);
    EXPECT_LT(widths[2], widths[1]);
    if (!IsWine())
        return; // there, WinHelp opens a page on the web; wine's waits for an answer
    const Folder alone(L"workbench_system_help", {"TELMAR_D.DLL", "TELMAR_D.PRM", "TELMAR_S.DLL"});
    ExpectFailure(L"dialog 128" + alone.Option() + L" --script" + folder.Write("s.txt", "limit 2\nclick 9\nok"), 1,
                  "s.txt:2: the dialog has not responded for 2 s");
}

TEST(WorkbenchDialog, JsonFaultsAreExplainedAtTheirPlace) {
    const std::pair<std::string, std::string> faults[] = {
        {"{\"a\": [\n  {\"b\": 1\n]}", "2:3: '{' is not closed: end it with '}'"},
        {"[1, 2\n}", "2:1: '}' does not close the '[' at 1:1"},
        {"{\"a\": 1}}", "1:9: nothing may follow the end of the value: remove it"},
        {"{\"a\": 1,\n}", "1:8: ',' before a closing bracket: remove it"},
        {"[\n {\"a\": 1}\n {\"b\": 2}]", "3:2: ',' is missing before this"},
        {"{\"a\" 1}", "1:6: ':' is missing before this"},
        {"[1,,2]", "1:4: a value is missing before this"},
        {"{a: 1}", "1:2: a name has double quotes: write \"NAME\": VALUE"},
        {"{\"a\": 1,5}", "1:9: expected a name in double quotes; a number has no ',' in it"},
        {"{'a': 1}", "1:2: texts have double quotes: write \" instead of '"},
        {"[True]", "1:2: 'True' needs double quotes; only numbers, true, false and null have none"},
        {"[\"x]", "1:2: the text is not closed: end it with \" on the same line"},
        {"// c\n[]", "1:1: JSON has no comments: remove it"},
        {"[\"C:\\p\"]", "1:6: unknown escape: write \\\\ for a backslash"},
        {"[\"\t\"]", "1:3: a control character in a text: write an escape such as \\t or \\u0007"},
        {"[\"\\u12g4\"]", "1:7: no character: write \\u and its 4 hexadecimal digits"},
        {"[1.]", "1:4: no number: write 12, -1.5 or 1e3"},
        {"[\"\xFF\"]", "1:3: not UTF-8: save the file as UTF-8"},
        {"", "1:1: the file is empty"},
        {std::string("[\0", 2), " this file is UTF-16; save it as UTF-8"},
    };
    for (const auto& [text, wanted] : faults) {
        try {
            ParseJson(text, "F");
            ADD_FAILURE() << text;
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.what(), "F:" + wanted) << text;
        }
    }
}

TEST(WorkbenchDialog, FailureSaysWhatIsWrongAndWhere) {
    const DialogFolder folder;
    const std::string longName = R"({"simulations": [{"name": ")" + std::string(41, 'x') + "\"}]}";
    // The option that names the file, and a regular expression.
    const std::tuple<const char*, std::string, int, std::string> cases[] = {
        {"--script", "\nchose 1504 #0", 2, "wrong:2: .*'chose'; possible: choose LIST .*, cancel"},
        {"--script", "choose 1999 #0", 2, "wrong:1: .*no list '1999'; possible: 1504, .*1627\n"},
        {"--script", "choose 1524 #6", 2, "wrong:1: list 1524 .*'#6'; possible: None, SWOP, .*DIC\n"},
        {"--script", "limit 0", 2, "wrong:1: there is no time limit '0'"},
        {"--script", "cancel\nok", 2, "wrong:2: the dialog was closed before"},
        {"--locked --script", "click 1526", 2, "wrong:1: control 1526 is disabled"},
        {"--script", "picture nowhere/a.png", 1, "wrong:1: .*there is no folder .*nowhere"},
        {"--settings", std::string(7807, '\0'), 1, "wrong: 7807 bytes; .* 7808"},
        {"--profiles", longName, 1, "wrong: simulations\\[0\\].name: .*41 .* 40\n"},
        {"--profiles", R"({"rgbSources": [{"name": ""}]})", 1, "wrong: rgbSources\\[0\\]: lacks its name"},
        {"--profiles", R"({"cmyk": []})", 1, "'cmyk'; possible: rgbSources, simulations, destinations"},
        {"--profiles", "{", 1, "wrong:1:1: '\\{' is not closed: end it with '\\}'\n"},
        {"--profiles", R"({"rgbSources": 1e999})", 1, "wrong: .*a number is too large\n"},
        {"--profiles", std::string(100000, '[') + std::string(100000, ']'), 1, "wrong: values .* levels deep"},
    };
    for (const auto& [option, file, exitCode, message] : cases)
        ExpectFailure(L"dialog 128 " + fs::path(option).wstring() + folder.Write("wrong", file), exitCode, message);
    ExpectFailure(L"dialog 165", 1, "no dialog 165; .* 155\\.");
    const Folder alone(L"workbench_without_ui_module", {"TELMAR_D.DLL", "TELMAR_D.PRM", "TELMAR_S.DLL"});
    ExpectFailure(L"dialog 155" + alone.Option(), 1, "TELMAR_U.DLL next to the module");
}

} // namespace
