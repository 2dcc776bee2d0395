// The workbench as a process: what it writes, where to, and its exit codes. Expected facts are those of the
// shipped model file.
#include "support/print_queue.h"
#include "workbench/workbench_run.h"

#include <algorithm>

namespace {

TEST(Workbench, DescribesTheModel) {
    const Json model = RunForJson(L"describe");
    EXPECT_EQ(Pick(model["lists"]["InTray"], "value"), Json({7, 257, 258, 259, 260, 261, 1000, 4}));
    EXPECT_EQ(model["lists"]["MediaTypeList_Tray"][1]["key"], "MediaTypeList_InTray1");
    EXPECT_EQ(model["lists"]["PIFrontCover"][1]["value"], 1002);
    EXPECT_EQ(model["lists"]["PaperSize"][1]["length"], 2970);
    EXPECT_EQ(model["switches"][11]["value"], 1);    // "ColorSetting", TYPE1
    EXPECT_EQ(model["switches"][52]["value"], "on"); // "Overlay"
    EXPECT_EQ(model["device"]["machineEncryption"], "AES");
    EXPECT_EQ(model["ranges"][1], Json({{"name", "UserPaper_Width"}, {"a", 3110}, {"b", 900}}));
    EXPECT_EQ(model["inputSlots"][2]["FCoverTray"], "FCover_Tray1");
    for (const auto& list : model["lists"].items())
        EXPECT_FALSE(list.value().empty()) << list.key() << " is not in the model file";
}

TEST(Workbench, ShowsTheDefaultSettings) {
    const Json defaults = RunForJson(L"defaults");
    const struct { // 210 mm in mils, manual feed, sRGB, flash memory, MS Gothic
        const char* group;
        const char* row;
    } wanted[] = {
        {"paper", R"({"name": "userPaperWidthInches", "offset": 88, "bytes": 4, "value": 8268})"},
        {"trays", R"({"name": "trays[6].key", "offset": 425, "bytes": 32, "value": "InTrayManual"})"},
        {"color", R"({"name": "textRgbSource", "offset": 2516, "bytes": 2, "value": 1})"},
        {"profiles", R"({"name": "destinationProfile.location", "offset": 2502, "bytes": 4, "value": 5})"},
        {"fontTable", R"({"nameOffset": 3702, "trueTypeName": "\uFF2D\uFF33 \u30B4\u30B7\u30C3\u30AF",
                          "printerFontOffset": 4593, "printerFont": "HGGothic-Bold", "codeOffset": 4411,
                          "code": 29, "checksumOffset": 5320, "checksum": 1383})"},
    };
    for (const auto& w : wanted) {
        const Json& rows = defaults[w.group];
        EXPECT_NE(std::find(rows.begin(), rows.end(), ParseJson(w.row)), rows.end()) << w.row << rows;
    }
}

TEST(Workbench, ShowsTheTextsOfTheDialogs) {
    const Json texts = RunForJson(L"texts");
    const Json& controls = texts["controlTexts"];
    EXPECT_EQ(controls["Dlg_ColorSetting"][0]["identifiers"], Json({122, 123, 124, 125, 128}));
    EXPECT_EQ(controls["Property_0"][14],
              Json({{"identifiers", {1032}}, {"key", "Default"}, {"text", "Defaults"}}));
    for (const auto& table : controls.items())
        for (const Json& row : table.value())
            EXPECT_NE(row["text"], "") << row["key"] << " has no text in the model file";

    const Json& colors = texts["colorLists"];
    EXPECT_EQ(Pick(colors["Graph_Halftone"], "value"), Json({3, 4, 0, 1, 2}));
    EXPECT_EQ(colors["Img_RGBProf"].size(), 16);
    EXPECT_EQ(Pick(colors["Img_RGBProf short"], "key"), Json({"Img_DeviceRGB", "Img_sRGB"}));
    EXPECT_EQ(colors["Img_RGBProf short"][1]["name"], "sRGB");
    EXPECT_EQ(texts["destinations"]["Text_Destination"][0]["key"], "Text_DestAuto");

    EXPECT_EQ(Pick(texts["mediaTypeLists"]["MediaTypeList_Orient"], "value"), Json({1, 2, -1}));
    EXPECT_EQ(texts["mediaTypeLists"]["MediaTypeList_Hole"].back()["value"], -1);
    EXPECT_EQ(Pick(texts["mediaTypeColumns"], "title"),
              Json({"Paper source", "Paper size", "Orientation", "Paper type", "Paper weight", "Paper colour",
                    "Holes"}));
    EXPECT_EQ(Pick(texts["mediaTypeColumns"], "shown"), Json(std::vector<bool>(7, true))); // TYPE1
}

