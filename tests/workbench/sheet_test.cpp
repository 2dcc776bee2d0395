// The property sheet as a process, on a screen and beside simulated printers: the program uses its pages, the
// tests look at what has come of it.
#include "workbench/workbench_run.h"

#include <fstream>
#include <regex>

namespace {

struct SheetFolder : Folder {
    SheetFolder() : Folder(L"workbench_sheet") {}
    std::wstring Name(const char* name) const { return L" \"" + (path / name).wstring() + L"\""; }
    std::wstring Out() const { return L" \"" + path.wstring() + L"\""; }
    Json Tour(const std::wstring& options = L"") const {
        return RunForJson(L"tour --out" + Out() + L" --state" + Name("kept.json") + options);
    }
};

// "NAME=VALUE " of all settings that differ from the defaults.
std::string Changes(const Json& report) {
    std::string changes;
    for (const Json& row : report["changes"])
        changes += row["name"].get<std::string>() + "=" + row["after"].dump() + " ";
    return changes;
}

std::string ItemOf(const Json& report, const std::string& feature) {
    for (const Json& row : report["options"])
        if (row["feature"] == feature)
            return row["item"];
    return "none";
}

TEST(WorkbenchSheet, KeepsWhatIsChosenAndWhatAPrinterTells) {
    const SheetFolder folder;
    const Json told = folder.Tour(L" --from 127.0.162.1");
    EXPECT_EQ(told["printer"]["status"], "Told by 127.0.162.1 (bidirectional library).");
    EXPECT_EQ(ItemOf(told, "OpOutTrayUnit"), "OpOutTrayUnit1"); // that the printer has
    EXPECT_EQ(ItemOf(told, "OpFAXUnit"), "EnaOpFAXKit");
    EXPECT_EQ(told["trays"][1]["size"], "A3");
    EXPECT_EQ(told["trays"][3]["type"], "Thick 1");
    EXPECT_EQ(told["pictures"].size(), 4);
    for (const Json& picture : told["pictures"]) {
        EXPECT_EQ(picture["width"], told["pictures"][0]["width"]);
        EXPECT_TRUE(fs::exists(fs::u8path(picture["path"].get<std::string>())));
    }
    // Tray 2, letterhead, exact match; OK of the colour dialog makes new records of the RGB sources.
    EXPECT_TRUE(
        std::regex_search(Changes(told), std::regex("^inputTray=258 mediaType=261 image.colorMatch=3 ")))
        << Changes(told);

    const Json kept = folder.Tour();
    EXPECT_EQ(kept["printer"]["toldBy"], "");
    EXPECT_EQ(kept["printer"]["address"], ""); // the tour has cleared it
    EXPECT_EQ(ItemOf(kept, "OpOutTrayUnit"), "OpOutTrayUnit1");
    EXPECT_EQ(kept["trays"][3]["type"], "Thick 1");
    EXPECT_EQ(Changes(kept), Changes(told));

    const Json reset = folder.Tour(L" --reset");
    EXPECT_EQ(reset["changes"], Json::array());
    EXPECT_EQ(ItemOf(reset, "OpOutTrayUnit"), "DisOpOutTrayUnit");
}

TEST(WorkbenchSheet, SaysHowAPrinterIsAskedOrWhyNot) {
    const SheetFolder folder;
    const Json other = folder.Tour(L" --from 127.0.162.3");
    EXPECT_NE(other["printer"]["status"].get<std::string>().find("another model"), std::string::npos);
    EXPECT_EQ(other["printer"]["toldBy"], "");

    const Folder lacking(L"workbench_sheet_lacking", {{"workbench.exe", "workbench.exe"},
                                                      {"TELMAR_D.DLL", "TELMAR_D.DLL"},
                                                      {"TELMAR_D.PRM", "TELMAR_D.PRM"},
                                                      {"TELMAR_S.DLL", "TELMAR_S.DLL"},
                                                      {"TELMAR_U.DLL", "TELMAR_U.DLL"}});
    const Result bySnmp = RunWorkbench(L"tour --json --from 127.0.162.1 --out" + folder.Out(), lacking.path);
    ASSERT_EQ(bySnmp.exitCode, 0) << bySnmp.errors;
    EXPECT_EQ(ParseJson(bySnmp.output)["printer"]["status"], "Told by 127.0.162.1 (SNMP).");
}

TEST(WorkbenchSheet, TakesWhatFitsOfAKeptFile) {
    const SheetFolder folder;
    const auto keep = [&](const std::string& text) { std::ofstream(folder.path / "kept.json") << text; };
    keep(
        R"({"address": 7, "options": {"OpFAXUnit": "NoSuch", "Other": "x"}, "settings": "zz", "trays": "00"})");
    const Json fitting = folder.Tour();
    EXPECT_EQ(ItemOf(fitting, "OpHDD"), "DisOpHDD");
    EXPECT_EQ(fitting["settings"]["trouble"], "");
    keep("{");
    const std::string trouble = folder.Tour()["settings"]["trouble"];
    EXPECT_NE(trouble.find("kept.json: holds no settings"), std::string::npos) << trouble;
    EXPECT_EQ(Contents(folder.path / "kept.json.damaged"), "{");
}

} // namespace
