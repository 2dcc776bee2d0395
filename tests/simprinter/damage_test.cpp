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

std::vector<Octets> Prefixes() {
    std::vector<Octets> all;
    const Octets request = StorageRequest();
    for (size_t size = 0; size < request.size(); ++size)
        all.emplace_back(request.begin(), request.begin() + static_cast<ptrdiff_t>(size));
    return all;
}

// Each octet by every other value.
std::vector<Octets> Variations() {
    std::vector<Octets> all;
    for (size_t i = 0; i < StorageRequest().size(); ++i) {
        for (int octet = 0; octet < 256; ++octet)
            all.push_back(Changed(i, static_cast<uint8_t>(octet)));
    }
    return all;
}

TEST(Damage, WhatGetsNoAnswer) {
    Octets trap = Changed(13, 0xA4), bulk = Changed(13, 0xA5), response = Changed(13, 0xA2);
    std::vector<Octets> requests = Prefixes();
    requests.insert(requests.end(), {
                                        trap, bulk, response, Changed(0, 0x31), // no SEQUENCE
                                        Changed(1, 0x80),                       // indefinite length
                                        Changed(1, 0x2A),                       // longer than the datagram
                                        Changed(3, 0x00),                       // version without octets
                                        Changed(4, 0x01),                       // version 2c
                                        Changed(5, 0x02),  // community that is an INTEGER
                                        Changed(6, 0x30),  // community beyond the end
                                        Changed(12, 'c'),  // other community
                                        Changed(16, 0x05), // request-id of five octets
                                        Changed(25, 0x12), // variables beyond the end
                                        Changed(29, 0x0E), // name beyond its variable
                                        Changed(40, 0x81), // name ends within an arc
                                    });
    Agent agent = StorageAgent();
    for (const Octets& request : requests) {
        const Outcome outcome = HandleDatagram(agent, request);
        EXPECT_TRUE(outcome.datagrams.empty()) << testing::PrintToString(request) << outcome.log;
        EXPECT_NE(outcome.log.find("dropped"), std::string::npos) << outcome.log;
    }
}

TEST(Damage, EveryOctetByEveryOther) {
    Agent agent = StorageAgent();
    for (const Octets& request : Variations())
        EXPECT_LE(HandleDatagram(agent, request).datagrams.size(), 1u);
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

TEST(Damage, TheProgramGoesOn) {
    const RunningPrinter printer;
    const RawClient client(printer);
    std::vector<Octets> requests = Prefixes();
    for (size_t bit = 0; bit < 8 * StorageRequest().size(); ++bit) {
        const uint8_t octet = StorageRequest()[bit / 8];
        requests.push_back(Changed(bit / 8, static_cast<uint8_t>(octet ^ (1u << bit % 8))));
    }
    requests.emplace_back(65507, 0x30); // the largest datagram there is
    for (const Octets& request : requests) {
        client.Send(request);
        client.Receive(0); // so that neither queue overflows
    }
    client.Receive(200);
    EXPECT_EQ(printer.Ask("snmpget", ".1.3.6.1.2.1.25.2.3.1.5.1").output,
              ".1.3.6.1.2.1.25.2.3.1.5.1 = INTEGER: 512\n");
}

} // namespace
