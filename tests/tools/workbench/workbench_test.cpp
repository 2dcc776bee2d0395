// The workbench as a process: its output, its exit codes and its messages. Expected facts are those of the
// shipped model file.
#include "support/print_queue.h"
#include "support/wine.h"
#include "tools/workbench/workbench_run.h"
#include "workbench/lib/text.h"

#include <algorithm>

namespace {

TEST(Workbench, DescribeListsTheModel) {
    const Json model = RunForJson(L"describe");
    EXPECT_EQ(Pick(model["lists"]["InTray"], "value"), Json({7, 257, 258, 259, 260, 261, 1000, 4}));
    EXPECT_EQ(model["lists"]["PaperSize"][1]["length"], 2970);
    EXPECT_EQ(model["switches"][11]["value"], 1);    // "ColorSetting", TYPE1
    EXPECT_EQ(model["switches"][52]["value"], "on"); // "Overlay"
    EXPECT_EQ(model["device"]["machineEncryption"], "AES");
    EXPECT_EQ(model["ranges"][1], Json({{"name", "UserPaper_Width"}, {"a", 3110}, {"b", 900}}));
    EXPECT_EQ(model["inputSlots"][2]["FCoverTray"], "FCover_Tray1");
    EXPECT_EQ(model["lists"].size(), 31);
    for (const auto& list : model["lists"].items())
        EXPECT_FALSE(list.value().empty()) << list.key() << " is not in the model file";
}

TEST(Workbench, DefaultsListsFieldsWithOffsets) {
    const Json defaults = RunForJson(L"defaults");
    for (const auto& [group, row] :
         {std::pair("paper", R"({"name": "userPaperWidthInches", "offset": 88, "bytes": 4, "value": 8268})"),
          {"trays", R"({"name": "trays[6].key", "offset": 425, "bytes": 32, "value": "InTrayManual"})"},
          {"fontTable", R"({"nameOffset": 3702, "trueTypeName": "\uFF2D\uFF33 \u30B4\u30B7\u30C3\u30AF",
                 "printerFontOffset": 4593, "printerFont": "HGGothic-Bold", "codeOffset": 4411, "code": 29,
                 "checksumOffset": 5320, "checksum": 1383})"}}) {
        const Json& rows = defaults[group];
        EXPECT_NE(std::find(rows.begin(), rows.end(), Json::parse(row)), rows.end()) << row << rows;
    }
}

TEST(Workbench, TextsListsControlsColorsAndColumns) {
    const Json texts = RunForJson(L"texts");
    const Json& controls = texts["controlTexts"];
    EXPECT_EQ(controls["Dlg_ColorSetting"][0]["identifiers"], Json({122, 123, 124, 125, 128}));
    for (const auto& table : controls.items())
        for (const Json& row : table.value())
            EXPECT_NE(row["text"], "") << row["key"] << " has no text in the model file";

    EXPECT_EQ(texts["colorLists"].size(), 19);
    EXPECT_EQ(Pick(texts["colorLists"]["Graph_Halftone"], "value"), Json({3, 4, 0, 1, 2}));
    EXPECT_EQ(Pick(texts["colorLists"]["Img_RGBProf short"], "key"), Json({"Img_DeviceRGB", "Img_sRGB"}));
    EXPECT_EQ(texts["destinations"]["Text_Destination"][0]["key"], "Text_DestAuto");

    EXPECT_EQ(Pick(texts["mediaTypeLists"]["MediaTypeList_Orient"], "value"), Json({1, 2, -1}));
    EXPECT_EQ(texts["mediaTypeColumns"][6]["title"], "Holes");
    EXPECT_EQ(Pick(texts["mediaTypeColumns"], "shown"), Json(std::vector<bool>(7, true))); // TYPE1
}

TEST(Workbench, CapabilitiesFollowInstalledOptions) {
    std::wstring all = L"capabilities --set OpOutTrayUnit=OpOutTrayUnit1";
    for (const wchar_t* tray : {L"InTray2", L"InTray3", L"InTray4", L"InTray5", L"InTrayLCT"})
        all += std::wstring(L" --set Op") + tray + L"=EnaOp" + tray;
    EXPECT_EQ(Pick(RunForJson(all)["answers"], "answer"), Json({8, 8, 1, 1}));
    const Json removed = RunForJson(all + L" --set opintray3=DISOPINTRAY3 --set OpOutTrayUnit=DisOpOutTrayUnit");
    EXPECT_EQ(Pick(removed["paperSources"], "bin"), Json({7, 257, 258, 260, 261, 1000, 4}));
    EXPECT_EQ(removed["paperSources"][3]["name"], "Tray 4");
    EXPECT_EQ(Pick(removed["answers"], "answer"), Json({7, 7, 1, 0}));
}

TEST(Workbench, AddressIsFoundInRecord) {
    const Json ofRecord = RunForJson(L"address --record 192.168.10.2");
    EXPECT_EQ(ofRecord["printer"], Json({{"record", "192.168.10.2"}, {"address", "192.168.10.2"}}));
    EXPECT_EQ(Pick(ofRecord["calls"], "neededSize"), Json({13, nullptr}));
}

TEST(Workbench, AddressIsFoundInQueue) {
    SKIP_WITHOUT_OWN_SPOOLER();
    const Queue queue(L"Workbench test", L"WORKBENCH_1");
    const Monitor monitor(L"Digital Network Port", L"WORKBENCH_1", L"TCP/IP Address", L"10.6.6.6");
    const Json ofQueue = RunForJson(L"address --queue \"Workbench test\"");
    EXPECT_EQ(ofQueue["printer"], Json({{"queue", "Workbench test"}, {"address", "10.6.6.6"}}));
    EXPECT_EQ(ofQueue["calls"][0]["lastError"], 122);
}

TEST(Workbench, QueueWithoutAddressIsExplained) {
    SKIP_WITHOUT_OWN_SPOOLER();
    const Queue withoutAddress(L"Workbench test", L"WORKBENCH_1");
    ExpectFailure(L"address --queue \"Workbench test\"", 1, "'Workbench test'.*no port monitor.*--record");
}

TEST(Workbench, TextOutputIsAlignedUtf8) {
    const Result result = RunWorkbench(L"describe");
    EXPECT_NE(result.output.find("\n  Key         Value  Name          Text\n"
                                 "  MW_60_90        0  60-90 g/m\u00B2    60\n"
                                 "  MW_91_120       1  91-120 g/m\u00B2   91\n"),
              std::string::npos);
    EXPECT_EQ(result.output.find('\r'), std::string::npos);
    EXPECT_EQ(result.output.find(" \n"), std::string::npos) << "spaces at the end of a line";
}

TEST(Workbench, VersionIsThatOfTheProject) {
    EXPECT_EQ(RunWorkbench(L"--version").output, "workbench " PROJECT_VERSION "\n");
}

// Expected values are those of the device's description.
TEST(Workbench, QueryReportsSnmpAnswers) {
    const Json equipped = RunForJson(L"query 127.0.162.1");
    EXPECT_EQ(equipped["options"][0],
              Json({{"option", "OpMemory"}, {"answer", "1024MB"}, {"name", "Memory"}, {"setting", "1024 MB"}}));
    EXPECT_EQ(equipped["options"].size(), 13);
    EXPECT_EQ(equipped["supplies"][2],
              Json::parse(R"({"supply": "Consumable3", "state": 1, "value": 67, "color": "#ff00ff",
                  "name": "Magenta toner", "level": "67 %", "printerCallsIt": null})"));
    EXPECT_EQ(equipped["supplies"][10]["color"], nullptr) << "a level has no colour";
    EXPECT_EQ(Pick(equipped["overlays"]["overlays1"], "first"), Json({"Draft stamp"}));
    EXPECT_EQ(Pick(equipped["profiles"]["profiles0"], "storage"), Json({"internalROM", "Prof_HDD"}));
    EXPECT_EQ(Pick(equipped["profiles"]["profiles2"], "second"), Json({"coated.icc", "uncoated.icc"}));
}

TEST(Workbench, StatusReportsLibraryAnswers) {
    const Json equipped = RunForJson(L"status 127.0.162.1");
    EXPECT_EQ(equipped["options"].size(), 8);
    EXPECT_EQ(equipped["options"][3], Json({{"option", "OpPunchKit"},
                                            {"answer", "OpPunchKit3"},
                                            {"name", "Punch kit"},
                                            {"setting", "Punch kit QC-330, 2 and 4 holes"}}));
    EXPECT_EQ(equipped["trays"][2], Json::parse(R"({"tray": "InTray3", "size": "8half11", "type": "Letterhead",
        "orientation": "MediaTypeList_Landscape", "level": 120, "weight": null, "color": null, "hole": null,
        "name": "Tray 3", "isInstalled": true, "levelText": "120 sheets", "sizeName": "Letter",
        "typeName": "Letterhead", "orientationName": "Landscape", "weightName": null, "colorName": null,
        "prePunchedName": null})"));
}

// The same sentences and exit codes whatever the command and the transport.
TEST(Workbench, QueriesSayWhyTheyFail) {
    const std::wstring view = L"view --out view.png --from ", dialog = L"dialog 155 --from ";
    ExpectFailure(L"query 127.0.162.6", 1, "answer from 127.0.162.6 is damaged. Check");
    ExpectFailure(dialog + L"127.0.162.6", 1, "answer from 127.0.162.6 is damaged. Check");
    ExpectFailure(L"query 127.0.162.7", 1, "127.0.162.7 .*SNMP error status 5.*Restart");
    ExpectFailure(L"query 127.0.162.8", 1, "127.0.162.8 is not a printer. Check");
    ExpectFailure(view + L"127.0.162.8", 1, "127.0.162.8 is not a printer. Check");
    ExpectFailure(L"query 127.0.162.9", 1, "127.0.162.9 is on.*turn on SNMP");
    ExpectFailure(L"status 127.0.162.9", 1, "127.0.162.9 is on.*turn on SNMP");
    ExpectFailure(L"query 127.0.162.10", 1, "127.0.162.10 does not answer.*community tovask");
    ExpectFailure(L"query 127.0.162.11", 1, "127.0.162.11 .*other requests only");
    ExpectFailure(L"status 127.0.162.3", 1, "127.0.162.3 is of another model.*QUORVANE lumora R880");
    ExpectFailure(L"status no..host", 1, "no..host: there is no device.*spelling");
    ExpectFailure(view + L"::1", 2, "::1 leads to an IPv6 address");
    ExpectFailure(L"query \u6771\u4EAC.local", 2, "\u6771\u4EAC.local: a host name can't have all");
    ExpectFailure(L"query \" \"", 2, "address is missing");
    EXPECT_EQ(RunForJson(L"query \" 127.0.162.12 \"")["printer"]["address"], "127.0.162.12");
}

TEST(Workbench, TextsOfThePrinterAreDecodedAsUtf8) {
    const Json overlays = RunForJson(L"query 127.0.162.12")["overlays"]["overlays0"];
    EXPECT_EQ(Pick(overlays, "first"), Json({"B\u00FCro M\u00FCller \u6771\u4EAC"}));
}

// Bytes that are not UTF-8 are in the code page, also where a letter at the end looks like the start of a character.
TEST(Workbench, PrinterTextIsUtf8OrInTheCodePage) {
    if (GetACP() != 1252)
        GTEST_SKIP() << "the bytes are those of code page 1252, this system has " << GetACP();
    EXPECT_EQ(PrinterText("M\xFCller, Caf\xE9"), "M\u00FCller, Caf\u00E9");
    EXPECT_EQ(PrinterText("Caf\xE9"), "Caf\u00E9");
    EXPECT_EQ(PrinterText("M\u00FCller"), "M\u00FCller");
    EXPECT_EQ(PrinterText("\u6771\u4EAC\xE6\x9D"), "\u6771\u4EAC") << "the printer's text was cut";
    EXPECT_EQ(ToCodePage("M\u00FCller"), "M\xFCller");
    EXPECT_EQ(ToCodePage("\u0100"), std::nullopt) << "not turned into A";
    EXPECT_EQ(ErrorText(ERROR_FILE_NOT_FOUND).find_first_of("\r\n"), std::string::npos);
}

// The library is looked for in the program's folder first, so the program runs in other folders here.
TEST(Workbench, StatusSaysWhereLibraryIsLookedFor) {
    const Folder missing(L"workbench_no_library", {"workbench.exe", "TELMAR_D.DLL", "TELMAR_D.PRM"});
    const Folder incomplete(L"workbench_bad_library",
                            {"workbench.exe", "TELMAR_D.DLL", "TELMAR_D.PRM", "TELMAR_B.DLL=TELMAR_S.DLL"});
    const Folder complete(L"Dr\u00FCcker \u30D7\u30EA\u30F3\u30BF", // a folder may have any name
                          {"TELMAR_D.DLL", "TELMAR_D.PRM", "TELMAR_B.DLL"});
    for (const Folder* folder : {&missing, &incomplete}) {
        const Result result = RunWorkbench(L"status 127.0.162.1", folder->path);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_NE(result.errors.find((folder->path / "TELMAR_B.DLL").u8string()), std::string::npos) << result.errors;
    }
    EXPECT_EQ(RunForJson(L"describe" + complete.Option())["files"]["module"],
              (complete.path / "TELMAR_D.DLL").u8string());
    const Result result = RunWorkbench(L"status 127.0.162.1" + complete.Option(), missing.path);
    EXPECT_NE(result.output.find("QA-110"), std::string::npos)
        << "not loaded from the module's folder: " << result.output;
}

TEST(Workbench, FailureSaysWhatIsWrongAndWhatIsPossible) {
    const Folder empty(L"workbench_empty");
    const Folder moduleOnly(L"workbench_module_only", {"TELMAR_D.DLL"});
    const Folder damaged(L"workbench_damaged", {"TELMAR_D.DLL", "TELMAR_D.PRM=TELMAR_D.DLL"});
    const Folder foreign(L"workbench_foreign", {"TELMAR_D.DLL=TELMAR_S.DLL", "TELMAR_D.PRM"});
    ExpectFailure(L"foo", 2, "no command 'foo'.*possible: .*describe, capabilities");
    ExpectFailure(L"describe --color", 2, "describe has no option '--color'.*--folder, --language, --json");
    ExpectFailure(L"describe --language fr", 2, "no language 'fr'; possible: en, de");
    ExpectFailure(L"query", 2, "ADDRESS is required");
    ExpectFailure(L"capabilities --set OpTray3=Yes", 2, "'OpTray3'.*OpOutTrayUnit.*OpInTray3");
    ExpectFailure(L"capabilities --set OpInTray3=Yes", 2, "OpInTray3.*'Yes'.*EnaOpInTray3, DisOpInTray3");
    ExpectFailure(L"address", 2, "--record TEXT, --queue NAME");
    ExpectFailure(L"address --record \"\"", 1, "empty.*--record");
    ExpectFailure(L"address --queue Nowhere", 1, "'Nowhere'.*no such print queue.*1801.*--record");
    ExpectFailure(L"describe" + empty.Option(), 1, "workbench_empty.*TELMAR_D.DLL.*--folder");
    ExpectFailure(L"describe" + moduleOnly.Option(), 1, "module_only.*TELMAR_D.PRM.*--folder");
    ExpectFailure(L"describe" + damaged.Option(), 1, "TELMAR_D.PRM.*damaged.*prmc check");
    ExpectFailure(L"capabilities" + foreign.Option(), 1, "TELMAR_D.DLL.*DDProc_DeviceCapabilities");
}

} // namespace