TEST(Workbench, ListsThePaperSourcesThatAreInstalled) {
    std::wstring all = L"capabilities --set OpOutTrayUnit=OpOutTrayUnit1";
    for (const wchar_t* tray : {L"InTray2", L"InTray3", L"InTray4", L"InTray5", L"InTrayLCT"})
        all += std::wstring(L" --set Op") + tray + L"=EnaOp" + tray;
    const Json complete = RunForJson(all);
    EXPECT_EQ(Pick(complete["paperSources"], "bin"), Json({7, 257, 258, 259, 260, 261, 1000, 4}));
    EXPECT_EQ(Pick(complete["answers"], "answer"), Json({8, 8, 1, 1}));

    const Json removed =
        RunForJson(all + L" --set opintray3=DISOPINTRAY3 --set OpOutTrayUnit=DisOpOutTrayUnit");
    EXPECT_EQ(Pick(removed["paperSources"], "bin"), Json({7, 257, 258, 260, 261, 1000, 4}));
    EXPECT_EQ(removed["paperSources"][3]["name"], "Tray 4");
    EXPECT_EQ(Pick(removed["answers"], "answer"), Json({7, 7, 1, 0}));
}

TEST(Workbench, FindsThePrintersAddress) {
    const Json ofRecord = RunForJson(L"address --record 192.168.10.2");
    EXPECT_EQ(ofRecord["printer"], Json({{"record", "192.168.10.2"}, {"address", "192.168.10.2"}}));
    const Json size = {{"bufferSize", 0}, {"answer", false}, {"neededSize", 13}, {"lastError", 0}};
    EXPECT_EQ(ofRecord["calls"][0], size);

    const Queue queue(L"Workbench test", L"WORKBENCH_1");
    const Monitor monitor(L"Digital Network Port", L"WORKBENCH_1", L"TCP/IP Address", L"10.6.6.6");
    const Json ofQueue = RunForJson(L"address --queue \"Workbench test\"");
    EXPECT_EQ(ofQueue["printer"], Json({{"queue", "Workbench test"}, {"address", "10.6.6.6"}}));
    EXPECT_EQ(Pick(ofQueue["calls"], "neededSize"), Json({9, 9}));
    EXPECT_EQ(ofQueue["calls"][0]["lastError"], 122);
}

TEST(Workbench, WritesAlignedTextInUtf8) {
    const Result result = RunWorkbench(L"describe");
    EXPECT_NE(result.output.find("\n  Key         Value  Name          Text\n"
                                 "  MW_60_90        0  60-90 g/m\u00B2    60\n"
                                 "  MW_91_120       1  91-120 g/m\u00B2   91\n"),
              std::string::npos);
    EXPECT_EQ(result.output.find('\r'), std::string::npos);
    EXPECT_EQ(result.output.find(" \n"), std::string::npos) << "spaces at the end of a line";
}

TEST(Workbench, OpensAFolderOfAnyName) {
    const Folder folder(L"Dr\u00FCcker \u30D7\u30EA\u30F3\u30BF",
                        {{"TELMAR_D.DLL", "TELMAR_D.DLL"}, {"TELMAR_D.PRM", "TELMAR_D.PRM"}});
    const Json answer = RunForJson(L"capabilities" + folder.Option());
    EXPECT_EQ(answer["files"]["module"], (folder.path / "TELMAR_D.DLL").u8string());
    EXPECT_EQ(answer["answers"][2]["answer"], 1);
}

