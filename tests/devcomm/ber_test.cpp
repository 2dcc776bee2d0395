// BER octets: what the writer builds, and that the reader takes nothing that is not there.
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

TEST(Ber, IntegersThereAndBack) {
    const struct {
        int32_t value;
        const char* contents;
    } cases[] = {
        // clang-format off
        {0, "00"}, {127, "7F"}, {128, "00 80"}, {255, "00 FF"}, {256, "01 00"}, {0x7FFF, "7F FF"},
        {0x8000, "00 80 00"}, {66051, "01 02 03"}, {0x7FFFFF, "7F FF FF"}, {0x800000, "00 80 00 00"},
        {INT_MAX, "7F FF FF FF"}, {-1, "FF"}, {-128, "80"}, {-129, "FF 7F"}, {-0x8000, "80 00"},
        {-0x8001, "FF 7F FF"}, {-0x800001, "FF 7F FF FF"}, {INT_MIN, "80 00 00 00"},
        // clang-format on
    };
    for (const auto& c : cases) {
        Message message(kBerMaxInteger);
        BerAppendInteger(message.element, c.value);
        EXPECT_EQ(message.Contents(), Element(0x02, {Hex(c.contents)})) << c.value;
        const ExactBlock element(message.Contents());
        BerReader reader = {element.Start(), element.End(), false};
        EXPECT_EQ(BerReadInteger(reader), c.value);
        EXPECT_FALSE(reader.failed);
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

TEST(BerWriter, ObjectIdentifiers) {
    const struct {
        std::vector<uint32_t> ids;
        const char* element; // empty: can't be written
    } cases[] = {
        {{1, 3}, "06 01 2B"},
        {{0, 0}, "06 01 00"},
        {{2, 39}, "06 01 77"},
        {{1, 3, 6, 1, 2, 1, 1, 2, 0}, "06 08 2B 06 01 02 01 01 02 00"},
        {{1, 3, 127, 128, 0}, "06 05 2B 7F 81 00 00"},
        {{1, 3, 16383, 16384}, "06 06 2B FF 7F 81 80 00"},
        {{1, 3, 2097151, 2097152}, "06 08 2B FF FF 7F 81 80 80 00"},
        {{1, 3, 268435455, 268435456}, "06 0A 2B FF FF FF 7F 81 80 80 80 00"},
        {{1, 3, 4294967295}, "06 06 2B 8F FF FF FF 7F"},
        {{}, ""},
        {{1}, ""},
        {{3, 0}, ""},
        {{1, 40}, ""},
        {{2, 40}, ""},
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
        size_t ones; // sub-identifiers of 1 behind 1.3, an octet each
        uint32_t last;
        bool fits;
    } cases[] = {
        {126, 1, true},           {127, 1, false},  {122, 4294967295, true}, {123, 4294967295, false},
        {126, 4294967295, false}, {125, 128, true}, {126, 128, false},       {200, 1, false},
    };
    for (const auto& c : cases) {
        std::vector<uint32_t> ids(c.ones + 2, 1);
        ids[1] = 3;
        ids.push_back(c.last);
        Message message(kBerMaxOid);
        EXPECT_EQ(BerAppendOid(message.element, ids.data(), static_cast<uint32_t>(ids.size())), c.fits);
        const Octets last = c.last == 1 ? Hex("01") : c.last == 128 ? Hex("81 00") : Hex("8F FF FF FF 7F");
        EXPECT_EQ(message.All(),
                  c.fits ? Element(0x30, {Hex("06 82 00 80 2B"), Octets(c.ones, 1), last}) : Hex("30 00"))
            << c.ones << " and " << c.last;
    }
}

TEST(BerReader, LengthForms) {
    for (const char* header : {"04 02", "04 81 02", "04 82 00 02", "04 83 00 00 02", "04 84 00 00 00 02"}) {
        SCOPED_TRACE(header);
        const ExactBlock block(Join({Hex(header), Hex("AA BB FF")})); // with one octet behind it
        BerReader reader = {block.Start(), block.End(), false};
        BerReader contents = BerOpen(reader, 0x04);
        EXPECT_FALSE(reader.failed);
        EXPECT_EQ(reader.end - reader.at, 1);
        const uint8_t* taken = BerTake(contents, 2);
        ASSERT_NE(taken, nullptr);
        EXPECT_EQ(Octets(taken, taken + 2), Hex("AA BB"));
        EXPECT_EQ(BerTake(contents, 1), nullptr) << "ends with its element";
    }
    for (const char* octets :
         {"", "04", "04 03 AA BB", "04 81", "04 82 00", "04 84 00 00 00 03 AA BB", "04 84 FF FF FF FF AA BB",
          "04 84 80 00 00 02 AA BB", "04 85 00 00 00 00 02 AA BB FF",
          "04 88 00 00 00 00 00 00 00 02 AA BB FF", "04 FF AA BB", "05 02 AA BB FF"}) {
        SCOPED_TRACE(octets);
        const ExactBlock block(Hex(octets));
        BerReader reader = {block.Start(), block.End(), false};
        BerReader contents = BerOpen(reader, 0x04);
        EXPECT_TRUE(contents.failed && reader.failed);
        EXPECT_EQ(reader.at, reader.end);
        EXPECT_EQ(BerTake(contents, 1), nullptr);
    }
}

// The indefinite form, with as many octets behind it as a length of 80 hex would take.
TEST(BerReader, IndefiniteForm) {
    const ExactBlock block(Join({Hex("04 80"), Octets(128, 0)}));
    BerReader reader = {block.Start(), block.End(), false};
    EXPECT_TRUE(BerOpen(reader, 0x04).failed);
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

TEST(BerReader, IntegersOfOtherLengths) {
    const struct {
        const char* contents;
        bool valid;
        int32_t value;
    } cases[] = {{"00 00 00 80", true, 128},     {"00 80 00 00 00", true, INT_MIN},
                 {"00 FF FF FF FE", true, -2},   {"", false, 0},
                 {"01 00 00 00 00", false, 0},   {"FF FF FF FF FF", false, 0},
                 {"00 00 00 00 00 01", false, 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.contents);
        const ExactBlock element(Element(0x02, {Hex(c.contents)}));
        BerReader reader = {element.Start(), element.End(), false};
        EXPECT_EQ(BerReadInteger(reader), c.value);
        EXPECT_EQ(reader.failed, !c.valid);
    }
}

TEST(BerReader, SubIdentifiers) {
    const struct {
        const char* contents;
        std::vector<uint32_t> ids; // empty: refused
        uint32_t capacity = 4;
    } cases[] = {
        {"00", {0, 0}},
        {"77", {2, 39}},
        {"FF", {6, 15}},
        {"2B 7F 81 00", {1, 3, 127, 128}},
        {"2B 8F FF FF FF 7F 00", {1, 3, 4294967295, 0}},
        {"2B 80 80 01", {1, 3, 1}},
        {"2B 06 01", {1, 3, 6, 1}},
        {"2B", {1, 3}, 2},
        {"", {}},
        {"2B 06 01 02", {}},
        {"2B 06", {}, 2},
        {"2B", {}, 1},
        {"2B 81", {}},
        {"2B 06 80", {}},
        {"2B 90 80 80 80 00", {}},
        {"2B 81 80 80 80 80 80 80 80 80 80 05", {}}, // 5 when cut to 64 bits
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
