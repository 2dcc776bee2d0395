// Host only: what the answers of the bidirectional library mean, through the exports and a scripted library.
#include "devcomm/bidi/bdc_tables.h"

#include "base/records.h"
#include "devcomm/scripted_bdc_host.h"

#include <gtest/gtest.h>
#include <utility>

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
    const std::string lower = "quorvane lumora r880";
    const struct {
        std::string longName;
        std::string shortName;
        int32_t model;
    } cases[] = {
        {kModel, kModel, 1},
        {kModel + '\0' + "rest", kModel + '\0' + "rest", 1},
        {lower, kModel, 0},
        {kModel, lower, 0},
        {kModel, "", 0},
        {"", kModel, 0},
        {kModel + "0", kModel, 0},
        {kModel, kModel + " ", 0},
        {kModel, "QUORVANE lumora R88", 0},
        {kModel + std::string(236, 'x'), kModel, 0}, // fields without terminator
        {kModel, kModel + std::string(44, 'x'), 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.longName + " | " + c.shortName);
        script.device.name.octets = RawBytes(324).Text(4, c.longName).Text(260, c.shortName);
        int32_t model = 77;
        EXPECT_EQ(DDProc_IsCommunicateDevice(kAgent, &model), TRUE);
        EXPECT_EQ(model, c.model);
        EXPECT_EQ(Option("OpMachine"), c.model == 1 ? "OpMachine1" : "refused");
        EXPECT_EQ(Tray("InTray9"), c.model == 1 ? kUnknownTray : "refused");
        EXPECT_EQ(win32::Count().libraryReferences, 0);
    }
}

TEST_F(BdcAnswers, HardDisk) {
    const std::pair<std::vector<RawBytes>, const char*> cases[] = {
        {{MemoryItem(3)}, "EnaOpHDD"},
        {{MemoryItem(1), MemoryItem(3), MemoryItem(4)}, "EnaOpHDD"},
        {{MemoryItem(2), MemoryItem(0x10003)}, "DisOpHDD"},
        {{MemoryItem(3), MemoryItem(3)}, "DisOpHDD"},
    };
    for (const auto& [items, answer] : cases) {
        script.device.memory.items = Items(items);
        EXPECT_EQ(Option("OpHDD"), answer) << items.size();
    }
}