// Expected is what the two devices' descriptions say.
TEST(Workbench, AsksPrinters) {
    const Json equipped = RunForJson(L"query 127.0.162.1");
    EXPECT_EQ(Pick(equipped["options"], "answer"),
              Json({"1024MB", "EnaOpHDD", "EnaOpManualFeed", "EnaOpInTray1", "EnaOpInTray2", "EnaOpInTray3",
                    "EnaOpInTray4", "EnaOpInTray5", "DisOpOutTray1", "DisOpOutTray2", "DisOpOutTray3",
                    "DisOpOutTray4", "EnaOpDuplex"}));
    EXPECT_EQ(equipped["supplies"][2],
              Json({{"supply", "Consumable3"}, {"state", 1}, {"value", 67}, {"color", "#ff00ff"}}));
    EXPECT_EQ(Pick(equipped["overlays"]["overlays0"], "second"), Json({"letterhead.ovl", "invoice.ovl"}));
    EXPECT_EQ(Pick(equipped["overlays"]["overlays1"], "first"), Json({"Draft stamp"}));
    EXPECT_EQ(Pick(equipped["profiles"]["profiles0"], "storage"), Json({"internalROM", "Prof_HDD"}));
    EXPECT_EQ(Pick(equipped["profiles"]["profiles2"], "second"), Json({"coated.icc", "uncoated.icc"}));

    const Json modest = RunForJson(L"query 127.0.162.2");
    EXPECT_EQ(modest["options"][0]["answer"], "640MB");
    EXPECT_EQ(modest["options"][1]["answer"], "DisOpHDD");
    EXPECT_EQ(Pick(modest["supplies"], "value"),
              Json({0, 9, 4, 0, 12, 0, 0, 0, 0, 0, 3, 0})); // waste: nearly full
    EXPECT_TRUE(modest["overlays"]["overlays0"].empty());
}

// The same devices through the bidirectional library. The keys are the driver's: Letter is "8half11", holes
// 2-4 are punch kit 3, a transparency is "OHP", the tray 5 is none that the library's road knows.
TEST(Workbench, AsksPrintersThroughTheBidirectionalLibrary) {
    const auto trays = [](const Json& status) { // weight, colour and holes: the device doesn't tell
        std::vector<std::string> rows;
        for (const Json& row : status["trays"]) {
            rows.emplace_back();
            for (const char* field :
                 {"tray", "size", "orientation", "type", "level", "weight", "color", "hole"})
                rows.back() +=
                    (row[field].is_string() ? row[field].get<std::string>() : row[field].dump()) + " ";
        }
        return rows;
    };

    const Json equipped = RunForJson(L"status 127.0.162.1");
    EXPECT_EQ(
        equipped["printer"],
        Json({{"address", "127.0.162.1"}, {"libraryUsable", true}, {"reached", true}, {"thisModel", true}}));
    EXPECT_EQ(Pick(equipped["options"], "option"),
              Json({"OpMachine", "OpInTrayUnit", "OpOutTrayUnit", "OpPunchKit", "OpMailBinKit", "OpSaddleKit",
                    "OpFAXUnit", "OpHDD"}));
    EXPECT_EQ(Pick(equipped["options"], "answer"),
              Json({"OpMachine1", "OpInTrayUnit1", "OpOutTrayUnit1", "OpPunchKit3", "EnaOpMailBinKit",
                    "EnaSaddleKit", "EnaOpFAXKit", "EnaOpHDD"}));
    EXPECT_EQ(trays(equipped),
              (std::vector<std::string>{
                  "InTray1 A4 MediaTypeList_Landscape Plain 430 null null null ",
                  "InTray2 A3 MediaTypeList_Portrait Plain 500 null null null ",
                  "InTray3 8half11 MediaTypeList_Landscape Letterhead 120 null null null ",
                  "InTray4 A4 MediaTypeList_Landscape Thick1 80 null null null ",
                  "InTrayLCT A4 MediaTypeList_Landscape Plain 2100 null null null ",
                  "InTrayManual EnvelopeC5 MediaTypeList_Portrait Envelope 20 null null null "}));

    const Json modest = RunForJson(L"status 127.0.162.2");
    EXPECT_EQ(Pick(modest["options"], "answer"),
              Json({"OpMachine1", "DisOpInTrayUnit", "DisOpOutTrayUnit", "DisOpPunchKit", "DisOpMailBinKit",
                    "DisSaddleKit", "DisOpFAXKit", "DisOpHDD"}));
    EXPECT_EQ(trays(modest)[2],
              "InTray3 MediaTypeList_Size_Unknown MediaTypeList_Orient_Unknown MediaTypeList_Type_Unknown 0 "
              "MediaTypeList_Weight_Unknown MediaTypeList_Color_Unknown MediaTypeList_Hole_Unknown ");
    EXPECT_EQ(trays(modest)[5], "InTrayManual A4 MediaTypeList_Landscape OHP 0 null null null ");
}

TEST(Workbench, StatusOfNobodyAndOfAnotherModel) {
    const Json nobody = RunForJson(L"status 127.0.162.9");
    EXPECT_EQ(nobody["printer"]["libraryUsable"], true);
    EXPECT_EQ(nobody["printer"]["reached"], false);
    EXPECT_EQ(nobody["printer"]["thisModel"], nullptr);
    const Json other = RunForJson(L"status 127.0.162.3");
    EXPECT_EQ(other["printer"]["reached"], true);
    EXPECT_EQ(other["printer"]["thisModel"], false);
    EXPECT_EQ(other["options"], nullptr);
    EXPECT_EQ(other["trays"], nullptr);
}

