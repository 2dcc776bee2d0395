// `workbench tour` as a process, on a screen and with simulated printers: the program uses the property
// sheet, the tests check the report.
#include "tools/workbench/workbench_run.h"
#include "workbench/property_sheet/page_ids.h"
#include "workbench/property_sheet/property_page.h"

#include <fstream>
#include <functional>
#include <thread>

namespace {

struct SheetFolder : Folder {
    SheetFolder() : Folder(L"workbench_sheet") {}
    Json Tour(const std::wstring& options = L"") const {
        return RunForJson(L"tour --out \"" + path.wstring() + L"\" --state \"" + (path / "kept.json").wstring() + L"\""
                          + options);
    }
};

std::string ItemOf(const Json& report, const std::string& feature) {
    for (const Json& row : report["options"])
        if (row["feature"] == feature)
            return row["item"];
    return "none";
}

TEST(WorkbenchSheet, StateIsKeptBetweenRunsAndReset) {
    const SheetFolder folder;
    const Json first = folder.Tour(L" --from 127.0.162.1");
    EXPECT_EQ(first["printer"]["status"], "Reported by 127.0.162.1.");
    EXPECT_EQ(ItemOf(first, "OpFAXUnit"), "EnaOpFAXKit"); // chosen by the tour
    EXPECT_EQ(first["trays"][3]["type"], "Thick 1");
    EXPECT_EQ(first["pictures"].size(), 4);
    EXPECT_TRUE(fs::exists(folder.path / "page-version.png"));
    // OK of the colour dialog also writes new records of the RGB sources.
    EXPECT_EQ(Changes(first).find("inputTray:7:258 mediaType:257:261 image.colorMatch:1:3 "), 0u) << Changes(first);

    const Json second = folder.Tour();
    EXPECT_EQ(second["printer"]["reportedBy"], "");
    EXPECT_EQ(second["printer"]["address"], "127.0.162.1");
    EXPECT_EQ(ItemOf(second, "OpOutTrayUnit"), "OpOutTrayUnit1"); // reported in the first run
    EXPECT_EQ(second["trays"], first["trays"]);
    EXPECT_EQ(Changes(second), Changes(first));

    const Json reset = folder.Tour(L" --reset");
    EXPECT_EQ(reset["changes"], Json::array());
    EXPECT_EQ(ItemOf(reset, "OpOutTrayUnit"), "DisOpOutTrayUnit");
}

// The driver with another model of family/model or tests/models.
struct OtherModel : Folder {
    explicit OtherModel(const std::string& name)
        : Folder(L"workbench_" + fs::path(name).wstring(), {"TELMAR_D.DLL", "TELMAR_D.PRM=models/" + name + ".prm",
                                                            "TELMAR_S.DLL", "TELMAR_U.DLL", "TELMAR_B.DLL"}) {}
};

// Two trays, no options, no colour.
TEST(WorkbenchSheet, MinimalModelIsShown) {
    const OtherModel minimal("minimal");
    const SheetFolder folder;
    const Json tour = folder.Tour(minimal.Option());
    EXPECT_EQ(tour["sheet"]["title"], "Two trays");
    EXPECT_EQ(Changes(tour), "inputTray:7:258 mediaType:257:263 ");
    EXPECT_EQ(Pick(tour["trays"], "size"), Json({"Unknown", "Letter"}));
    const std::wstring out = L" --out \"" + (folder.path / "gallery.png").wstring() + L"\"";
    EXPECT_EQ(RunForJson(L"gallery" + minimal.Option() + out)["picture"]["printers"], 3); // alone, from each tray
    for (const wchar_t* dialog : {L"123", L"166"})
        EXPECT_EQ(RunForJson(std::wstring(L"dialog ") + dialog + minimal.Option())["dialog"]["end"], "Cancel");
}

// More than 32 times the size of the shipped model.
TEST(WorkbenchSheet, LargeModelIsShown) {
    const OtherModel large("large");
    EXPECT_GT(fs::file_size(large.path / "TELMAR_D.PRM"), 32 * fs::file_size(ProductFolder() / "TELMAR_D.PRM"));
    EXPECT_EQ(RunForJson(L"describe" + large.Option())["lists"]["PaperSize"].size(), size_t{60} * 36);
    const SheetFolder folder;
    EXPECT_EQ(folder.Tour(large.Option())["trays"][1]["size"], "A3");
    EXPECT_EQ(RunForJson(L"dialog 155 " + large.Option())["dialog"]["end"], "Cancel");

    const OtherModel longNames("plain_paper"); // longer than the names of bins may be
    EXPECT_EQ(folder.Tour(longNames.Option())["trays"][2]["size"], "A3");
}

TEST(WorkbenchSheet, PrinterIsQueriedBySnmpWithoutLibrary) {
    const Folder noLibrary(L"workbench_sheet_no_library",
                           {"workbench.exe", "TELMAR_D.DLL", "TELMAR_D.PRM", "TELMAR_S.DLL", "TELMAR_U.DLL"});
    const Result result = RunWorkbench(L"tour --json --from 127.0.162.1 --out .", noLibrary.path);
    EXPECT_EQ(Json::parse(result.output)["printer"]["status"],
              "Reported by 127.0.162.1 over SNMP, which covers fewer options.");
    const Result mono = RunWorkbench(L"tour --json --from 127.0.163.1 --out .", noLibrary.path);
    EXPECT_NE(mono.output.find("fewer options. The printer calls itself 'Halden M410', not "), std::string::npos);
}

// A text that differs is no other model.
TEST(WorkbenchSheet, SettingsAreKeptForTheirModelOnly) {
    const OtherModel minimal("minimal");
    const OtherModel german("lumora_r880.de");
    const SheetFolder folder;
    const fs::path file = folder.path / "kept.json";
    EXPECT_EQ(folder.Tour(L" --from 127.0.162.1")["settings"]["keptIn"], file.u8string());
    const std::string kept = Contents(file);
    const auto tour = [&](const OtherModel& model) {
        const Json report = folder.Tour(model.Option());
        return std::pair(report["settings"]["warning"].get<std::string>(), Changes(report));
    };
    const auto [warning, changes] = tour(minimal);
    EXPECT_NE(warning.find("belong to another model: lumora R880."), std::string::npos) << warning;
    EXPECT_EQ(changes, "inputTray:7:258 mediaType:257:263 "); // of this tour

    std::ofstream(file) << kept;
    EXPECT_EQ(tour(german).first, "");
    const Json saved = Json::parse(Contents(file));
    EXPECT_EQ(saved["options"]["OpOutTrayUnit"], "OpOutTrayUnit1") << "reported at first";
    EXPECT_EQ(saved["reportedBy"], "127.0.162.1");
}

// Runs the sheet for a person, who uses its window and presses a button. Returns the report.
Json RunForPerson(const fs::path& file, int button, const std::function<void(HWND sheet)>& use) {
    Json report;
    std::thread program([&] { report = RunForJson(L"run --state \"" + file.wstring() + L"\""); });
    HWND sheet = nullptr;
    for (int waits = 0; sheet == nullptr && waits < 600; ++waits) {
        Sleep(50);
        sheet = FindWindowW(L"#32770", L"lumora R880");
    }
    EXPECT_NE(sheet, nullptr) << "the sheet has not opened";
    use(sheet);
    PostMessageW(sheet, WM_COMMAND, static_cast<WPARAM>(button), 0);
    program.join();
    return report["settings"];
}

POINT CornerOf(HWND window) {
    RECT frame = {};
    GetWindowRect(window, &frame);
    return {frame.left, frame.top};
}

TEST(WorkbenchSheet, PlaceIsKeptAndSettingsOnlyAfterOk) {
    const SheetFolder folder;
    const fs::path file = folder.path / "kept.json";
    const auto change = [](HWND sheet) {
        SendMessageW(sheet, PSM_SETCURSEL, kPaperPage, 0);
        const auto page = reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
        SendDlgItemMessageW(page, ID_SOURCE, CB_SETCURSEL, 2, 0);
        SendMessageW(page, WM_COMMAND, MAKEWPARAM(ID_SOURCE, CBN_SELCHANGE), 0);
    };
    const Json cancelled = RunForPerson(file, IDCANCEL, [&](HWND sheet) {
        RECT frame = {};
        GetWindowRect(sheet, &frame);
        RECT area = {}; // without the task bar
        SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
        EXPECT_NEAR(frame.left + frame.right, area.left + area.right, 1) << "not in the middle";
        SetWindowPos(sheet, nullptr, 110, 75, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        change(sheet);
    });
    EXPECT_EQ(cancelled, Json({{"saved", false}, {"keptIn", nullptr}}));
    EXPECT_EQ(Json::parse(Contents(file)), Json({{"place", {{"x", 110}, {"y", 75}}}}));

    const Json saved = RunForPerson(file, IDOK, [&](HWND sheet) {
        EXPECT_EQ(CornerOf(sheet).x, 110);
        EXPECT_EQ(CornerOf(sheet).y, 75);
        SetWindowPos(sheet, nullptr, GetSystemMetrics(SM_XVIRTUALSCREEN) + GetSystemMetrics(SM_CXVIRTUALSCREEN), 100, 0,
                     0, SWP_NOSIZE | SWP_NOZORDER);
        change(sheet);
    });
    EXPECT_EQ(saved, Json({{"saved", true}, {"keptIn", file.u8string()}}));
    EXPECT_TRUE(Json::parse(Contents(file))["settings"].is_string());

    RunForPerson(file, IDCANCEL,
                 [](HWND sheet) { EXPECT_NE(MonitorFromPoint(CornerOf(sheet), MONITOR_DEFAULTTONULL), nullptr); });
    EXPECT_TRUE(Json::parse(Contents(file))["settings"].is_string()) << "lost by saving the place";
}

TEST(WorkbenchSheet, DamagedStateFileIsReportedOnceAndKeptAside) {
    const SheetFolder folder;
    const fs::path file = folder.path / "kept.json";
    folder.Tour();
    const Json kept = Json::parse(Contents(file));
    std::vector<std::string> texts = {"{", "[]", "{}"};
    for (const char* wrong : {R"({"model": 5})", R"({"model": {"digest": 5}})", R"({"model": null})",
                              R"({"address": 7})", R"({"options": {"OpFAXUnit": 1}})", R"({"trays": "00"})",
                              R"({"settings": "zz"})", R"({"printer": {"reportedOn": "2026-13-01 10:00"}})"}) {
        Json damaged = kept;
        damaged.merge_patch(Json::parse(wrong));
        texts.push_back(damaged.dump());
    }
    for (const std::string& text : texts) {
        std::ofstream(file) << text;
        const Json report = folder.Tour();
        const std::string warning = report["settings"]["warning"];
        EXPECT_NE(warning.find("are damaged, "), std::string::npos) << text << ": " << warning;
        EXPECT_EQ(Contents(folder.path / "kept.json.damaged"), text);
        EXPECT_EQ(ItemOf(report, "OpHDD"), "DisOpHDD");
    }
    EXPECT_EQ(folder.Tour()["settings"]["warning"], "");
}

} // namespace
