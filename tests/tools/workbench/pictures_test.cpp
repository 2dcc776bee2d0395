// The picture files that the workbench writes: their sizes, what changes them, and what is refused. The
// module's own tests show which bitmaps a picture is composed of.
#include "tools/workbench/workbench_run.h"
#include "workbench/lib/picture.h"

#include <algorithm>
#include <fstream>

namespace {

// The folder of a test's pictures.
struct Pictures : Folder {
    Pictures() : Folder(L"workbench_pictures") {}
    std::wstring Out(const wchar_t* name) const { return L" --out \"" + (path / name).wstring() + L"\""; }

    // The file that a command writes. The command must succeed.
    std::string Make(const std::wstring& command) const {
        const Result result = RunWorkbench(command + Out(L"made.png"));
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        return Contents(path / "made.png");
    }

    // "WIDTHxHEIGHT" of that file.
    std::string SizeOf(const std::wstring& command) const {
        Make(command);
        const SIZE size = ReadPicture((path / "made.png").u8string())->size;
        return std::to_string(size.cx) + "x" + std::to_string(size.cy);
    }
};

TEST(WorkbenchPictures, ViewFollowsEveryOption) {
    const Pictures pictures;
    const std::string plain = pictures.Make(L"view");
    // Each is added to the line and changes the picture.
    std::wstring line = L"view";
    std::string before = plain;
    for (const wchar_t* more :
         {L" --set OpHDD=EnaOpHDD", L" --set OpOutTrayUnit=OpOutTrayUnit2", L" --set opmailbinkit=ENAOPMAILBINKIT",
          L" --set OpInTrayUnit=OpInTrayUnit1", L" --tray intray2", L" --output-flag 3", L" --output-flag 7",
          L" --machine \"R880 \u00DC\"", L" --set OpMachine=OpMachine1", L" --machine-only"}) {
        line += more;
        const std::string after = pictures.Make(line);
        EXPECT_NE(after, before) << fs::path(line).u8string();
        before = after;
    }
    EXPECT_EQ(pictures.Make(L"view --set OpHDD=EnaOpHDD --set OpHDD=DisOpHDD"), plain)
        << "the last assignment must win";
    EXPECT_EQ(pictures.Make(L"view --machine-only --tray InTray2 --output-flag 6"), plain);
}

TEST(WorkbenchPictures, ViewReportsThePicture) {
    const Pictures pictures;
    const Json view =
        RunForJson(L"view --size 300x250 --tray INTRAYLCT --output-flag 2 --output-flag 9 --machine Zw\u00F6lf"
                   + pictures.Out(L"a b.png"));
    Json expected =
        Json::parse(R"({"width": 300, "height": 250, "paperPath": true, "tray": "InTrayLCT", "outputFlags": [2, 9]})");
    expected["path"] = (pictures.path / "a b.png").u8string();
    EXPECT_EQ(view["picture"], expected);
    EXPECT_EQ(view["printer"], nullptr);
    EXPECT_EQ(view["options"][0], Json({{"feature", "OpMachine"}, {"item", "OpMachine2"}, {"name", "Zw\u00F6lf"}}));
}

// Over the library the device reports its units, over SNMP its trays.
TEST(WorkbenchPictures, ViewAppliesReportedOptionsOfEitherTransport) {
    const Pictures pictures;
    const Folder noLibrary(L"workbench_without_library", {"workbench.exe", "TELMAR_D.DLL", "TELMAR_D.PRM"});
    const std::string plain = pictures.Make(L"view");
    const std::tuple<fs::path, const char*, const char*, const char*> cases[] = {
        {ProductFolder(), "bidirectional library", "OpOutTrayUnit1", "EnaOpInTray3"},
        {noLibrary.path, "SNMP", "EnaOpInTray3", "OpOutTrayUnit1"}};
    for (const auto& [folder, transport, reported, notReported] : cases) {
        const Result result = RunWorkbench(L"view --json --from 127.0.162.1" + pictures.Out(L"view.png"), folder);
        const Json view = Json::parse(result.output);
        EXPECT_NE(Contents(pictures.path / "view.png"), plain);
        EXPECT_EQ(view["printer"], Json({{"address", "127.0.162.1"}, {"transport", transport}}));
        const Json items = Pick(view["options"], "item");
        EXPECT_EQ(std::count(items.begin(), items.end(), reported), 1) << items;
        EXPECT_EQ(std::count(items.begin(), items.end(), notReported), 0) << items;
    }
    EXPECT_EQ(pictures.Make(L"view --set OpInTrayUnit=DisOpInTrayUnit --set OpOutTrayUnit=DisOpOutTrayUnit"
                            L" --set OpHDD=DisOpHDD --from 127.0.162.1"),
              plain)
        << "--set must override what is reported";
}

TEST(WorkbenchPictures, PicturesHaveTheirSizes) {
    const Pictures pictures;
    EXPECT_EQ(pictures.SizeOf(L"view"), "200x200");
    EXPECT_EQ(pictures.SizeOf(L"view --size 4096x1"), "4096x1");
    EXPECT_EQ(pictures.SizeOf(L"gallery"), "1589x1273"); // 7 x 5 cells of 220 x 236, title and margins
    EXPECT_EQ(pictures.SizeOf(L"logo"), "200x144");
}

// A failure leaves no file behind and keeps an existing one.
TEST(WorkbenchPictures, FailureSaysWhatIsWrongAndKeepsTheFile) {
    const Pictures pictures;
    fs::create_directory(pictures.path / "folder.png");
    std::ofstream(pictures.path / "kept.png") << "kept";
    const std::wstring out = pictures.Out(L"kept.png");
    ExpectFailure(L"view", 2, "--out is required");
    ExpectFailure(L"gallery --out \"\"", 2, "--out lacks");
    ExpectFailure(L"view --set OpRoof=EnaOpRoof" + out, 2, "no option feature 'OpRoof'; possible: OpMachine");
    ExpectFailure(L"view --tray InTray9" + out, 2, "'InTray9'; possible: InTrayAuto, InTray1.*InTrayLCT, InTrayManual");
    ExpectFailure(L"view --output-flag 10" + out, 2, "--output-flag: .*10 .*1 to 9");
    for (const wchar_t* size : {L"0x200", L"200x4097", L"200", L"200x200x", L"200x00200"})
        ExpectFailure(L"view --size " + (size + out), 2, "--size: '.*' is not a size.*WxH.*1 to 4096");
    ExpectFailure(L"view --machine " + std::wstring(48, L'x') + out, 2, "cannot be named 'x+'.*1 to 47");
    ExpectFailure(L"view --from 127.0.162.9" + out, 1, "127.0.162.9 is on, but does not accept SNMP requests");
    ExpectFailure(L"view --from 127.0.162.3" + out, 1, "The device at 127.0.162.3 is of another model");
    ExpectFailure(L"gallery" + pictures.Out(L"nowhere\\a.png"), 1, "a.png: there is no folder .*nowhere;");
    ExpectFailure(L"logo" + pictures.Out(L"folder.png"), 1, "folder.png: cannot be written \\(error ");
    EXPECT_EQ(Contents(pictures.path / "kept.png"), "kept");
    EXPECT_EQ(std::distance(fs::directory_iterator(pictures.path), fs::directory_iterator()), 2);
}

} // namespace
