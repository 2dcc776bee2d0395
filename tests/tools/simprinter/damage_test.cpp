// Malformed datagrams: none that is not a valid request gets an answer.
#include "running_printer.h"

#include "simprinter/agent.h"
#include "simprinter/objects.h"

#include <gtest/gtest.h>

namespace {

Bytes Changed(size_t position, uint8_t byte) {
    Bytes bytes = StorageRequest();
    bytes.at(position) = byte;
    return bytes;
}

TEST(Damage, InvalidRequestsAreDropped) {
    // clang-format off
    std::vector<Bytes> requests = {
        Changed(13, 0xA4), Changed(13, 0xA5), Changed(13, 0xA2), // trap, GetBulkRequest, GetResponse
        Changed(0, 0x31), Changed(1, 0x80), Changed(1, 0x2A),    // no SEQUENCE, indefinite length, too long
        Changed(3, 0x00), Changed(4, 0x02), Changed(4, 0x03),    // empty version, unknown one, SNMPv3
        Changed(5, 0x02), Changed(6, 0x30), Changed(12, 'c'),    // community: INTEGER, too long, wrong
        Changed(16, 0x05), Changed(25, 0x12),                    // request-id of five bytes, variables too long
        Changed(29, 0x0E), Changed(40, 0x81),                    // name too long, cut within a sub-identifier
        Bytes(65507, 0x30),                                      // the largest datagram
    };
    // clang-format on
    const Bytes whole = StorageRequest();
    for (size_t size = 0; size < whole.size(); ++size)
        requests.emplace_back(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(size));
    Agent agent{{}, std::make_shared<const ObjectMap>(ObjectsOf(PlainDevice())), {}};
    for (const Bytes& request : requests) {
        const Outcome outcome = HandleDatagram(agent, request);
        EXPECT_TRUE(outcome.datagrams.empty()) << testing::PrintToString(request) << outcome.log;
        EXPECT_NE(outcome.log.find("dropped"), std::string::npos) << outcome.log;
    }
    EXPECT_EQ(HandleDatagram(agent, whole).datagrams.at(0).bytes, StorageReply()) << "the agent does not answer";
}

} // namespace
