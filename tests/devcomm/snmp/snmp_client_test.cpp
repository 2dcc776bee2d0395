// Host only: sessions and requests of the built-in client on a simulated network.
#include "devcomm/snmp/snmp_client.h"
#include "devcomm/snmp/snmp_values.h"
#include "support/octets.h"
#include "win32_control.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using win32::Datagram;
using Datagrams = std::vector<Datagram>;

constexpr DWORD kErrorBefore = 777; // a last error that no function sets
constexpr AsnInteger32 kNothing = 0x5A5A5A5A;

const Octets kSmallest = Hex("30 21 02 01 00 04 00 A0 1A 02 02 01 01 02 01 00 02 01 00 30 0E 30 0C 06 08 2B"
                             " 06 01 02 01 01 02 00 05 00");

win32::Wire Answering(const Datagrams& replies) {
    win32::Wire wire;
    wire.answer = [replies](const Datagram&) { return replies; };
    return wire;
}

// The answer to the n-th sending, and to no other.
win32::Wire AnsweringAt(unsigned sending, const Datagram& reply) {
    win32::Wire wire;
    wire.answer = [sending, reply, sendings = 0u](const Datagram&) mutable {
        return ++sendings == sending ? Datagrams{reply} : Datagrams{};
    };
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

    bool Request(BYTE type = SNMP_PDU_GET) {
        SetLastError(kErrorBefore);
        return ClientRequest(session, type, &list, &status, &index) != 0;
    }

    // The last error of a request that fails and leaves the list as it was.
    DWORD Failure() {
        const std::string before = Image();
        const int blocksBefore = win32::Count().localBlocks;
        EXPECT_FALSE(Request());
        EXPECT_EQ(Image(), before);
        EXPECT_EQ(win32::Count().localBlocks, blocksBefore);
        return GetLastError();
    }

    // The caller's list.
    std::string Image() const {
        std::string image(reinterpret_cast<const char*>(list.list), list.len * sizeof(SnmpVarBind));
        image.append(reinterpret_cast<const char*>(list.list[0].name.ids), list.list[0].name.idLength * 4);
        image.append(reinterpret_cast<const char*>(&list), sizeof(list));
        return image;
    }

    ExactBlock community;
    SnmpSession session;
    SnmpVarBindList list;
    AsnInteger32 status = kNothing;
    AsnInteger32 index = kNothing;
};

ReplyParts To(const char* requestId) {
    ReplyParts reply;
    reply.requestId = Hex(requestId);
    return reply;
}
const Octets kReply = ReplyParts().Message();
const Octets kStale = To("02 02 01 00").Message();

TEST(SnmpOpen, AddressPortAndLimit) {
    const struct {
        const char* agent;
        uint32_t address; // network order, read as little-endian
    } cases[] = {
        {"192.0.2.7", 0x070200C0},
        {"printer", 0x0D0C0B0A},
        {"255.255.255.255", 0x0100007F}, // inet_addr reports it as an error
    };
    for (const auto& c : cases) {
        win32::Wire wire;
        wire.hosts = {{"printer", {0x0D0C0B0A, 0x01010101}}, {"255.255.255.255", {0x0100007F}}};
        win32::SetWire(wire);
        const SnmpSession session = ClientOpen(c.agent, "tovask", 2000, 3);
        ASSERT_NE(session, nullptr) << c.agent;
        const win32::WireRecord record = win32::ReadWire();
        EXPECT_EQ(record.address, c.address) << c.agent;
        EXPECT_EQ(record.port, 161);
        EXPECT_GT(record.receiveLimit, 0u);
        EXPECT_LE(record.receiveLimit, 10000u);
        EXPECT_EQ(record.sent.size(), 0u);
        EXPECT_EQ(win32::Count().sockets, 1);
        EXPECT_EQ(ClientClose(session), TRUE);
        EXPECT_EQ(win32::Count().sockets, 0);
        EXPECT_EQ(win32::Count().socketUses, 0);
    }
    EXPECT_EQ(ClientClose(nullptr), TRUE);
}

