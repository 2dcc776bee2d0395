// Host only: what the answers of the bidirectional library mean, through the exports and a scripted library.
#include "devcomm/bidi/bdc_tables.h"

#include "base/records.h"
#include "devcomm/bidi/scripted_bdc_host.h"

#include <gtest/gtest.h>
#include <tuple>

using namespace scripted_bdc;

namespace {

const std::string kModel = "QUORVANE lumora R880";

struct BdcAnswers : testing::Test {
    BdcAnswers() {
        script = {};
        Register(kBareName);
    }

    // The first tray's keys when this lies in it.
    static std::string TrayWith(const TrayState& tray) {
        script.device.inputTrays.items = TrayItem(tray);
        return Tray("InTray1");
    }
};

RawBytes Items(const std::vector<RawBytes>& each) {
    RawBytes items(0);
    for (const RawBytes& item : each)
        items.Append(item);
    return items;
}

TEST_F(BdcAnswers, ModelTestIsExact) {
    const std::string lower = "quorvane lumora r880", full(236, 'x'); // a field without terminator
    const std::tuple<std::string, std::string, bool> cases[] = {
        // long and short name
        // clang-format off
        {kModel, kModel, true}, {kModel + '\0' + "rest", kModel + '\0' + "rest", true}, {lower, kModel, false},
        {kModel, lower, false}, {kModel, "", false}, {"", kModel, false}, {kModel + "0", kModel, false},
        {kModel, kModel + " ", false}, {kModel + full, kModel, false}, {kModel, kModel + full.substr(192), false},
        // clang-format on
    };
    for (const auto& [longName, shortName, isModel] : cases) {
        SCOPED_TRACE(longName + " | " + shortName);
        script.device.name.octets = RawBytes(324).Text(4, longName).Text(260, shortName);
        int32_t model = 77;
        EXPECT_EQ(DDProc_IsCommunicateDevice(kAgent, &model), TRUE);
        EXPECT_EQ(model, isModel);
        EXPECT_EQ(Option("OpMachine"), isModel ? "OpMachine1" : "refused");
        EXPECT_EQ(Tray("InTray9"), isModel ? kUnknownTray : "refused");
        EXPECT_EQ(win32::Count().libraryReferences, 0);
    }
}

TEST_F(BdcAnswers, HardDisk) {
    const std::pair<std::vector<uint32_t>, const char*> cases[] = {
        {{3}, "EnaOpHDD"}, {{1, 3, 4}, "EnaOpHDD"}, {{2, 0x10003}, "DisOpHDD"}, {{3, 3}, "DisOpHDD"}};
    for (const auto& [kinds, answer] : cases) {
        script.device.memory.items = RawBytes(0);
        for (const uint32_t kind : kinds)
            script.device.memory.items.Append(MemoryItem(kind));
        EXPECT_EQ(Option("OpHDD"), answer) << kinds.size();
    }
}

TEST_F(BdcAnswers, Options) {
    const RawBytes a = OptionItem(3, "QA-110"), b = OptionItem(5, "QB-220"), c = OptionItem(6, "QC-330"),
                   d = OptionItem(6, "QD-440"), e = OptionItem(6, "QE-550"), f = OptionItem(6, "QF-660"),
                   fax = OptionItem(1000, "Bdc_Function_Fax");
    const std::string unterminated = "QA-110" + std::string(58, '0');
    // clang-format off
    using Options = std::vector<RawBytes>;
    const std::tuple<std::string, Options, std::vector<uint32_t>, const char*> cases[] = {
        // key, options and finisher flags of the device, item
        {"OpInTrayUnit", {a}, {}, "OpInTrayUnit1"}, {"OpInTrayUnit", {b, c, d, e, f, fax}, {0x70}, "DisOpInTrayUnit"},
        {"OpOutTrayUnit", {b, d}, {}, "OpOutTrayUnit2"}, {"OpOutTrayUnit", {b}, {0x24}, "OpOutTrayUnit1"},
        {"OpOutTrayUnit", {a, c, e, f, fax}, {0x70}, "DisOpOutTrayUnit"}, {"OpPunchKit", {c}, {0x70}, "OpPunchKit3"},
        {"OpPunchKit", {c}, {0x10, 0, 0x40}, "OpPunchKit3"}, {"OpPunchKit", {b, c}, {0x34}, "OpPunchKit2"},
        {"OpPunchKit", {c}, {0x20, 0x20}, "OpPunchKit2"}, {"OpPunchKit", {c}, {0x10}, "OpPunchKit1"},
        {"OpPunchKit", {c}, {0xFFFFFF8F}, "DisOpPunchKit"}, {"OpPunchKit", {c}, {}, "DisOpPunchKit"},
        {"OpPunchKit", {a, b, d, e, f, fax}, {0x70}, "DisOpPunchKit"}, {"OpMailBinKit", {e}, {}, "EnaOpMailBinKit"},
        {"OpMailBinKit", {a, b, c, d, f, fax}, {0x70}, "DisOpMailBinKit"}, {"OpSaddleKit", {f}, {}, "EnaSaddleKit"},
        {"OpSaddleKit", {a, b, c, d, e, fax}, {0x70}, "DisSaddleKit"}, {"OpFAXUnit", {fax}, {}, "EnaOpFAXKit"},
        {"OpFAXUnit", {a, b, c, d, e, f}, {0x70}, "DisOpFAXKit"},
        // Exactly one, letter case ignored, of the type and with all of the name.
        {"OpMailBinKit", {e, f, OptionItem(6, "qe-550")}, {}, "DisOpMailBinKit"},
        {"OpMailBinKit", {OptionItem(5, "QE-550"), e}, {}, "EnaOpMailBinKit"},
        {"OpInTrayUnit", {OptionItem(5, "QA-110"), OptionItem(0x10003, "QA-110")}, {}, "DisOpInTrayUnit"},
        {"OpInTrayUnit", {OptionItem(3, "QA-11"), OptionItem(3, unterminated)}, {}, "DisOpInTrayUnit"},
        // Keys: the last fills its field.
        {"opmachine", {}, {}, "OpMachine1"}, {"OpMachine1", {}, {}, ""}, {"Op", {}, {}, ""}, {"", {}, {}, ""},
        {"OpMachine" + std::string(23, 'x'), {}, {}, ""},
    };
    // clang-format on
    for (const auto& [key, options, finisherFlags, item] : cases) {
        script.device.options.items = Items(options);
        script.device.finishers.items = RawBytes(0);
        for (const uint32_t flags : finisherFlags)
            script.device.finishers.items.Append(FinisherItem(flags));
        EXPECT_EQ(Option(key), item) << key << ", " << options.size() << " options";
    }
}

TEST_F(BdcAnswers, SeveralItems) {
    OptionRequestItem options[3] = {{"OpHDD", "old"}, {"none", "old"}, {"OpMachine", "old"}};
    EXPECT_EQ(DDProc_OptionRequest(kAgent, 2, options), TRUE);
    EXPECT_STREQ(options[0].value, "DisOpHDD");
    EXPECT_STREQ(options[1].value, "");
    EXPECT_STREQ(options[2].value, "old") << "not asked for";
    script.device.inputTrays.items = Items({TrayItem({1}), TrayItem({2, 259})});
    InputTrayStatusItem trays[3] = {};
    memcpy(trays[0].tray, "InTray2", 8);
    memcpy(trays[1].tray, "InTray1", 8);
    memcpy(trays[2].tray, "InTray2", 8);
    EXPECT_EQ(DDProc_InputTrayStatus(kAgent, 2, trays), TRUE);
    EXPECT_STREQ(trays[0].mediaSize, "A3");
    EXPECT_STREQ(trays[1].mediaSize, "A4");
    EXPECT_STREQ(trays[2].mediaSize, "") << "not asked for";
}

// clang-format off
TEST_F(BdcAnswers, CodesOfATrayAreTranslatedOrLeftEmpty) {
    constexpr uint32_t kAny = 0xFFFFFFFF;
    const auto paper = [](uint32_t type, uint32_t color, uint32_t secondSide) {
        return TrayState{1, 260, type, 0, 2, kAny, color, kAny, secondSide};
    };
    const std::string portrait = "MediaTypeList_Portrait ", a4 = "A4 " + portrait;
    const std::pair<TrayState, std::string> cases[] = {
        {{1, 259}, "A3 " + portrait + "Plain"}, {{1, 517}, "B5_JIS " + portrait + "Plain"},
        {{1, 773}, "B5_ISO " + portrait + "Plain"}, {{1, 1560}, "5half8half " + portrait + "Plain"},
        {{1, 9752}, "5half8halfW " + portrait + "Plain"}, {{1, 0}, " " + portrait + "Plain"},
        {{1, 258}, " " + portrait + "Plain"}, {{1, 65535}, " " + portrait + "Plain"},
        {{1, 260, 1, 0, 3}, "A4 MediaTypeList_Landscape Plain"}, {{1, 260, 1, 0, 1}, "A4  Plain"},
        {{1, 260, 1, 0, 4}, "A4  Plain"}, {{1, 260, 1, 0, 0x10002}, "A4  Plain"},
        {paper(1, 15, 1), a4 + "Color"}, {paper(1, 0, 1), a4 + "PlainPaper2nd"},
        {paper(1, 7, 1), a4 + "PlainPaper2nd"}, {paper(1, 0, 2), a4 + "Plain"}, {paper(1, 7, 0), a4},
        {paper(177, 15, 1), a4 + "Special"}, {paper(65, 7, 1), a4 + "OHP"}, {paper(225, 15, 1), a4 + "Thick1_2nd"},
        {paper(225, 7, 0), a4 + "Thick1"}, {paper(227, 0, kAny), a4 + "Thick3"},
        {paper(234, 0, 1), a4 + "Thick1Plus_2nd"}, {paper(234, 0, 0), a4 + "Thick1Plus"},
        {paper(0, 15, 1), a4}, {paper(kAny, 0, 0), a4}, {paper(0x10001, 0, 0), a4},
    };
    for (const auto& [tray, keys] : cases)
        EXPECT_EQ(TrayWith(tray), keys + "    0") << "size " << tray.size << ", type " << tray.type;
    EXPECT_EQ(TrayWith({1, 260, 1, 0xFFFF, 2, 7, 0, 7, 0}), a4 + "Plain    65535");
}

TEST_F(BdcAnswers, TrayKeys) {
    const std::pair<std::string, uint32_t> cases[] = {
        {"InTray1", 1}, {"InTray2", 2}, {"InTray3", 3}, {"InTray4", 4}, {"InTrayLCT", 5}, {"InTrayManual", 6},
        {"INTRAYLCT", 5}, {"intray2", 2}, {"InTray5", 0}, {"InTrayManual1", 0}, {"InTray", 0}, {"", 0},
        {"InTray1" + std::string(25, '1'), 0}, // fills its field
    };
    for (const auto& [key, number] : cases) {
        script.device.inputTrays.items = Items({TrayItem({9}), TrayItem({0, 259}), TrayItem({0x10001})});
        EXPECT_EQ(Tray(key), kUnknownTray) << "not reported: " << key;
        for (uint32_t tray = 1; tray <= 7; ++tray)
            script.device.inputTrays.items.Append(TrayItem({tray, 260, 1, 100 + tray, 3, 0, 15, 0, 0}));
        script.device.inputTrays.items.Append(TrayItem({number})); // of two the first counts
        const std::string reported = "A4 MediaTypeList_Landscape Color    " + std::to_string(100 + number);
        EXPECT_EQ(Tray(key), number == 0 ? kUnknownTray : reported);
    }
}
// clang-format on

} // namespace
