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
    Octets Contents() const { return Octets(element.octets + 2, element.octets + element.count); }

    BerBuffer element;
};

TEST(Ber, Integers) {
    const struct {
        const char* contents;
        int32_t value;
        bool isShortest = true; // as the writer builds it
    } cases[] = {
        // clang-format off
        {"00", 0}, {"7F", 127}, {"00 80", 128}, {"00 FF", 255}, {"01 00", 256}, {"7F FF", 0x7FFF},
        {"00 80 00", 0x8000}, {"7F FF FF", 0x7FFFFF}, {"00 80 00 00", 0x800000}, {"7F FF FF FF", INT_MAX},
        {"FF", -1}, {"80", -128}, {"FF 7F", -129}, {"80 00", -0x8000}, {"FF 7F FF", -0x8001},
        {"FF 7F FF FF", -0x800001}, {"80 00 00 00", INT_MIN},
        {"00 00 00 80", 128, false}, {"00 80 00 00 00", INT_MIN, false}, {"00 FF FF FF FE", -2, false},
        // clang-format on
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.contents);
        const ExactBlock element(Element(0x02, {Hex(c.contents)}));
        BerReader reader = {element.Start(), element.End(), false};
        EXPECT_EQ(BerReadInteger(reader), c.value);
        EXPECT_FALSE(reader.failed);
        Message message(kBerMaxInteger);
        BerAppendInteger(message.element, c.value);
        EXPECT_EQ(message.Contents() == Element(0x02, {Hex(c.contents)}), c.isShortest);
    }
    for (const char* refused : {"", "01 00 00 00 00", "FF FF FF FF FF", "00 00 00 00 00 01"}) {
        const ExactBlock element(Element(0x02, {Hex(refused)}));
        BerReader reader = {element.Start(), element.End(), false};
        EXPECT_EQ(BerReadInteger(reader), 0) << refused;
        EXPECT_TRUE(reader.failed) << refused;
    }
}

TEST(BerWriter, LengthForms) {
    const struct {
        uint32_t count; // of the inner element
        const char* headers;
    } cases[] = {
        {0, "30 02 04 00"},
        {125, "30 7F 04 7D"},
        {126, "30 82 00 80 04 7E"},
        {127, "30 82 00 81 04 7F"},
        {128, "30 82 00 84 04 82 00 80"},
        {65531, "30 82 FF FF 04 82 FF FB"},
        {65535, "30 83 01 00 03 04 82 FF FF"},
        {65536, "30 83 01 00 05 04 83 01 00 00"},
        {0x1000000, "30 84 01 00 00 06 04 84 01 00 00 00"},
    };
    for (const auto& c : cases) {
        Octets contents(c.count);
        for (uint32_t i = 0; i < c.count; ++i)
            contents[i] = static_cast<uint8_t>(i * 7 + (i >> 8));
        Message message(c.count);
        BerAppendOctets(message.element, 0x04, contents.data(), c.count);
        EXPECT_TRUE(message.All() == Join({Hex(c.headers), contents})) << c.count;
    }
}

// Sub-identifiers of every length, written and read back, are compared by the fuzz target of OID texts.
TEST(Ber, ObjectIdentifiers) {
    const struct {
        std::vector<uint32_t> ids;
        const char* element; // empty: can't be written
    } cases[] = {
        {{0, 0}, "06 01 00"},
        {{2, 39}, "06 01 77"},
        {{1, 3, 127, 128, 16383, 16384}, "06 09 2B 7F 81 00 FF 7F 81 80 00"},
        {{1, 3, 2097152, 268435455, 4294967295}, "06 0E 2B 81 80 80 00 FF FF FF 7F 8F FF FF FF 7F"},
        {{}, ""},
        {{1}, ""},
        {{3, 0}, ""},
        {{1, 40}, ""},
        {{0xFFFFFFFF, 0}, ""},
    };
    for (const auto& c : cases) {
        Message message(kBerMaxOid);
        const auto count = static_cast<uint32_t>(c.ids.size());
        EXPECT_EQ(BerAppendOid(message.element, c.ids.data(), count), *c.element != 0) << c.element;
        EXPECT_EQ(message.Contents(), Hex(c.element));
    }
}