TEST_F(BdcAnswers, Options) {
    const RawBytes a = OptionItem(3, "QA-110"), b = OptionItem(5, "QB-220"), c = OptionItem(6, "QC-330"),
                   d = OptionItem(6, "QD-440"), e = OptionItem(6, "QE-550"), f = OptionItem(6, "QF-660"),
                   fax = OptionItem(1000, "Bdc_Function_Fax");
    const std::string unterminated = "QA-110" + std::string(58, '0');
    const struct {
        std::string key;
        std::vector<RawBytes> options;
        std::vector<uint32_t> finisherFlags;
        const char* item;
    } cases[] = {
        {"OpInTrayUnit", {a}, {}, "OpInTrayUnit1"},
        {"OpInTrayUnit", {b, c, d, e, f, fax}, {0x70}, "DisOpInTrayUnit"},
        {"OpOutTrayUnit", {b, d}, {}, "OpOutTrayUnit2"},
        {"OpOutTrayUnit", {b}, {0x24}, "OpOutTrayUnit1"},
        {"OpOutTrayUnit", {a, c, e, f, fax}, {0x70}, "DisOpOutTrayUnit"},
        {"OpPunchKit", {c}, {0x70}, "OpPunchKit3"},
        {"OpPunchKit", {c}, {0x10, 0, 0x40}, "OpPunchKit3"},
        {"OpPunchKit", {c}, {0x30}, "OpPunchKit2"},
        {"OpPunchKit", {b, c}, {0x24}, "OpPunchKit2"},
        {"OpPunchKit", {c}, {0x20, 0x20}, "OpPunchKit2"},
        {"OpPunchKit", {c}, {0x10}, "OpPunchKit1"},
        {"OpPunchKit", {c}, {0xFFFFFF8F}, "DisOpPunchKit"},
        {"OpPunchKit", {c}, {}, "DisOpPunchKit"},
        {"OpPunchKit", {a, b, d, e, f, fax}, {0x70}, "DisOpPunchKit"},
        {"OpMailBinKit", {e}, {}, "EnaOpMailBinKit"},
        {"OpMailBinKit", {a, b, c, d, f, fax}, {0x70}, "DisOpMailBinKit"},
        {"OpSaddleKit", {f}, {}, "EnaSaddleKit"},
        {"OpSaddleKit", {a, b, c, d, e, fax}, {0x70}, "DisSaddleKit"},
        {"OpFAXUnit", {fax}, {}, "EnaOpFAXKit"},
        {"OpFAXUnit", {a, b, c, d, e, f}, {0x70}, "DisOpFAXKit"},
        {"OpHDD", {a, b, c, d, e, f, fax}, {0x70}, "DisOpHDD"},
        // Exactly one, letter case ignored, of the type and with all of the name.
        {"OpMailBinKit", {e, e}, {}, "DisOpMailBinKit"},
        {"OpMailBinKit", {e, f, OptionItem(6, "qe-550")}, {}, "DisOpMailBinKit"},
        {"OpMailBinKit", {OptionItem(5, "QE-550"), e}, {}, "EnaOpMailBinKit"},
        {"OpInTrayUnit", {OptionItem(3, "qa-110")}, {}, "OpInTrayUnit1"},
        {"OpInTrayUnit", {OptionItem(5, "QA-110"), OptionItem(0x10003, "QA-110")}, {}, "DisOpInTrayUnit"},
        {"OpInTrayUnit", {OptionItem(3, "QA-11"), OptionItem(3, unterminated)}, {}, "DisOpInTrayUnit"},
        // Keys.
        {"opmachine", {}, {}, "OpMachine1"},
        {"OPFAXUNIT", {fax}, {}, "EnaOpFAXKit"},
        {"OpMachine1", {}, {}, ""},
        {"Op", {}, {}, ""},
        {"", {}, {}, ""},
        {"OpMachine" + std::string(23, 'x'), {}, {}, ""}, // fills its field
    };
    for (const auto& each : cases) {
        script.device.options.items = Items(each.options);
        script.device.finishers.items = RawBytes(0);
        for (const uint32_t flags : each.finisherFlags)
            script.device.finishers.items.Append(FinisherItem(flags));
        EXPECT_EQ(Option(each.key), each.item) << each.key << ", case " << &each - cases;
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
TEST_F(BdcAnswers, MediaSizes) {
    const std::pair<unsigned, std::string> cases[] = {
        {259, "A3"}, {260, "A4"}, {261, "A5"}, {262, "A6"}, {516, "B4_JIS"}, {517, "B5_JIS"}, {518, "B6"},
        {1540, "12x18inch"}, {1541, "11x17inch"}, {1547, "8half14"}, {1551, "8half11"}, {1559, "7qtr10half"},
        {1560, "5half8half"}, {2051, "8K"}, {2052, "16K"}, {773, "B5_ISO"}, {1029, "EnvelopeC5"},
        {2826, "EnvelopeDL"}, {3073, "EnvelopeMonarch"}, {3074, "Envelope10"}, {3587, "JpnPostcard"},
        {3602, "4x6PostCard"}, {1556, "8x13"}, {1553, "8qtr13"}, {1549, "8half13"}, {1285, "220330mm"},
        {1554, "8hq13qtr"}, {8451, "A3W"}, {8452, "A4W"}, {8453, "A5W"}, {8708, "B4W"}, {8709, "B5W"},
        {9733, "11x17W"}, {9743, "8half11W"}, {9752, "5half8halfW"}, {0, ""}, {258, ""}, {263, ""}, {65535, ""},
    };
    for (const auto& [code, key] : cases)
        EXPECT_EQ(TrayWith({1, code}), key + " MediaTypeList_Portrait Plain    0") << code;
}

TEST_F(BdcAnswers, Orientations) {
    const std::pair<uint32_t, std::string> cases[] = {
        {2, "MediaTypeList_Portrait"}, {3, "MediaTypeList_Landscape"}, {0, ""}, {1, ""}, {4, ""}, {0x10002, ""},
    };
    for (const auto& [code, key] : cases)
        EXPECT_EQ(TrayWith({1, 260, 1, 0, code}), "A4 " + key + " Plain    0") << code;
}

TEST_F(BdcAnswers, MediaTypes) {
    const struct {
        uint32_t type, color, secondSide;
        std::string key;
    } cases[] = {
        {1, 15, 0, "Color"},          {1, 15, 1, "Color"},      {1, 0, 1, "PlainPaper2nd"},
        {1, 7, 1, "PlainPaper2nd"},   {1, 0, 0, "Plain"},       {1, 0, 2, "Plain"},
        {1, 7, 0, ""},                {177, 15, 1, "Special"},  {40, 15, 1, "Envelope"},
        {162, 15, 1, "Letterhead"},   {184, 15, 1, "SingleSided"},
        {225, 15, 1, "Thick1_2nd"},   {225, 7, 0, "Thick1"},    {226, 0, 1, "Thick2_2nd"},
        {226, 0, 2, "Thick2"},        {227, 0, 1, "Thick3_2nd"}, {227, 0, 0xFFFFFFFF, "Thick3"},
        {228, 0, 1, "Thick4_2nd"},    {228, 15, 0, "Thick4"},   {65, 7, 1, "OHP"},
        {234, 0, 1, "Thick1Plus_2nd"}, {234, 0, 0, "Thick1Plus"},
        {0, 15, 1, ""}, {2, 0, 0, ""}, {0xFFFFFFFF, 0, 0, ""}, {0x10001, 0, 0, ""},
    };
    constexpr uint32_t kAny = 0xFFFFFFFF;
    for (const auto& c : cases)
        EXPECT_EQ(TrayWith({1, 260, c.type, 0, 2, kAny, c.color, kAny, c.secondSide}),
                  "A4 MediaTypeList_Portrait " + c.key + "    0")
            << "case " << &c - cases;
    EXPECT_EQ(TrayWith({1, 260, 1, 0xFFFF, 2, 7, 0, 7, 0}), "A4 MediaTypeList_Portrait Plain    65535");
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