TEST(SnmpOpen, Failures) {
    const struct {
        const char* what;
        void (*prepare)(win32::Wire& wire);
        DWORD lastError;
        const char* agent = "192.0.2.7";
    } cases[] = {
        {"no memory", [](win32::Wire&) { win32::FailAllocations(1); }, 1},
        {"start-up", [](win32::Wire& wire) { wire.startupError = 10091; }, 10091},
        {"version 2.2", [](win32::Wire& wire) { wire.versionGranted = 0x0202; }, 30},
        {"version 1.2", [](win32::Wire& wire) { wire.versionGranted = 0x0201; }, 30},
        {"version 2.1", [](win32::Wire& wire) { wire.versionGranted = 0x0102; }, 30},
        {"socket", [](win32::Wire& wire) { wire.socketError = 10024; }, 10024},
        {"unknown name", [](win32::Wire&) {}, 11001, "nowhere"},
        {"empty name", [](win32::Wire&) {}, 11001, ""},
        {"name without address", [](win32::Wire& wire) { wire.hosts["bare"] = {}; }, 0, "bare"},
        {"connection", [](win32::Wire& wire) { wire.connectError = 10049; }, 10049},
        {"receive limit", [](win32::Wire& wire) { wire.optionError = 10042; }, 10042},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        win32::Reset();
        win32::LetReleasesSetLastError(0);
        win32::Wire wire;
        c.prepare(wire);
        win32::SetWire(wire);
        SetLastError(kErrorBefore);
        EXPECT_EQ(ClientOpen(c.agent, "tovask", 2000, 3), nullptr);
        EXPECT_EQ(GetLastError(), c.lastError);
        const win32::Counts left = win32::Count();
        EXPECT_EQ(left.localBlocks, 0);
        EXPECT_EQ(left.sockets, 0);
        EXPECT_EQ(left.socketUses, 0);
    }
}

TEST(SnmpRequest, SeveralVarBinds) {
    constexpr UINT kVarBinds = 64; // most of them as long as they can be
    Client client({}, "", kVarBinds);
    SnmpVarBind* varBinds = client.list.list;
    UINT name[] = {1, 3, 6, 1}, other[] = {2, 39, 128}, tooShort[] = {1}, wrong[] = {1, 40, 1}, longest[129] = {2, 39};
    std::fill(longest + 2, longest + 129, 7);
    ClientOidFree(&varBinds[0].name);
    varBinds[0].name = {4, name};
    varBinds[1].name = {3, other};
    varBinds[1].value.asnType = ASN_INTEGER; // sent with its name only
    varBinds[2].name = {1, tooShort};        // can't be encoded, is left out
    varBinds[3].name = {3, wrong};
    varBinds[3].value.asnType = ASN_OCTETSTRING;
    varBinds[3].value.asnValue.string = {};
    Octets list = Hex("30 07 06 03 2B 06 01 05 00 30 05 06 03 77 81 00 30 02 05 00 30 00");
    for (UINT i = 4; i < kVarBinds; ++i) {
        varBinds[i].name = {129, longest};
        list = Join({list, Hex("30 82 00 86 06 82 00 80 77"), Octets(127, 7), Hex("05 00")});
    }
    EXPECT_FALSE(client.Request(0xA1));
    const Octets pdu = Element(0xA1, {Hex("02 02 01 01 02 01 00 02 01 00"), Element(0x30, {list})});
    EXPECT_EQ(win32::ReadWire().sent.at(0), Element(0x30, {Hex("02 01 00 04 00"), pdu}));
    for (UINT i = 0; i < kVarBinds; ++i)
        varBinds[i].name = {};
}

TEST(SnmpRequest, Communities) {
    const struct {
        size_t length;
        const char* header;
    } cases[] = {
        {6, "04 06"},
        {128, "04 82 00 80"},
        {70000, "04 83 01 11 70"},
    };
    const Octets rest(kSmallest.begin() + 7, kSmallest.end());
    for (const auto& c : cases) {
        const std::string community(c.length, '\xE4');
        Client client({}, community);
        EXPECT_EQ(client.Failure(), 4102u);
        const Octets expected = Element(0x30, {Hex("02 01 00"), Hex(c.header), Characters(community), rest});
        EXPECT_TRUE(win32::ReadWire().sent.at(0) == expected) << c.length;
    }
}

TEST(SnmpRequest, IdsOfALongSession) {
    Client client(Answering({{0}}));
    for (unsigned id = 257; id < 0x8000; ++id)
        ASSERT_FALSE(client.Request());
    const Datagrams sent = win32::ReadWire().sent;
    const auto idOf = [&sent](size_t i) { return Octets(sent[i].begin() + 15, sent[i].begin() + 19); };
    EXPECT_EQ(idOf(0), Hex("02 02 01 01"));
    EXPECT_EQ(idOf(1), Hex("02 02 01 02"));
    ASSERT_EQ(sent.size(), 0x7FFFu - 256);
    EXPECT_EQ(idOf(sent.size() - 1), Hex("02 02 7F FF"));

    win32::SetWire(Answering({To("02 02 80 00").Message(), To("02 03 00 80 00").Message()}));
    EXPECT_TRUE(client.Request());
    EXPECT_EQ(win32::ReadWire().receives, 2u) << "the first has the id -32768";
    const Datagram last = win32::ReadWire().sent.at(0);
    EXPECT_EQ(Octets(last.begin() + 13, last.begin() + 20), Hex("A0 1B 02 03 00 80 00"));
}

