// The walks over the overlays and colour profiles of a scripted device: requests in order, entries, and the
// blocks returned.
#include "base/records.h"
#include "devcomm/queries/scripted_device.h"
#include "support/raw_bytes.h"

#include <gtest/gtest.h>

namespace {

using Texts = std::vector<std::string>;
using Answers = std::map<std::string, Answer>;

const std::string kOverlay = ".1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1.";
const std::string kProfile = ".1.3.6.1.4.1.47913.1.1.1.1.6.13.1.1.";
const Answer kAbsent = Answer{ASN_NULL}.With(2, 1);

// "3.1.7" is object 7 of column 3.
Texts Objects(const std::string& table, Texts objects) {
    for (std::string& object : objects)
        object.insert(0, table);
    return objects;
}

RawBytes Entry(const std::string& first, const std::string& second, const std::string& storage) {
    return RawBytes(288).Text(0, first).Text(128, second).Text(256, storage);
}

// Compares all of a block: a count and a pointer into the block for each list, then their entries. Releases
// it.
void ExpectBlock(void* block, const std::vector<std::vector<RawBytes>>& lists) {
    RawBytes expected(lists.size() * 16), entries(0);
    for (size_t i = 0; i < lists.size(); ++i) {
        const auto* at = static_cast<uint8_t*>(block) + expected.bytes.size() + entries.bytes.size();
        expected.U32(i * 16, static_cast<uint32_t>(lists[i].size())).Pointer(i * 16 + 8, at);
        for (const RawBytes& entry : lists[i])
            entries.Append(entry);
    }
    EXPECT_EQ(Differences(block, expected.Append(entries)), "");
    MIB_FreeOverlayInfo(block);
}

std::string Object(const std::string& table, const char* column, size_t row) {
    return table + column + std::to_string(row);
}

// Rows of a table, from 1 on: columns 2 and 5 as given, in 3 and 4 the texts "first N" and "second N". For
// overlays column 2 selects and 5 is not asked for; for profiles 2 is the storage and 5 selects.
Answers Rows(const std::string& table, const std::vector<std::pair<Answer, Answer>>& rows) {
    Answers answers;
    size_t row = 0;
    for (const auto& [column2, column5] : rows) {
        answers[Object(table, "2.1.", ++row)] = column2;
        answers[Object(table, "3.1.", row)] = Text(Object("first", " ", row));
        answers[Object(table, "4.1.", row)] = Text(Object("second", " ", row));
        answers[Object(table, "5.1.", row)] = column5;
    }
    return answers;
}

TEST(StoredResources, Overlays) {
    ScriptedDevice device;
    // clang-format off
    device.answers = Rows(kOverlay, {{Number(1), kAbsent}, {Number(2, 0x42), kAbsent}, {Number(1), kAbsent},
                                     {Number(1).With(0, 1), kAbsent}, {Text("1"), kAbsent}, {kAbsent, kAbsent},
                                     {kAbsent, kAbsent}, {Number(1), kAbsent}});
    // clang-format on
    device.answers[kOverlay + "4.1.3"] = kAbsent;
    device.answers[kOverlay + "3.1.7"] = kAbsent; // the end; what follows does not count
    ExpectBlock(MIB_OverlayRequest(kAgent, 0),
                {{Entry("second 1", "first 1", "OvlForm_HDD"), Entry("", "first 3", "OvlForm_HDD")}});
    EXPECT_EQ(device.asked, Objects(kOverlay, {"3.1.1", "2.1.1", "4.1.1", "3.1.2", "2.1.2", "3.1.3", "2.1.3", "4.1.3",
                                               "3.1.4", "2.1.4", "3.1.5", "2.1.5", "3.1.6", "2.1.6", "3.1.7"}));
    device.asked.clear();
    ExpectBlock(MIB_OverlayRequest(kAgent, 1), {{Entry("second 2", "first 2", "OvlForm_HDD")}});
    EXPECT_EQ(device.asked, Objects(kOverlay, {"3.1.1", "2.1.1", "3.1.2", "2.1.2", "4.1.2", "3.1.3", "2.1.3", "3.1.4",
                                               "2.1.4", "3.1.5", "2.1.5", "3.1.6", "2.1.6", "3.1.7"}));
    EXPECT_EQ(device.closes, 2u);
}

TEST(StoredResources, EmptyTextEndsTheWalk) {
    for (const Answer& answer : {kAbsent, Text(""), Text(std::string("\0name", 5)), Number(65), Oid({1, 3}),
                                 Text("name").With(0, 1), Text("name").With(0x10000, 0)}) {
        ScriptedDevice device;
        device.answers = {{kOverlay + "3.1.1", answer},
                          {kOverlay + "2.1.1", Number(1)},
                          {kProfile + "4.1.1", answer},
                          {kProfile + "5.1.1", Number(1)}};
        ExpectBlock(MIB_OverlayRequest(kAgent, 0), {{}});
        ExpectBlock(MIB_ProfileRequest(kAgent), {{}, {}, {}});
        EXPECT_EQ(device.asked, Texts({kOverlay + "3.1.1", kProfile + "4.1.1"}));
    }
}

TEST(StoredResources, Profiles) {
    ScriptedDevice device;
    // clang-format off
    device.answers = Rows(kProfile, {{Number(4), Number(3)}, {Number(5), Number(1)}, {Number(3), Number(2)},
                                     {Number(3), Number(4)}, {Number(3), kAbsent}, {Number(6), Number(1)},
                                     {Number(1), Number(3, 0x41)}, {Number(2, 0x42), Number(2)}, {kAbsent, Number(1)},
                                     {Number(4).With(0, 1), Number(1)}, {Number(4), Number(3).With(1, 0)},
                                     {Number(-1), Number(1)}, {Number(3), Number(1)}});
    // clang-format on
    device.answers[kProfile + "3.1.13"] = kAbsent;
    const RawBytes row1 = Entry("first 1", "second 1", "Prof_HDD");
    const RawBytes row7 = Entry("first 7", "second 7", "internalROM");
    ExpectBlock(MIB_ProfileRequest(kAgent),
                {{Entry("first 2", "second 2", "Prof_Flash"), Entry("first 3", "second 3", "Prof_Memory"),
                  Entry("first 8", "second 8", "internalHD"), Entry("", "second 13", "Prof_Memory")},
                 {row1, row7},
                 {row1, row7}});
    // How often the selector is asked for, and whether the entry's other objects are.
    Texts expected;
    const char* rows[] = {"4f", "3f", "4f", "4", "4", "3f", "4f", "4f", "3f", "3f", "4", "3f", "3f"};
    for (size_t i = 0; i < std::size(rows); ++i) {
        const std::string n = std::to_string(i + 1);
        expected.push_back("4.1." + n);
        expected.insert(expected.end(), static_cast<size_t>(rows[i][0] - '0'), "5.1." + n);
        if (rows[i][1] == 'f')
            expected.insert(expected.end(), {"3.1." + n, "2.1." + n});
    }
    expected.push_back("4.1.14");
    EXPECT_EQ(device.asked, Objects(kProfile, expected));
}

TEST(StoredResources, TextsAreCut) {
    const auto expectCut = [](const std::string& text, const std::string& cut) {
        ScriptedDevice device;
        device.answers = Rows(kOverlay, {{Number(1), kAbsent}});
        device.answers[kOverlay + "3.1.1"] = Text("1" + text);
        device.answers[kOverlay + "4.1.1"] = Text("2" + text, 0x44);
        ExpectBlock(MIB_OverlayRequest(kAgent, 0), {{Entry("2" + cut, "1" + cut, "OvlForm_HDD")}});
    };
    for (const size_t length : {size_t{126}, size_t{127}, size_t{254}, size_t{255}, size_t{300}})
        expectCut(std::string(length, 'x'), std::string(126, 'x'));
    expectCut({"ab\0cd", 5}, "ab");
}

// A walk visits 32,767 objects at most.
TEST(StoredResources, EndOfALongWalk) {
    ScriptedDevice device;
    for (size_t row = 1; row <= 32768; ++row) {
        device.answers[Object(kOverlay, "3.1.", row)] = Text(Object("first", " ", row));
        device.answers[Object(kOverlay, "2.1.", row)] = Number(2);
        device.answers[Object(kProfile, "4.1.", row)] = Text("second");
    }
    OverlayInfo* overlays = MIB_OverlayRequest(kAgent, 1);
    ASSERT_NE(overlays, nullptr);
    EXPECT_EQ(overlays->list.count, 32767);
    for (size_t row = 1; row <= 32767; ++row)
        ASSERT_EQ(Differences(&overlays->list.entries[row - 1], Entry("", Object("first", " ", row), "OvlForm_HDD")),
                  "");
    MIB_FreeOverlayInfo(overlays);
    EXPECT_EQ(device.asked.size(), 3u * 32767);
    device.asked.clear();
    ExpectBlock(MIB_ProfileRequest(kAgent), {{}, {}, {}});
    EXPECT_EQ(device.asked.size(), 5u * 32767); // a second text, and the selectors' four values
    EXPECT_EQ(device.asked.back(), kProfile + "5.1.32767");
}

} // namespace