TEST(BerWriter, ObjectIdentifiersOfTheLongestForm) {
    const struct {
        size_t ones; // sub-identifiers of 1 after 1.3, a byte each
        const char* lastBytes;
        bool fits;
    } cases[] = {{127, "", true}, {128, "", false}, {126, "81 00", false}, {122, "8F FF FF FF 7F", true}};
    for (const auto& c : cases) {
        std::vector<uint32_t> ids(c.ones + 2, 1);
        ids[1] = 3;
        const Octets last = Hex(c.lastBytes);
        if (!last.empty())
            ids.push_back(last.size() == 2 ? 128 : UINT32_MAX);
        Message message(kBerMaxOid);
        EXPECT_EQ(BerAppendOid(message.element, ids.data(), static_cast<uint32_t>(ids.size())), c.fits);
        EXPECT_EQ(message.All(),
                  c.fits ? Element(0x30, {Hex("06 82 00 80 2B"), Octets(c.ones, 1), last}) : Hex("30 00"))
            << c.ones << " and " << c.lastBytes;
    }
}

TEST(BerReader, LengthForms) {
    for (const char* header : {"04 02", "04 81 02", "04 82 00 02", "04 83 00 00 02", "04 84 00 00 00 02"}) {
        SCOPED_TRACE(header);
        const ExactBlock block(Join({Hex(header), Hex("AA BB FF")})); // and one more byte
        BerReader reader = {block.Start(), block.End(), false};
        BerReader contents = BerOpen(reader, 0x04);
        EXPECT_FALSE(reader.failed);
        EXPECT_EQ(reader.end - reader.at, 1);
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
        const ExactBlock block(refused);
        BerReader reader = {block.Start(), block.End(), false};
        BerReader contents = BerOpen(reader, 0x04);
        EXPECT_TRUE(contents.failed && reader.failed);
        EXPECT_EQ(reader.at, reader.end);
        EXPECT_EQ(BerTake(contents, 1), nullptr);
    }
}

TEST(BerReader, AFailureStays) {
    const ExactBlock block(Hex("02 01 05 04 01 AA 02 01 06"));
    BerReader reader = {block.Start(), block.End(), false};
    EXPECT_EQ(BerReadInteger(reader), 5);
    EXPECT_TRUE(BerOpen(reader, 0x30).failed) << "another tag";
    EXPECT_EQ(BerReadInteger(reader), 0);
    EXPECT_EQ(BerTake(reader, 0), nullptr);
    BerReader contents;
    EXPECT_EQ(BerOpenAny(reader, contents), 0);
    EXPECT_TRUE(reader.failed && contents.failed && reader.at == reader.end);

    const ExactBlock empty(Hex("30 00 02 01 05"));
    reader = {empty.Start(), empty.End(), false};
    EXPECT_TRUE(BerOpenFilled(reader, 0x30).failed);
    EXPECT_TRUE(reader.failed) << "an element that must hold something";
    reader = {empty.Start(), empty.End(), false};
    EXPECT_FALSE(BerOpen(reader, 0x30).failed);
    EXPECT_EQ(BerReadInteger(reader), 5);
}

TEST(BerReader, SubIdentifiers) {
    const struct {
        const char* contents;
        std::vector<uint32_t> ids; // empty: refused
        uint32_t capacity = 4;
    } cases[] = {
        // clang-format off
        {"FF", {6, 15}}, {"2B 80 80 01", {1, 3, 1}}, {"2B 8F FF FF FF 7F 00", {1, 3, 4294967295, 0}},
        {"2B", {1, 3}, 2}, {"2B", {}, 1}, {"2B 06", {}, 2}, {"2B 06 01 02", {}}, {"", {}}, {"2B 06 80", {}},
        {"2B 90 80 80 80 00", {}}, {"2B 81 80 80 80 80 80 80 80 80 80 05", {}}, // 5 when cut to 64 bits
        // clang-format on
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.contents);
        const ExactBlock contents(Hex(c.contents));
        const std::unique_ptr<uint32_t[]> ids(new uint32_t[c.capacity]);
        BerReader reader = {contents.Start(), contents.End(), false};
        const uint32_t count = BerReadSubIdentifiers(reader, ids.get(), c.capacity);
        EXPECT_EQ(std::vector<uint32_t>(ids.get(), ids.get() + count), c.ids);
        EXPECT_EQ(reader.failed, c.ids.empty());
    }
}

} // namespace
