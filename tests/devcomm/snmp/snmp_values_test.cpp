// Values, names and their memory, and whole replies from their first byte to the stored value.
#include "devcomm/snmp/snmp_message.h"
#include "devcomm/snmp/snmp_values.h"
#include "support/octets.h"

#include <climits>
#include <cstring>
#include <gtest/gtest.h>

namespace {

using SubIdentifiers = std::vector<UINT>;

SubIdentifiers SubIdentifiersOf(const AsnObjectIdentifier& oid) {
    return SubIdentifiers(oid.ids, oid.ids + oid.idLength);
}

// Whether the datagram is a reply; its value is then in `value`.
bool Read(const Octets& datagram, AsnAny& value) {
    const ExactBlock block(datagram);
    SnmpReply reply;
    SnmpResult result;
    return SnmpReadReply(block.Start(), block.count, reply) && SnmpReadResult(reply, nullptr, nullptr, result)
           && SnmpDecodeValue(result.valueType, result.value, value);
}

struct Value {
    Value() {
        memset(&varBind, 0xEE, sizeof(varBind)); // no value that is read
        varBind.name = {};
    }
    bool Read(const char* valueElement) {
        ReplyParts parts;
        parts.value = Hex(valueElement);
        return ::Read(parts.Message(), varBind.value);
    }
    // Twice, which makes no difference.
    void Free() {
        for (int i = 0; i < 2; ++i) {
            ClientVarBindFree(&varBind);
            EXPECT_EQ(value.asnType, 0x05);
        }
    }