TEST(SnmpRequest, IsSentFiveTimesUntilAnAnswerComes) {
    for (unsigned sending = 1; sending <= 6; ++sending) {
        Client client(AnsweringAt(sending, kReply), "");
        const bool isAnswered = sending <= 5;
        if (isAnswered) {
            EXPECT_TRUE(client.Request());
        } else {
            EXPECT_EQ(client.Failure(), 4102u);
        }
        const win32::WireRecord record = win32::ReadWire();
        EXPECT_EQ(record.sent, Datagrams(std::min(sending, 5u), kSmallest));
        EXPECT_EQ(record.polls, isAnswered ? (sending - 1) * 10000 + 1 : 50000);
        EXPECT_EQ(record.receives, isAnswered ? 1u : 0u);
    }
}

TEST(SnmpRequest, SendFails) {
    for (const unsigned sending : {1u, 5u}) {
        win32::Wire wire;
        wire.failingSend = sending;
        Client client(wire);
        EXPECT_EQ(client.Failure(), 0xFFFFFFFFu);
        EXPECT_EQ(win32::ReadWire().polls, (sending - 1) * 10000);
    }
}

TEST(SnmpReceive, ValueStatusAndIndexAreStored) {
    ReplyParts reply;
    reply.status = Hex("02 01 02");
    reply.index = Hex("02 02 FF 7F");
    for (const bool withStatus : {false, true})
        for (const bool withIndex : {false, true}) {
            Client client(Answering({reply.Message()}));
            EXPECT_NE(ClientRequest(client.session, SNMP_PDU_GET, &client.list, withStatus ? &client.status : nullptr,
                                    withIndex ? &client.index : nullptr),
                      0);
            EXPECT_EQ(client.status, withStatus ? 2 : kNothing);
            EXPECT_EQ(client.index, withIndex ? -129 : kNothing);
            EXPECT_EQ(client.list.list[0].value.asnType, ASN_INTEGER);
            EXPECT_EQ(client.list.list[0].value.asnValue.number, 42);
        }
}

// The first varbind alone is stored, and of it nothing but the value.
TEST(SnmpReceive, SeveralVarBinds) {
    ReplyParts reply;
    reply.value = Element(0x04, {Hex("61 62")});
    const Octets second = Element(0x30, {Hex("06 01 2B"), Hex("02 01 07")});
    const Octets varBinds = Element(0x30, {Element(0x30, {reply.name, reply.value}), second});
    const Octets pdu = Element(0xA2, {reply.requestId, reply.status, reply.index, varBinds});
    Client client(Answering({Element(0x30, {reply.version, reply.community, pdu})}), "tovask", 2);
    ASSERT_TRUE(client.Request());
    EXPECT_EQ(GetLastError(), kErrorBefore);
    const AsnOctetString& text = client.list.list[0].value.asnValue.string;
    EXPECT_EQ(Octets(text.stream, text.stream + text.length), Hex("61 62"));
    const UINT asked[] = {1, 3, 6, 1, 2, 1, 1, 2, 0};
    EXPECT_EQ(memcmp(client.list.list[0].name.ids, asked, sizeof(asked)), 0);
    EXPECT_EQ(client.list.list[1].value.asnType, ASN_NULL);
    EXPECT_TRUE(client.list.list[1].name.ids == nullptr);
}

// Of a stale reply nothing after the request-id is read; what comes before it is. The five datagrams that are
// received at most need one poll.
TEST(SnmpReceive, StaleReplies) {
    ReplyParts stale = To("02 02 01 00"), foreign = stale, nameless = stale;
    stale.status = Hex("FF FF FF");
    foreign.community = Hex("04 01 78");
    nameless.version = {};
    Datagrams four(4, kStale), five(5, kStale);
    four.push_back(kReply);
    five.push_back(kReply);
    const struct {
        Datagrams replies;
        unsigned receives;
        bool succeeds;
        DWORD lastError;
    } cases[] = {
        {four, 5, true, kErrorBefore},
        {five, 5, false, 3},
        {{stale.Message(), kReply}, 2, true, kErrorBefore},
        {{foreign.Message(), kReply}, 2, true, 5},
        {{nameless.Message(), kReply}, 1, false, 11},
        {{kStale, {}, kReply}, 2, false, 11}, // empty, with the stale one still in the buffer
        {{kStale}, 2, false, 0xFFFFFFFF},     // and then nothing
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        Client client(Answering(c.replies));
        if (c.succeeds) {
            EXPECT_TRUE(client.Request());
            EXPECT_EQ(GetLastError(), c.lastError);
        } else {
            EXPECT_EQ(client.Failure(), c.lastError);
        }
        const win32::WireRecord record = win32::ReadWire();
        EXPECT_EQ(record.receives, c.receives);
        EXPECT_TRUE(record.sent.size() == 1 && record.polls == 1);
    }
}

