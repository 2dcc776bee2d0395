// BER elements: what the writer builds, and that the reader accepts nothing that is not there.
#include "devcomm/snmp/ber_reader.h"
#include "devcomm/snmp/ber_writer.h"
#include "support/octets.h"

#include <climits>
#include <gtest/gtest.h>

namespace {

// What is appended to a message, without the message's own header. The block has just the promised room.
struct Message {
    explicit Message(uint32_t contentOctets) : element(BerCreate(0x30, 2 * kBerMaxHeader + contentOctets)) {}
    ~Message() { BerFree(element); }
    Message(const Message&) = delete;
    Message& operator=(const Message&) = delete;
    Octets All() const { return Octets(element.octets, element.octets + element.count); }

    BerBuffer element;
};

struct Reader : ExactBlock, BerReader {
    explicit Reader(const Octets& octets) : ExactBlock(octets), BerReader{Start(), End(), false} {}
};

TEST(Ber, IntegersOfUpTo32BitsAreReadAndWrittenInTheShortestForm) {
    // clang-format off
    const struct { const char* contents; int32_t value; bool isShortest = true; } cases[] = { // as the writer builds it
        {"00", 0}, {"7F", 127}, {"00 80", 128}, {"00 FF", 255}, {"01 00", 256}, {"7F FF", 0x7FFF},
        {"00 80 00", 0x8000}, {"7F FF FF", 0x7FFFFF}, {"00 80 00 00", 0x800000}, {"7F FF FF FF", INT_MAX},
        {"FF", -1}, {"80", -128}, {"FF 7F", -129}, {"80 00", -0x8000}, {"FF 7F FF", -0x8001},
        {"FF 7F FF FF", -0x800001}, {"80 00 00 00", INT_MIN},
        {"00 00 00 80", 128, false}, {"00 80 00 00 00", INT_MIN, false}, {"00 FF FF FF FE", -2, false},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.contents);
        const Octets element = Element(0x02, {Hex(c.contents)});
        Reader reader(element);
        EXPECT_EQ(BerReadInteger(reader), c.value);
        EXPECT_FALSE(reader.failed);
        Message message(kBerMaxInteger);
        BerAppendInteger(message.element, c.value);
        EXPECT_EQ(message.All() == Element(0x30, {element}), c.isShortest);
    }
    for (const char* refused : {"", "01 00 00 00 00", "FF FF FF FF FF", "00 00 00 00 00 01"}) {
        Reader reader(Element(0x02, {Hex(refused)}));
        EXPECT_EQ(BerReadInteger(reader), 0) << refused;
        EXPECT_TRUE(reader.failed) << refused;
    }
}

TEST(BerWriter, LengthsHaveTheShortestFormThatIsBuilt) {
    const std::pair<uint32_t, const char*> cases[] = {
        // bytes of the inner element, headers of both
        // clang-format off
        {0, "30 02 04 00"}, {125, "30 7F 04 7D"}, {126, "30 82 00 80 04 7E"}, {127, "30 82 00 81 04 7F"},
        {128, "30 82 00 84 04 82 00 80"}, {65531, "30 82 FF FF 04 82 FF FB"}, {65535, "30 83 01 00 03 04 82 FF FF"},
        {65536, "30 83 01 00 05 04 83 01 00 00"}, {0x1000000, "30 84 01 00 00 06 04 84 01 00 00 00"},
        // clang-format on
    };
    for (const auto& [count, headers] : cases) {
        Octets contents(count);
        for (uint32_t i = 0; i < count; ++i)
            contents[i] = static_cast<uint8_t>(i * 7 + (i >> 8));
        Message message(count);
        BerAppendOctets(message.element, 0x04, contents.data(), count);
        EXPECT_TRUE(message.All() == Join({Hex(headers), contents})) << count;
    }
}

std::vector<uint32_t> Ids(size_t ones, const std::vector<uint32_t>& last = {}) {
    std::vector<uint32_t> ids(ones + 2, 1);
    ids[1] = 3;
    ids.insert(ids.end(), last.begin(), last.end());
    return ids;
}

