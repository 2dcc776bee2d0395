// Datagrams that are no sound requests: nothing brings the agent down, and what is cut or foreign gets no
// answer.
#include "running_printer.h"

#include "simprinter/agent.h"

#include <gtest/gtest.h>

namespace {

Agent StorageAgent() {
    Agent agent;
    agent.objects[{1, 3, 6, 1, 2, 1, 25, 2, 3, 1, 5, 1}] = NumberValue(640);
    return agent;
}

Octets Changed(size_t position, uint8_t octet) {
    Octets octets = StorageRequest();
    octets.at(position) = octet;
    return octets;
}

TEST(Damage, WhatGetsNoAnswer) {
    std::vector<Octets> requests = {
        Changed(13, 0xA4),   // trap
        Changed(13, 0xA5),   // GetBulkRequest
        Changed(13, 0xA2),   // GetResponse
        Octets(65507, 0x30), // the largest datagram there is
        Changed(0, 0x31),    // no SEQUENCE
        Changed(1, 0x80),    // indefinite length
        Changed(1, 0x2A),    // longer than the datagram
        Changed(3, 0x00),    // version without octets
        Changed(4, 0x01),    // version 2c
        Changed(5, 0x02),    // community that is an INTEGER
        Changed(6, 0x30),    // community beyond the end
        Changed(12, 'c'),    // other community
        Changed(16, 0x05),   // request-id of five octets
        Changed(25, 0x12),   // variables beyond the end
        Changed(29, 0x0E),   // name beyond its variable
        Changed(40, 0x81),   // name ends within an arc
    };
    const Octets whole = StorageRequest();
    for (size_t size = 0; size < whole.size(); ++size)
        requests.emplace_back(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size));
    Agent agent = StorageAgent();
    for (const Octets& request : requests) {
        const Outcome outcome = HandleDatagram(agent, request);
        EXPECT_TRUE(outcome.datagrams.empty()) << testing::PrintToString(request) << outcome.log;
        EXPECT_NE(outcome.log.find("dropped"), std::string::npos) << outcome.log;
    }
}

TEST(Damage, EveryOctetByEveryOther) {
    Agent agent = StorageAgent();
    for (size_t i = 0; i < StorageRequest().size(); ++i)
        for (int octet = 0; octet < 256; ++octet)
            EXPECT_LE(HandleDatagram(agent, Changed(i, static_cast<uint8_t>(octet))).datagrams.size(), 1u);
    const Outcome outcome = HandleDatagram(agent, StorageRequest());
    ASSERT_EQ(outcome.datagrams.size(), 1u);
    EXPECT_EQ(outcome.datagrams[0].octets, StorageReply());
    EXPECT_EQ(outcome.log,
              "#17 GetRequest .1.3.6.1.2.1.25.2.3.1.5.1 -> .1.3.6.1.2.1.25.2.3.1.5.1 INTEGER 640");
}

TEST(Damage, EveryFaultWithEveryKindOfReply) {
    Octets none = StorageRequest(); // no variables
    none[1] = 0x18, none[14] = 0x0B, none[25] = 0;
    none.resize(26);
    const Octets requests[] = {none, StorageRequest(), Changed(35, 0x7E), Changed(13, 0xA1),
                               Changed(13, 0xA3)};
    for (const char* fault :
         {"silence", "loss=50", "delay=1", "duplicate", "stale=2", "wrong-community", "wrong-source",
          "wrong-address", "truncated", "truncated=9", "malformed", "error-status=5", "counter"}) {
        Agent agent = StorageAgent();
        agent.faults.faults = {ParseFault(fault), ParseFault("malformed"), ParseFault("counter")};
        for (const Octets& request : requests)
            EXPECT_LE(HandleDatagram(agent, request).datagrams.size(), 3u);
    }
}

} // namespace
