// Host only: sessions and requests of the built-in client on a simulated network.
#include "devcomm/snmp/snmp_client.h"
#include "devcomm/snmp/snmp_values.h"
#include "support/octets.h"
#include "win32_control.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>

namespace {

using win32::Datagram;
using Datagrams = std::vector<Datagram>;

constexpr DWORD kErrorBefore = 777; // a last error that no function sets
constexpr AsnInteger32 kNothing = 0x5A5A5A5A;

const Octets kSmallest = Hex("30 21 02 01 00 04 00 A0 1A 02 02 01 01 02 01 00 02 01 00 30 0E 30 0C 06 08"
                             " 2B 06 01 02 01 01 02 00 05 00");

// Answers the n-th sending and those after it.
win32::Wire Answering(const Datagrams& replies, unsigned sending = 1) {
    win32::Wire wire;
    wire.answer = [=, sendings = 0u](const Datagram&) mutable { return ++sendings < sending ? Datagrams{} : replies; };
    return wire;
}

// A session with a community in a block that ends with its terminator, and a list to ask with.
struct Client {
    explicit Client(const win32::Wire& wire, const std::string& name = "tovask", UINT varBinds = 1)
        : community(Join({Characters(name), {0}})) {
        win32::SetWire(wire);
        win32::LetReleasesSetLastError(0);
        session = ClientOpen("192.0.2.7", reinterpret_cast<const char*>(community.Start()), 2000, 3);
        EXPECT_NE(session, nullptr);
        list = {static_cast<SnmpVarBind*>(ClientMemAlloc(static_cast<UINT>(varBinds * sizeof(SnmpVarBind)))), varBinds};
        for (UINT i = 0; i < varBinds; ++i)
            list.list[i].value.asnType = ASN_NULL;
        EXPECT_TRUE(ClientStrToOid(".1.3.6.1.2.1.1.2.0", &list.list[0].name));
    }
    ~Client() {
        ClientVarBindListFree(&list);
        SetLastError(kErrorBefore);
        EXPECT_EQ(ClientClose(session), TRUE);
        EXPECT_EQ(GetLastError(), kErrorBefore) << "a caller then sees why the request failed";
    }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    // A request that fails leaves the list as it was.
    void Expect(bool succeeds, DWORD lastError, BYTE type = SNMP_PDU_GET) {
        const std::string before = Image();
        const int blocksBefore = win32::Count().localBlocks;
        SetLastError(kErrorBefore);
        EXPECT_EQ(ClientRequest(session, type, &list, &status, &index) != 0, succeeds);
        EXPECT_EQ(GetLastError(), lastError);
        EXPECT_TRUE(succeeds || (Image() == before && win32::Count().localBlocks == blocksBefore));
    }
    void ExpectSuccess() { Expect(true, kErrorBefore); }

    std::string Image() const {
        std::string image(reinterpret_cast<const char*>(list.list), list.len * sizeof(SnmpVarBind));
        image.append(reinterpret_cast<const char*>(list.list[0].name.ids), list.list[0].name.idLength * 4);
        return image.append(reinterpret_cast<const char*>(&list), sizeof(list));
    }
    const AsnAny& Value() const { return list.list[0].value; }