// Sub-identifiers of every length, written and read back, are compared by the fuzz target of OID texts.
TEST(BerWriter, ObjectIdentifiersOfUpTo128BytesAreWrittenInGroupsOfSevenBits) {
    const Octets header = Hex("06 82 00 80 2B");
    const std::pair<std::vector<uint32_t>, Octets> cases[] = {
        // empty: can't be written
        // clang-format off
        {{0, 0}, Hex("06 01 00")}, {{2, 39}, Hex("06 01 77")}, {{1, 3, 127, 128}, Hex("06 04 2B 7F 81 00")},
        {{1, 3, 16383, 16384, 2097152}, Hex("06 0A 2B FF 7F 81 80 00 81 80 80 00")}, {{}, {}}, {{1}, {}},
        {{1, 3, 268435455, 4294967295}, Hex("06 0A 2B FF FF FF 7F 8F FF FF FF 7F")}, {{3, 0}, {}}, {{1, 40}, {}},
        {{0xFFFFFFFF, 0}, {}}, {Ids(127), Join({header, Octets(127, 1)})}, {Ids(128), {}}, {Ids(126, {128}), {}},
        {Ids(122, {0xFFFFFFFF}), Join({header, Octets(122, 1), Hex("8F FF FF FF 7F")})},
        // clang-format on
    };
    for (const auto& [ids, element] : cases) {
        Message message(kBerMaxOid);
        EXPECT_EQ(BerAppendOid(message.element, ids.data(), static_cast<uint32_t>(ids.size())), !element.empty());
        EXPECT_EQ(message.All(), Element(0x30, {element}));
    }
}

TEST(BerReader, ReadsAnElementWhoseLengthIsThereAndRefusesOthers) {
    for (const char* header : {"04 02", "04 81 02", "04 82 00 02", "04 83 00 00 02", "04 84 00 00 00 02"}) {
        SCOPED_TRACE(header);
        Reader reader(Join({Hex(header), Hex("AA BB FF")})); // and one more byte
        BerReader contents = BerOpen(reader, 0x04);
        EXPECT_TRUE(!reader.failed && reader.end - reader.at == 1);
        const uint8_t* taken = BerTake(contents, 2);
        ASSERT_NE(taken, nullptr);
        EXPECT_EQ(Octets(taken, taken + 2), Hex("AA BB"));
        EXPECT_EQ(BerTake(contents, 1), nullptr) << "ends with its element";
    }
    const Octets indefinite = Join({Hex("04 80"), Octets(128, 0)}); // as many bytes as a length of 80 hex
    for (const Octets& refused :
         {Hex(""), Hex("04"), Hex("04 03 AA BB"), Hex("04 81"), Hex("04 84 00 00 00 03 AA BB"), indefinite,
          Hex("04 84 FF FF FF FF AA BB"), Hex("04 85 00 00 00 00 02 AA BB FF"), Hex("05 02 AA BB FF")}) {
        SCOPED_TRACE(testing::PrintToString(refused));
        Reader reader(refused);
        BerReader contents = BerOpen(reader, 0x04);
        EXPECT_TRUE(contents.failed && reader.failed && reader.at == reader.end);
        EXPECT_EQ(BerTake(contents, 1), nullptr);
    }
}

TEST(BerReader, AfterAFailureNothingMoreIsRead) {
    Reader reader(Hex("02 01 05 04 01 AA 02 01 06"));
    EXPECT_EQ(BerReadInteger(reader), 5);
    EXPECT_TRUE(BerOpen(reader, 0x30).failed) << "another tag";
    EXPECT_EQ(BerReadInteger(reader), 0);
    EXPECT_EQ(BerTake(reader, 0), nullptr);
    BerReader contents;
    EXPECT_EQ(BerOpenAny(reader, contents), 0);
    EXPECT_TRUE(reader.failed && contents.failed && reader.at == reader.end);
}

TEST(BerReader, AnEmptyElementFailsOnlyWhereItMustBeFilled) {
    Reader filled(Hex("30 00 02 01 05")), any(Hex("30 00 02 01 05"));
    EXPECT_TRUE(BerOpenFilled(filled, 0x30).failed && filled.failed);
    EXPECT_FALSE(BerOpen(any, 0x30).failed);
    EXPECT_EQ(BerReadInteger(any), 5);
}

TEST(BerReader, SubIdentifiersAreReadUpToTheCapacityAnd32Bits) {
    // Refused where there are none.
    // clang-format off
    const struct { const char* contents; std::vector<uint32_t> ids; uint32_t capacity = 4; } cases[] = {
        {"FF", {6, 15}}, {"2B 80 80 01", {1, 3, 1}}, {"2B 8F FF FF FF 7F 00", {1, 3, 4294967295, 0}},
        {"2B", {1, 3}, 2}, {"2B", {}, 1}, {"2B 06", {}, 2}, {"2B 06 01 02", {}}, {"", {}}, {"2B 06 80", {}},
        {"2B 90 80 80 80 00", {}}, {"2B 81 80 80 80 80 80 80 80 80 80 05", {}}, // 5 when cut to 64 bits
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.contents);
        const std::unique_ptr<uint32_t[]> ids(new uint32_t[c.capacity]);
        Reader reader(Hex(c.contents));
        const uint32_t count = BerReadSubIdentifiers(reader, ids.get(), c.capacity);
        EXPECT_EQ(std::vector<uint32_t>(ids.get(), ids.get() + count), c.ids);
        EXPECT_EQ(reader.failed, c.ids.empty());
    }
}

} // namespace
