// Datagrams that are no valid request: none gets an answer, and the log names each for what it is.
#include "running_printer.h"

#include "simprinter/agent/agent.h"
#include "simprinter/device/objects.h"

#include <gtest/gtest.h>

namespace {

Bytes Changed(size_t position, uint8_t byte) {
    Bytes bytes = StorageRequest();
    bytes.at(position) = byte;
    return bytes;
}

TEST(Damage, InvalidRequestsAreDropped) {
    // clang-format off
    std::vector<std::pair<Bytes, const char*>> requests = {
        {Changed(13, 0xA4), "an SNMPv1 trap"}, {Changed(13, 0xA2), "an SNMPv1 response"},
        {Changed(13, 0xA5), "an SNMPv1 GetBulkRequest"}, {Changed(13, 0x30), "an SNMPv1 message of an unknown type"},
        {Changed(4, 0x03), "an SNMPv3 request"}, {Changed(4, 0x02), "the unknown SNMP version number 2"},
        {Changed(0, 0x31), "not an SNMP message"}, {Changed(1, 0x80), "a damaged SNMPv1"}, // no SEQUENCE, no length
        {Changed(1, 0x2A), "a damaged SNMPv1 message"}, {Changed(3, 0x00), "not an SNMP"}, // too long, empty version
        {Changed(5, 0x02), "a damaged SNMPv1 message"}, {Changed(6, 0x30), "a damaged SNMPv1"}, // community
        {Changed(12, 'c'), "community 'tovasc' is wrong"},
        {Changed(16, 0x05), "a damaged SNMPv1 GetRequest"}, {Changed(25, 0x12), ""}, // request-id, variables
        {Changed(29, 0x0E), ""}, {Changed(40, 0x81), ""},        // name too long, cut within a sub-identifier
        {Bytes(65507, 0x30), "65507 bytes"},                     // the largest datagram
    };
    // clang-format on
    const Bytes whole = StorageRequest();
    for (size_t size = 0; size < whole.size(); ++size)
        requests.push_back({Bytes(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size)), ""});
    Agent agent{{}, std::make_shared<const ObjectMap>(ObjectsOf(PlainDevice())), {}};
    for (const auto& [request, name] : requests) {
        const Outcome outcome = HandleDatagram(agent, request);
        EXPECT_TRUE(outcome.datagrams.empty()) << testing::PrintToString(request) << outcome.log;
        EXPECT_NE(outcome.log.find(name), std::string::npos) << outcome.log << ", not " << name;
        EXPECT_NE(outcome.log.find("dropped"), std::string::npos) << outcome.log;
    }
    EXPECT_EQ(HandleDatagram(agent, whole).datagrams.at(0).bytes, StorageReply()) << "the agent does not answer";
}

} // namespace