    ExactBlock community;
    SnmpSession session;
    SnmpVarBindList list;
    AsnInteger32 status = kNothing, index = kNothing;
};

ReplyParts To(const char* requestId) {
    ReplyParts reply;
    reply.requestId = Hex(requestId);
    return reply;
}
const Octets kReply = ReplyParts().Message();
const Octets kStale = To("02 02 01 00").Message();

TEST(SnmpOpen, ConnectsToTheAgentsPortWithAReceiveLimit) {
    // Addresses in network order, read as little-endian. inet_addr reports the last as an error.
    const std::pair<const char*, uint32_t> cases[] = {
        {"192.0.2.7", 0x070200C0}, {"printer", 0x0D0C0B0A}, {"255.255.255.255", 0x0100007F}};
    for (const auto& [agent, address] : cases) {
        win32::Wire wire;
        wire.hosts = {{"printer", {0x0D0C0B0A, 0x01010101}}, {"255.255.255.255", {0x0100007F}}};
        win32::SetWire(wire);
        const SnmpSession session = ClientOpen(agent, "tovask", 2000, 3);
        ASSERT_NE(session, nullptr) << agent;
        const win32::WireRecord record = win32::ReadWire();
        EXPECT_EQ(record.address, address) << agent;
        EXPECT_EQ(record.port, 161);
        EXPECT_TRUE(record.receiveLimit > 0 && record.receiveLimit <= 10000) << record.receiveLimit;
        EXPECT_TRUE(record.sent.empty() && win32::Count().sockets == 1);
        EXPECT_EQ(ClientClose(session), TRUE);
    }
    EXPECT_EQ(ClientClose(nullptr), TRUE);
}

TEST(SnmpOpen, AStepThatFailsSetsItsErrorAndLeavesNothing) {
    // clang-format off
    const struct { void (*prepare)(win32::Wire& wire); DWORD lastError; const char* agent = "192.0.2.7"; } cases[] = {
        {[](win32::Wire&) { win32::FailAllocations(1); }, 1},
        {[](win32::Wire& wire) { wire.startupError = 10091; }, 10091},
        {[](win32::Wire& wire) { wire.versionGranted = 0x0201; }, 30}, // 1.2
        {[](win32::Wire& wire) { wire.versionGranted = 0x0102; }, 30}, // 2.1
        {[](win32::Wire& wire) { wire.socketError = 10024; }, 10024},
        {[](win32::Wire&) {}, 11001, "nowhere"},
        {[](win32::Wire& wire) { wire.hosts["bare"] = {}; }, 0, "bare"}, // a name without address
        {[](win32::Wire& wire) { wire.connectError = 10049; }, 10049},
        {[](win32::Wire& wire) { wire.optionError = 10042; }, 10042},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        win32::Reset();
        win32::LetReleasesSetLastError(0);
        win32::Wire wire;
        c.prepare(wire);
        win32::SetWire(wire);
        SetLastError(kErrorBefore);
        EXPECT_EQ(ClientOpen(c.agent, "tovask", 2000, 3), nullptr);
        EXPECT_EQ(GetLastError(), c.lastError);
        const win32::Counts left = win32::Count();
        EXPECT_TRUE(left.localBlocks == 0 && left.sockets == 0 && left.socketUses == 0);
    }
}

TEST(SnmpRequest, SendsTheNameOfEachVarBindAndNullWhereItsTypeIsNull) {
    Client client({}, "", 5);
    SnmpVarBind* varBinds = client.list.list;
    ClientOidFree(&varBinds[0].name);
    UINT single[] = {1}, beyond[] = {1, 40, 1}; // can't be encoded, are left out
    varBinds[2].name = {1, single};
    varBinds[3].name = {3, beyond};
    varBinds[1].value.asnType = ASN_INTEGER;
    varBinds[3].value.asnType = ASN_OCTETSTRING;
    const std::pair<int, const char*> names[] = {{0, "1.3.6.1"}, {1, "2.39.128"}, {4, "0.0"}};
    for (const auto& [i, name] : names)
        ASSERT_TRUE(ClientStrToOid(name, &varBinds[i].name));
    client.Expect(false, 4102, 0xA1);
    EXPECT_EQ(win32::ReadWire().sent.at(0), Hex("30 30 02 01 00 04 00 A1 29 02 02 01 01 02 01 00 02 01 00 30 1D"
                                                " 30 07 06 03 2B 06 01 05 00 30 05 06 03 77 81 00 30 02 05 00"
                                                " 30 00 30 05 06 01 00 05 00"));
    varBinds[2].name = varBinds[3].name = {};
}

TEST(SnmpRequest, HasRoomForManyVarBindsOfTheLongestNames) {
    constexpr UINT kVarBinds = 20;
    Client client({}, "", kVarBinds);
    ClientOidFree(&client.list.list[0].name);
    UINT ids[129] = {2, 39};
    std::fill(ids + 2, ids + 129, 7);
    Octets varBinds;
    for (UINT i = 0; i < kVarBinds; ++i) {
        client.list.list[i].name = {129, ids};
        varBinds = Join({varBinds, Hex("30 82 00 86 06 82 00 80 77"), Octets(127, 7), Hex("05 00")});
    }
    client.Expect(false, 4102);
    const Octets pdu = Element(0xA0, {Hex("02 02 01 01 02 01 00 02 01 00"), Element(0x30, {varBinds})});
    EXPECT_EQ(win32::ReadWire().sent.at(0), Element(0x30, {Hex("02 01 00 04 00"), pdu}));
    for (UINT i = 0; i < kVarBinds; ++i)
        client.list.list[i].name = {};
}

// The community is the caller's: it may change after the session is opened.
TEST(SnmpRequest, SendsTheCommunityThatTheCallerHasNow) {
    const std::pair<size_t, const char*> cases[] = {{6, "04 06"}, {128, "04 82 00 80"}, {70000, "04 83 01 11 70"}};
    for (const auto& [length, header] : cases) {
        Client client({}, std::string(length, 'a'));
        memset(client.community.block.get(), 0xE4, length);
        client.Expect(false, 4102);
        const Octets rest(kSmallest.begin() + 7, kSmallest.end());
        const Octets expected = Element(0x30, {Hex("02 01 00"), Hex(header), Octets(length, 0xE4), rest});
        EXPECT_TRUE(win32::ReadWire().sent.at(0) == expected) << length;
    }
}

TEST(SnmpRequest, CountsItsIdsFrom257PastTwoBytes) {
    Client client(Answering({{0}}));
    for (unsigned id = 257; id < 0x8000; ++id)
        client.Expect(false, 11);
    const Datagrams sent = win32::ReadWire().sent;
    ASSERT_EQ(sent.size(), 0x7FFFu - 256);
    const std::pair<size_t, const char*> ids[] = {
        {0, "02 02 01 01"}, {1, "02 02 01 02"}, {sent.size() - 1, "02 02 7F FF"}};
    for (const auto& [i, id] : ids)
        EXPECT_EQ(Octets(sent[i].begin() + 15, sent[i].begin() + 19), Hex(id));

    win32::SetWire(Answering({To("02 02 80 00").Message(), To("02 03 00 80 00").Message()}));
    client.ExpectSuccess();
    EXPECT_EQ(win32::ReadWire().receives, 2u) << "the first has the id -32768";
    const Datagram last = win32::ReadWire().sent.at(0);
    EXPECT_EQ(Octets(last.begin() + 13, last.begin() + 20), Hex("A0 1B 02 03 00 80 00"));
}

TEST(SnmpRequest, IsSentFiveTimesUntilAnAnswerComes) {
    for (unsigned sending = 1; sending <= 6; ++sending) {
        Client client(Answering({kReply}, sending), "");
        const bool isAnswered = sending <= 5;
        client.Expect(isAnswered, isAnswered ? 5 : 4102); // the reply has another community
        const win32::WireRecord record = win32::ReadWire();
        EXPECT_EQ(record.sent, Datagrams(std::min(sending, 5u), kSmallest));
        EXPECT_EQ(record.polls, isAnswered ? (sending - 1) * 10000 + 1 : 50000);
        EXPECT_EQ(record.receives, isAnswered ? 1u : 0u);
    }
}

TEST(SnmpRequest, FailsWithTheFirstSendThatFails) {
    for (const unsigned sending : {1u, 5u}) {
        win32::Wire wire;
        wire.failingSend = sending;
        Client(wire).Expect(false, 0xFFFFFFFF);
        EXPECT_EQ(win32::ReadWire().polls, (sending - 1) * 10000);
    }
}

TEST(SnmpReceive, StatusAndIndexAreStoredWhereTheCallerWantsThem) {
    ReplyParts reply;
    reply.status = Hex("02 01 02");
    reply.index = Hex("02 02 FF 7F");
    for (int wanted = 0; wanted < 4; ++wanted) {
        Client client(Answering({reply.Message()}));
        EXPECT_TRUE(ClientRequest(client.session, SNMP_PDU_GET, &client.list, wanted & 1 ? &client.status : nullptr,
                                  wanted & 2 ? &client.index : nullptr));
        EXPECT_EQ(client.status, wanted & 1 ? 2 : kNothing);
        EXPECT_EQ(client.index, wanted & 2 ? -129 : kNothing);
        EXPECT_TRUE(client.Value().asnType == ASN_INTEGER && client.Value().asnValue.number == 42);
    }
}

TEST(SnmpReceive, OfSeveralVarBindsTheFirstValueAloneIsStored) {
    ReplyParts reply;
    const Octets varBinds = Hex("30 0B 06 01 2B 04 02 61 62 30 06 06 01 2B 02 01 07");
    const Octets pdu = Element(0xA2, {reply.requestId, reply.status, reply.index, Element(0x30, {varBinds})});
    Client client(Answering({Element(0x30, {reply.version, reply.community, pdu})}), "tovask", 2);
    client.ExpectSuccess();
    const AsnOctetString& text = client.Value().asnValue.string;
    EXPECT_EQ(Octets(text.stream, text.stream + text.length), Hex("61 62"));
    const UINT asked[] = {1, 3, 6, 1, 2, 1, 1, 2, 0};
    EXPECT_EQ(memcmp(client.list.list[0].name.ids, asked, sizeof(asked)), 0);
    EXPECT_TRUE(client.list.list[1].value.asnType == ASN_NULL && client.list.list[1].name.ids == nullptr);
}

// Of a stale reply nothing after the request-id is read; what comes before it is. The five datagrams that are
// received at most need one poll. A malformed reply ends the request; the status before what is wrong is stored.
TEST(SnmpReceive, StaleRepliesAreDroppedUpToTheFifthDatagramAndMalformedOnesEndTheRequest) {
    ReplyParts stale = To("02 02 01 00"), foreign = stale, nameless = stale, cut, noNumber;
    stale.status = Hex("FF FF FF");
    foreign.community = Hex("04 01 78");
    nameless.version = {};
    cut.status = noNumber.status = Hex("02 01 05");
    cut.value = Hex("04 05 61");
    noNumber.value = Hex("02 00");
    // clang-format off
    const struct {
        Datagrams replies; unsigned receives; DWORD lastError; bool succeeds = false; AsnInteger32 status = kNothing;
    } cases[] = {
        {{kStale, kStale, kStale, kStale, kReply}, 5, kErrorBefore, true, 0},
        {{kStale, kStale, kStale, kStale, kStale, kReply}, 5, 3},
        {{stale.Message(), kReply}, 2, kErrorBefore, true, 0},
        {{foreign.Message(), kReply}, 2, 5, true, 0},
        {{nameless.Message(), kReply}, 1, 11},
        {{cut.Message(), kReply}, 1, 11, false, 5},
        {{noNumber.Message(), kReply}, 1, 11, false, 5},
        {{kStale, {}, kReply}, 2, 11}, // empty, with the stale one still in the buffer
        {{kStale}, 2, 0xFFFFFFFF},     // and then nothing
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        Client client(Answering(c.replies));
        client.Expect(c.succeeds, c.lastError);
        EXPECT_EQ(client.status, c.status);
        const win32::WireRecord record = win32::ReadWire();
        EXPECT_EQ(record.receives, c.receives);
        EXPECT_TRUE(record.sent.size() == 1 && record.polls == 1);
    }
}

TEST(SnmpReceive, CommunityIsComparedOverTheReplysLength) {
    // clang-format off
    const struct { const char* session; std::string reply; bool same; } cases[] = {
        {"tovask", "", true}, {"tovask", "tov", true}, {"tovask", "tovasK", false}, {"tovask", "tovaskx", false},
        {"tovask", std::string("tovask\0", 7), true}, {"tovask", std::string("tovask\0x", 8), false},
        {"", "", true}, {"", std::string(300, '\0'), false},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.reply);
        ReplyParts reply;
        reply.community = Element(0x04, {Characters(c.reply)});
        Client client(Answering({reply.Message()}), c.session);
        client.Expect(true, c.same ? kErrorBefore : 5);
        EXPECT_EQ(client.Value().asnValue.number, 42);
    }
}

