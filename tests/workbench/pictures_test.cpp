// The pictures that the workbench writes: files, sizes, what changes them, and what is refused. Which bitmaps
// make the picture is tested with the module; here a logo must arrive pixel for pixel.
#include "workbench/workbench_run.h"

#include <objidl.h> // before GDI+

#include <gdiplus.h>
#include <regex>

namespace {

// Where the pictures of a test go.
struct Pictures : Folder {
    Pictures() : Folder(L"workbench_pictures") {}
    std::wstring Out(const wchar_t* name) const { return L" --out \"" + (path / name).wstring() + L"\""; }

    // The file that a command writes, which must succeed.
    std::string Make(const std::wstring& command) const {
        const Result result = RunWorkbench(command + Out(L"made.png"));
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        return Contents(path / "made.png");
    }
};

// "WIDTHxHEIGHT" as the header chunk says; empty for what is no complete PNG file.
std::string SizeOf(const std::string& png) {
    const std::string start("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR", 16);
    const std::string end("\0\0\0\0IEND\xAE\x42\x60\x82", 12);
    if (png.size() < 24 + end.size() || png.substr(0, 16) != start || png.substr(png.size() - 12) != end)
        return {};
    uint32_t sides[2];
    memcpy(sides, &png[16], sizeof(sides));
    return std::to_string(_byteswap_ulong(sides[0])) + "x" + std::to_string(_byteswap_ulong(sides[1]));
}

TEST(WorkbenchPictures, ViewShowsWhatIsSet) {
    const Pictures pictures;
    const std::string plain = pictures.Make(L"view");
    EXPECT_EQ(SizeOf(plain), "200x200");
    EXPECT_EQ(SizeOf(pictures.Make(L"view --size 4096x1")), "4096x1");

    // Each adds to the line before it and changes the picture.
    std::wstring line = L"view";
    std::string before = plain;
    for (const wchar_t* more :
         {L" --set OpHDD=EnaOpHDD", L" --set OpOutTrayUnit=OpOutTrayUnit2",
          L" --set opmailbinkit=ENAOPMAILBINKIT", L" --set OpInTrayUnit=OpInTrayUnit1", L" --tray intray2",
          L" --output-flag 3", L" --output-flag 7", L" --machine \"R880 \u00DC\"",
          L" --set OpMachine=OpMachine1", L" --machine-only"}) {
        line += more;
        const std::string after = pictures.Make(line);
        EXPECT_NE(after, before) << fs::path(line).u8string();
        before = after;
    }
    EXPECT_EQ(pictures.Make(line), before) << "the same line, another picture";
    EXPECT_EQ(pictures.Make(L"view --set OpHDD=EnaOpHDD --set OpHDD=DisOpHDD"), plain)
        << "the later one wins";
    EXPECT_EQ(pictures.Make(L"view --machine-only --tray InTray2 --output-flag 6"), plain);
}

TEST(WorkbenchPictures, ViewTellsWhatItHasDrawn) {
    const Pictures pictures;
    const Json view = RunForJson(
        L"view --size 300x250 --tray INTRAYLCT --output-flag 2 --output-flag 9 --machine Zw\u00F6lf"
        + pictures.Out(L"a b.png"));
    EXPECT_EQ(view["picture"], Json({{"path", (pictures.path / "a b.png").u8string()},
                                     {"width", 300},
                                     {"height", 250},
                                     {"paperPath", true},
                                     {"tray", "InTrayLCT"},
                                     {"outputFlags", {2, 9}}}));
    EXPECT_EQ(view["printer"], nullptr);
    EXPECT_EQ(view["options"][0],
              Json({{"feature", "OpMachine"}, {"item", "OpMachine2"}, {"name", "Zw\u00F6lf"}}));
}

// Over the library's road the device tells of its units, over SNMP of its trays, over both of its disk; what
// it doesn't tell stays as the model has it.
TEST(WorkbenchPictures, ViewTakesTheOptionsOfAPrinterOverEitherRoad) {
    const Pictures pictures;
    const Folder alone(L"workbench_without_library", {{"workbench.exe", "workbench.exe"},
                                                      {"TELMAR_D.DLL", "TELMAR_D.DLL"},
                                                      {"TELMAR_D.PRM", "TELMAR_D.PRM"}});
    const struct {
        const fs::path folder;
        const char* road;
        std::map<std::string, Json> told; // of the well equipped printer, where it differs from the model
    } cases[] = {
        {ProgramFolder(),
         "bidirectional library",
         {{"OpInTrayUnit", "OpInTrayUnit1"},
          {"OpHDD", "EnaOpHDD"},
          {"OpOutTrayUnit", "OpOutTrayUnit1"},
          {"OpPunchKit", "OpPunchKit3"},
          {"OpFAXUnit", "EnaOpFAXKit"},
          {"OpMailBinKit", "EnaOpMailBinKit"},
          {"OpSaddleKit", "EnaSaddleKit"}}},
        {alone.path,
         "SNMP",
         {{"OpInTray3", "EnaOpInTray3"},
          {"OpInTray4", "EnaOpInTray4"},
          {"OpInTray5", "EnaOpInTray5"},
          {"OpHDD", "EnaOpHDD"}}},
    };
    for (const auto& c : cases) {
        const auto view = [&](const std::wstring& options) {
            const Result result =
                RunWorkbench(L"view --json" + options + pictures.Out(L"view.png"), c.folder);
            EXPECT_EQ(result.exitCode, 0) << result.errors;
            return std::make_pair(Json::parse(result.output, nullptr, false),
                                  Contents(pictures.path / "view.png"));
        };
        const auto [model, plain] = view(L"");
        const auto [asked, picture] = view(L" --from 127.0.162.1");
        EXPECT_NE(picture, plain);
        EXPECT_EQ(asked["printer"], Json({{"address", "127.0.162.1"}, {"road", c.road}}));
        for (size_t i = 0; i < model["options"].size(); ++i) {
            const Json& row = model["options"][i];
            const auto told = c.told.find(row["feature"]);
            EXPECT_EQ(asked["options"][i]["item"], told != c.told.end() ? told->second : row["item"])
                << c.road << row;
        }
        EXPECT_EQ(view(L" --set OpInTrayUnit=DisOpInTrayUnit --set OpOutTrayUnit=DisOpOutTrayUnit"
                       L" --set OpHDD=DisOpHDD --from 127.0.162.1")
                      .second,
                  plain)
            << "--set must win";
        EXPECT_EQ(view(L" --from 127.0.162.2").second, plain) << "a printer without options";
    }
}

// The module's own bitmap, read by GDI, in the middle of white.
TEST(WorkbenchPictures, LogoIsTheModulesPictureOnWhite) {
    const Pictures pictures;
    EXPECT_EQ(SizeOf(pictures.Make(L"logo")), "200x144");
    const HMODULE module =
        LoadLibraryExW((ProgramFolder() / "TELMAR_D.DLL").c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const HANDLE logo = LoadImageW(module, MAKEINTRESOURCEW(502), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    const HDC context = CreateCompatibleDC(nullptr);
    const HGDIOBJ before = SelectObject(context, logo);
    ASSERT_NE(before, nullptr);
    ULONG_PTR gdiPlus = 0;
    const Gdiplus::GdiplusStartupInput input;
    ASSERT_EQ(Gdiplus::GdiplusStartup(&gdiPlus, &input, nullptr), Gdiplus::Ok);
    {
        Gdiplus::Bitmap png((pictures.path / "made.png").c_str());
        ASSERT_EQ(png.GetLastStatus(), Gdiplus::Ok);
        int differing = 0;
        for (int y = 0; y < 144; ++y)
            for (int x = 0; x < 200; ++x) {
                const bool isInside = x >= 12 && x < 188 && y >= 12 && y < 132;
                const COLORREF wanted = isInside ? GetPixel(context, x - 12, y - 12) : RGB(255, 255, 255);
                Gdiplus::Color got;
                png.GetPixel(x, y, &got);
                differing += got.ToCOLORREF() != wanted || got.GetAlpha() != 255;
            }
        EXPECT_EQ(differing, 0);
    }
    Gdiplus::GdiplusShutdown(gdiPlus);
    SelectObject(context, before);
    DeleteDC(context);
    DeleteObject(logo);
    FreeLibrary(module);
}

TEST(WorkbenchPictures, GalleryIsOneSheet) {
    const Pictures pictures;
    const std::string sheet = pictures.Make(L"gallery");
    const Json told = RunForJson(L"gallery" + pictures.Out(L"sheet.png"))["picture"];
    EXPECT_EQ(SizeOf(sheet), told["width"].dump() + "x" + told["height"].dump());
    EXPECT_GE(told["width"], 7 * 200);
    EXPECT_EQ(Contents(pictures.path / "sheet.png"), sheet);
}

// A picture that can't be written leaves nothing behind, and what was there as it was.
TEST(WorkbenchPictures, SaysWhatIsWrong) {
    const Pictures pictures;
    fs::create_directory(pictures.path / "folder.png");
    std::ofstream(pictures.path / "kept.png") << "kept";
    const std::wstring out = pictures.Out(L"kept.png");
    const struct {
        std::wstring arguments;
        int exitCode;
        std::string says; // a regular expression
    } cases[] = {
        {L"view", 2, "--out is required"},
        {L"gallery --out \"\"", 2, "--out lacks"},
        {L"view --set OpRoof=EnaOpRoof" + out, 2, "no option feature 'OpRoof'; possible: OpMachine"},
        {L"view --tray InTray9" + out, 2,
         "'InTray9'; possible: InTrayAuto, InTray1.*InTrayLCT, InTrayManual"},
        {L"view --output-flag 10" + out, 2, "--output-flag: .*10 .*1 to 9"},
        {L"view --output-flag 0" + out, 2, "--output-flag: "},
        {L"view --size 0x0" + out, 2, "--size: '0x0'.*WxH.*1 to 4096"},
        {L"view --size 200x4097" + out, 2, "'200x4097'"},
        {L"view --size 99999999999x1" + out, 2, "'99999999999x1'"},
        {L"view --size 200x200px" + out, 2, "'200x200px'"},
        {L"view --size 200" + out, 2, "'200'"},
        {L"view --machine " + std::wstring(48, L'x') + out, 2, "can't be named 'x+'.*1 to 47"},
        {L"view --from 127.0.162.9" + out, 1, "127.0.162.9: no device answers"},
        {L"view --from 127.0.162.3" + out, 1, "127.0.162.3: the device is of another model"},
        {L"gallery" + pictures.Out(L"nowhere\\a.png"), 1, "a.png: there is no folder .*nowhere;"},
        {L"logo" + pictures.Out(L"folder.png"), 1, "folder.png: can't be written \\(error "},
    };
    for (const auto& c : cases) {
        const Result result = RunWorkbench(c.arguments);
        EXPECT_EQ(result.exitCode, c.exitCode) << result.errors;
        EXPECT_EQ(result.output, "");
        EXPECT_TRUE(std::regex_search(result.errors, std::regex("^workbench: .*" + c.says)))
            << c.says << " in: " << result.errors;
    }
    EXPECT_EQ(Contents(pictures.path / "kept.png"), "kept");
    const auto left = std::distance(fs::directory_iterator(pictures.path), fs::directory_iterator());
    EXPECT_EQ(left, 2);
}

} // namespace