// The program's folder and the current one are looked in first, so that this takes programs of other folders.
TEST(Workbench, SaysWhereTheBidirectionalLibraryIsLookedFor) {
    const std::map<const char*, const char*> files = {{"workbench.exe", "workbench.exe"},
                                                      {"TELMAR_D.DLL", "TELMAR_D.DLL"},
                                                      {"TELMAR_D.PRM", "TELMAR_D.PRM"}};
    auto withIncomplete = files;
    withIncomplete["TELMAR_B.DLL"] = "TELMAR_S.DLL";
    const Folder folders[] = {Folder(L"workbench_no_library", files),
                              Folder(L"workbench_bad_library", withIncomplete)};
    for (const Folder& folder : folders) {
        const Result result = RunWorkbench(L"status 127.0.162.1 --json", folder.path);
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        const Json status = ParseJson(result.output);
        EXPECT_EQ(status["printer"]["libraryUsable"], false);
        EXPECT_EQ(status["printer"]["reached"], nullptr);
        EXPECT_EQ(status["options"], nullptr);
        const std::string hint = status["printer"]["hint"];
        EXPECT_NE(hint.find((folder.path / "TELMAR_B.DLL").u8string()), std::string::npos) << hint;
    }
    const Folder library(L"workbench_library", {{"TELMAR_D.DLL", "TELMAR_D.DLL"},
                                                {"TELMAR_D.PRM", "TELMAR_D.PRM"},
                                                {"TELMAR_B.DLL", "TELMAR_B.DLL"}});
    const Result beside = RunWorkbench(L"status 127.0.162.1" + library.Option(), folders[0].path);
    EXPECT_NE(beside.output.find("OpMachine1"), std::string::npos)
        << "not taken from beside the module: " << beside.output;
}

// Every failure says what is wrong and what would be right.
TEST(Workbench, SaysWhatIsWrong) {
    const Folder empty(L"workbench_empty");
    const Folder moduleOnly(L"workbench_module_only", {{"TELMAR_D.DLL", "TELMAR_D.DLL"}});
    const Folder damaged(L"workbench_damaged",
                         {{"TELMAR_D.DLL", "TELMAR_D.DLL"}, {"TELMAR_D.PRM", "TELMAR_D.DLL"}});
    const Folder foreign(L"workbench_foreign",
                         {{"TELMAR_D.DLL", "TELMAR_S.DLL"}, {"TELMAR_D.PRM", "TELMAR_D.PRM"}});
    const Queue withoutAddress(L"Workbench test", L"WORKBENCH_1");
    ExpectFailure(L"foo", 2, "no command 'foo'.*describe, capabilities");
    ExpectFailure(L"describe --color", 2, "describe has no option '--color'.*--folder, --json");
    ExpectFailure(L"describe --folder", 2, "--folder");
    ExpectFailure(L"capabilities --set OpTray3=Yes", 2, "'OpTray3'.*OpOutTrayUnit.*OpInTray3");
    ExpectFailure(L"capabilities --set OpInTray3=Yes", 2, "OpInTray3.*'Yes'.*EnaOpInTray3, DisOpInTray3");
    ExpectFailure(L"address", 2, "--record TEXT, --queue NAME");
    ExpectFailure(L"address --record \"\"", 1, "empty.*--record");
    ExpectFailure(L"address --queue Nowhere", 1, "'Nowhere'.*no such print queue.*1801.*--record");
    ExpectFailure(L"address --queue \"Workbench test\"", 1, "'Workbench test'.*no port monitor.*--record");
    ExpectFailure(L"describe" + empty.Option(), 1, "workbench_empty.*TELMAR_D.DLL.*--folder");
    ExpectFailure(L"describe" + moduleOnly.Option(), 1, "module_only.*TELMAR_D.PRM.*--folder");
    ExpectFailure(L"describe" + damaged.Option(), 1, "TELMAR_D.PRM.*damaged.*prmc check");
    ExpectFailure(L"query", 2, "ADDRESS is required");
    ExpectFailure(L"query 127.0.162.9", 1, "127.0.162.9: .*can't be asked by SNMP; check the address");
    ExpectFailure(L"capabilities" + foreign.Option(), 1, "TELMAR_D.DLL.*DDProc_DeviceCapabilities");
}

} // namespace