TEST(SnmpReceive, CommunityIsComparedOverTheReplysLength) {
    const struct {
        const char* session;
        std::string reply;
        bool same;
    } cases[] = {
        {"tovask", "tovask", true},
        {"tovask", "", true},
        {"tovask", "tov", true},
        {"tovask", "tovasK", false},
        {"tovask", "tovaskx", false},
        {"tovask", std::string("tovask\0", 7), true},
        {"tovask", std::string("tovask\0x", 8), false},
        {"", "", true},
        {"", std::string(300, '\0'), false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.reply);
        ReplyParts reply;
        reply.community = Element(0x04, {Characters(c.reply)});
        Client client(Answering({reply.Message()}), c.session);
        EXPECT_TRUE(client.Request());
        EXPECT_EQ(GetLastError(), c.same ? kErrorBefore : 5u);
        EXPECT_EQ(client.list.list[0].value.asnValue.number, 42);
    }
}

// Only error-status and error-index are stored: they come before what is malformed.
TEST(SnmpReceive, MalformedRepliesLeaveTheList) {
    for (const char* value : {"80 00", "02 00", "06 02 2B 81", "04 05 61"}) {
        ReplyParts malformed;
        malformed.status = Hex("02 01 05");
        malformed.value = Hex(value);
        Client client(Answering({malformed.Message(), kReply}));
        EXPECT_EQ(client.Failure(), 11u) << value;
        EXPECT_EQ(client.status, 5);
        EXPECT_EQ(win32::ReadWire().receives, 1u) << "ends the request";
    }
}

// The receive buffer still has the datagram before, which is as long as a whole reply. It must not complete one
// that is cut short.
TEST(SnmpReceive, EndsWithItsDatagramNotWithTheBuffer) {
    for (size_t count = 0; count < kReply.size(); ++count) {
        Client client(Answering({kStale, Octets(kReply.begin(), kReply.begin() + static_cast<long>(count))}));
        EXPECT_EQ(client.Failure(), 11u) << count;
        win32::SetWire(Answering({To("02 02 01 02").Message()}));
        EXPECT_TRUE(client.Request()) << "the session can still be used";
    }
}

TEST(SnmpReceive, DatagramsOfTheLargestSize) {
    ReplyParts reply;
    reply.value = Element(0x04, {Octets(4000, 'x')});
    const size_t around = reply.Message().size() - 4000;
    for (const size_t size : {size_t{4095}, size_t{4096}, size_t{4097}, size_t{60000}}) {
        reply.value = Element(0x04, {Octets(size - around, 'x')});
        ASSERT_EQ(reply.Message().size(), size);
        Client client(Answering({reply.Message()}));
        if (size <= 4096) {
            EXPECT_TRUE(client.Request());
            EXPECT_EQ(client.list.list[0].value.asnValue.string.length, size - around);
        } else {
            EXPECT_EQ(client.Failure(), 0xFFFFFFFFu);
        }
    }
}

TEST(SnmpReceive, WithoutMemory) {
    for (const char* value : {"04 02 61 62", "04 00", "06 02 2B 01"}) {
        ReplyParts reply;
        reply.value = Hex(value);
        for (const unsigned failing : {1u, 2u}) {
            Client client(Answering({reply.Message()}));
            win32::FailAllocations(failing);
            EXPECT_EQ(client.Failure(), DWORD{ERROR_NOT_ENOUGH_MEMORY});
            EXPECT_EQ(win32::ReadWire().sent.size(), failing - 1) << "the message, then the value";
            win32::SetWire(Answering({To("02 02 01 02").Message()}));
            EXPECT_TRUE(client.Request());
        }
    }
    AsnObjectIdentifier oid;
    win32::FailAllocations(1);
    SetLastError(kErrorBefore);
    EXPECT_FALSE(ClientStrToOid("1.3", &oid));
    EXPECT_TRUE(oid.ids == nullptr);
    EXPECT_EQ(oid.idLength, 0u);
    EXPECT_EQ(GetLastError(), kErrorBefore);
}

} // namespace