// The receive buffer still has the datagram before, which is as long as a whole reply. It must not complete one
// that is cut short.
TEST(SnmpReceive, EndsWithItsDatagramNotWithTheBuffer) {
    for (size_t count = 0; count < kReply.size(); ++count) {
        SCOPED_TRACE(count);
        Client client(Answering({kStale, Octets(kReply.begin(), kReply.begin() + static_cast<long>(count))}));
        client.Expect(false, 11);
    }
}

TEST(SnmpReceive, DatagramsBeyond4096BytesAreRefused) {
    ReplyParts reply;
    reply.value = Element(0x04, {Octets(4000, 'x')});
    const size_t around = reply.Message().size() - 4000;
    for (const size_t size : {size_t{4096}, size_t{4097}, size_t{60000}}) {
        reply.value = Element(0x04, {Octets(size - around, 'x')});
        ASSERT_EQ(reply.Message().size(), size);
        Client client(Answering({reply.Message()}));
        client.Expect(size == 4096, size == 4096 ? kErrorBefore : 0xFFFFFFFF);
        EXPECT_EQ(client.Value().asnValue.string.length, size == 4096 ? size - around : 0);
    }
}

TEST(SnmpReceive, WithoutMemoryTheRequestFailsAndTheNextSucceeds) {
    for (const char* value : {"04 02 61 62", "04 00", "06 02 2B 01"})
        for (const unsigned failing : {1u, 2u}) { // the message, then the value
            ReplyParts reply;
            reply.value = Hex(value);
            Client client(Answering({reply.Message()}));
            win32::FailAllocations(failing);
            client.Expect(false, ERROR_NOT_ENOUGH_MEMORY);
            EXPECT_EQ(win32::ReadWire().sent.size(), failing - 1);
            win32::SetWire(Answering({To("02 02 01 02").Message()}));
            client.ExpectSuccess();
        }
    AsnObjectIdentifier oid;
    win32::FailAllocations(1);
    SetLastError(kErrorBefore);
    EXPECT_FALSE(ClientStrToOid("1.3", &oid));
    EXPECT_TRUE(oid.ids == nullptr && oid.idLength == 0 && GetLastError() == kErrorBefore);
}

} // namespace