    SnmpVarBind varBind;
    AsnAny& value = varBind.value;
};

TEST(SnmpValues, NumbersHaveTheirTypeAnd32Bits) {
    const std::pair<const char*, int32_t> cases[] = {
        {"02 01 FF", -1}, {"41 02 00 80", 128}, {"42 05 00 FF FF FF FF", -1}, {"43 04 7F FF FF FF", INT_MAX}};
    for (const auto& [element, number] : cases) {
        Value read;
        ASSERT_TRUE(read.Read(element)) << element;
        EXPECT_EQ(read.value.asnType, Hex(element)[0]);
        EXPECT_EQ(read.value.asnValue.number, number) << element;
        read.Free();
    }
}

TEST(SnmpValues, OctetsAreCopiedAndFreed) {
    for (const char* element : {"04 03 61 00 FF", "30 03 02 01 05", "40 04 C0 00 02 07", "44 01 00", "04 00"}) {
        SCOPED_TRACE(element);
        Value read;
        ASSERT_TRUE(read.Read(element)); // the datagram is gone now
        const AsnOctetString& text = read.value.asnValue.string;
        const Octets whole = Hex(element);
        EXPECT_TRUE(text.stream != nullptr && text.dynamic == 1 && read.value.asnType == whole[0]);
        EXPECT_EQ(Octets(text.stream, text.stream + text.length), Octets(whole.begin() + 2, whole.end()));
        read.Free();
        EXPECT_TRUE(text.stream == nullptr && text.length == 0 && text.dynamic == 0);
    }
}

TEST(SnmpValues, ObjectIdentifiersAreCopiedAndNullHasNoOctets) {
    Value read;
    ASSERT_TRUE(read.Read("06 0A 2B 06 01 04 01 82 F6 29 81 00")); // 2*16384 + 0x76*128 + 0x29
    EXPECT_EQ(read.value.asnType, 0x06);
    EXPECT_EQ(SubIdentifiersOf(read.value.asnValue.object), SubIdentifiers({1, 3, 6, 1, 4, 1, 47913, 128}));
    read.Free();
    EXPECT_TRUE(read.value.asnValue.object.ids == nullptr && read.value.asnValue.object.idLength == 0);

    ASSERT_TRUE(read.Read("05 00"));
    EXPECT_TRUE(read.value.asnValue.string.length == 0 && read.value.asnValue.string.dynamic == 1);
    read.Free();
}

// 0x80 to 0x82 say in later versions why there is no value.
TEST(SnmpValues, OtherTypesAndMalformedContentsAreRefusedAndNothingIsStored) {
    const auto refuses = [](const Octets& element) {
        ReplyParts parts;
        parts.value = element;
        AsnAny value;
        memset(&value, 0xEE, sizeof(value));
        const AsnAny before = value;
        SetLastError(0);
        EXPECT_FALSE(Read(parts.Message(), value)) << testing::PrintToString(element);
        EXPECT_EQ(memcmp(&value, &before, sizeof(value)), 0);
        return GetLastError();
    };
    const Octets known = Hex("02 41 42 43 04 30 40 44 06 05");
    for (unsigned tag = 0; tag < 256; ++tag)
        if (memchr(known.data(), static_cast<int>(tag), known.size()) == nullptr) {
            EXPECT_EQ(refuses(Element(static_cast<uint8_t>(tag), {Hex("2A")})), 11u) << tag;
        }
    for (const Octets& element : {Hex("02 00"), Hex("41 05 01 00 00 00 00"), Hex("06 00"), Hex("06 02 2B 81"),
                                  Element(0x06, {Hex("2B"), Octets(127, 7)})}) // more than is held at once
        EXPECT_EQ(refuses(element), 11u);
}

// Every element has its place. A datagram with an element missing, with another tag, or empty where it must
// not be, is no reply, even if all lengths are right.
TEST(SnmpReply, IncompleteRepliesAreRefused) {
    AsnAny value;
    const ReplyParts sound;
    const auto refuses = [&value](const Octets& datagram) {
        EXPECT_FALSE(Read(datagram, value)) << testing::PrintToString(datagram);
    };
    for (const size_t tag : Octets{0, 2, 5, 13, 15, 19, 22, 25, 27, 29, 34}) // by offset
        for (const uint8_t change : Hex("80 02")) {
            Octets other = sound.Message();
            other[tag] = static_cast<uint8_t>(other[tag] ^ change);
            refuses(other);
        }
    for (const auto part : {&ReplyParts::community, &ReplyParts::requestId, &ReplyParts::status, &ReplyParts::index,
                            &ReplyParts::name, &ReplyParts::value})
        for (const char* element : {"", "02 00", "02 05 01 00 00 00 00"}) {
            ReplyParts broken;
            broken.*part = Hex(element);
            refuses(broken.Message());
        }
    const Octets ids = Join({sound.requestId, sound.status, sound.index});
    const Octets varBind = Element(0x30, {sound.name, sound.value});
    for (const Octets& pdu : {Octets(), ids, Join({ids, Hex("30 00")}), Join({ids, Hex("30 02 30 00"), varBind})})
        refuses(Element(0x30, {sound.version, sound.community, Element(0xA2, {pdu})}));
    refuses(Hex("30 00"));
}

TEST(SnmpReply, VersionNameLengthFormsAndWhatFollowsAreIgnored) {
    AsnAny value;
    for (const char* version : {"02 01 01", "02 00", "02 09 01 02 03 04 05 06 07 08 09"}) {
        ReplyParts parts;
        parts.version = Hex(version);
        parts.name = Hex("06 00");
        ASSERT_TRUE(Read(Join({parts.Message(), Hex("00 FF")}), value)) << version;
        EXPECT_EQ(value.asnValue.number, 42);
    }
    // Long forms of lengths, and bytes after the first varbind and after the list.
    const char* const longForms = "30 84 00 00 00 39 02 84 00 00 00 01 00 04 82 00 01 61 A2 83 00 00 28"
                                  " 02 82 00 02 01 01 02 81 01 00 02 81 01 00 30 82 00 16 30 81 11"
                                  " 06 84 00 00 00 01 2B 02 84 00 00 00 02 01 00 FF FF 05 00";
    ASSERT_TRUE(Read(Hex(longForms), value));
    EXPECT_EQ(value.asnValue.number, 256);
}

TEST(SnmpValues, AListIsFreedWithWhatWasAllocatedForIt) {
    auto* varBinds = static_cast<SnmpVarBind*>(ClientMemAlloc(3 * sizeof(SnmpVarBind)));
    const auto* octets = reinterpret_cast<BYTE*>(varBinds);
    EXPECT_EQ(Octets(octets, octets + 3 * sizeof(SnmpVarBind)), Octets(3 * sizeof(SnmpVarBind)));
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(ClientStrToOid("1.3.6", &varBinds[i].name));
    BYTE callers[] = {1, 2, 3};
    varBinds[0].value.asnType = 0x04;
    varBinds[0].value.asnValue.string = {callers, 3, FALSE}; // not allocated for the value: not freed
    varBinds[1].value.asnType = 0x06;
    ASSERT_TRUE(ClientStrToOid("1.3.7", &varBinds[1].value.asnValue.object));
    varBinds[2].value = {0x02, {-1}};

    ClientVarBindFree(&varBinds[0]);
    EXPECT_TRUE(varBinds[0].value.asnType == 0x05 && varBinds[0].value.asnValue.string.stream == nullptr);
    EXPECT_TRUE(varBinds[0].name.ids == nullptr && varBinds[0].name.idLength == 0);
    SnmpVarBindList list = {varBinds, 3}, unallocated = {nullptr, 7};
    ClientVarBindListFree(&list);
    EXPECT_TRUE(list.list == nullptr && list.len == 0);
    ClientVarBindListFree(&unallocated);
    EXPECT_EQ(unallocated.len, 7u);
    ClientMemFree(nullptr);
}

// Which texts are accepted, and the sub-identifiers of each, are compared by the fuzz target of OID texts.
TEST(SnmpTextToOid, StoresAnOidOrNothing) {
    const std::pair<const char*, SubIdentifiers> cases[] = {
        {".1.3.6.1.2.1", {1, 3, 6, 1, 2, 1}}, {"..39.000004294967295.", {0, 39, 4294967295, 0}}, {"1.3.6a", {}}};
    for (const auto& [given, ids] : cases) {
        SCOPED_TRACE(given);
        const ExactBlock text(Octets(given, given + strlen(given) + 1));
        AsnObjectIdentifier oid = {9, reinterpret_cast<UINT*>(1)}; // not freed
        SetLastError(777);
        EXPECT_EQ(ClientStrToOid(reinterpret_cast<const char*>(text.Start()), &oid), ids.empty() ? 0 : 1);
        EXPECT_EQ(GetLastError(), 777u);
        EXPECT_EQ(SubIdentifiersOf(oid), ids);
        EXPECT_EQ(oid.ids == nullptr, ids.empty());
        ClientOidFree(&oid);
    }
}

} // namespace
