// The effect of each fault, as a raw socket sees it.
#include "running_printer.h"

#include <chrono>
#include <gtest/gtest.h>
#include <set>

namespace {

// The reply with `replaced` bytes at a position replaced.
Bytes Changed(size_t position, const Bytes& by, size_t replaced) {
    Bytes bytes = StorageReply();
    const auto at = bytes.begin() + static_cast<ptrdiff_t>(position);
    bytes.insert(bytes.erase(at, at + static_cast<ptrdiff_t>(replaced)), by.begin(), by.end());
    return bytes;
}

TEST(Faults, AnswersAreChanged) {
    const Bytes good = StorageReply();
    Bytes wrongCommunity = Changed(6, {0x0A, 'n', 'o', 't', '-'}, 1);
    wrongCommunity[1] = 0x2F;
    Bytes error = StorageRequest(); // the request with the error and its position
    error[13] = 0xA2;
    error[20] = 0x05;
    error[23] = 0x01;
    const std::pair<std::string, Bytes> cases[] = {
        {"--fault wrong-community", wrongCommunity},
        {"--fault wrong-source", good},
        {"--fault wrong-address", good},
        {"--fault truncated=10", Bytes(good.begin(), good.begin() + 10)},
        {"--fault malformed", Changed(6, {0x7F}, 1)},
        {"--fault error-status=5", error},
        {"--fault counter", Changed(41, {0x41}, 1)},
    };
    for (const auto& [fault, bytes] : cases) {
        const RunningPrinter printer(fault);
        printer.Send(StorageRequest());
        const Received answer = printer.Receive(5000, 1).at(0);
        EXPECT_TRUE(printer.Receive(200).empty()) << fault;
        EXPECT_EQ(answer.bytes, bytes) << fault;
        EXPECT_EQ(answer.from.sin_port != printer.address.sin_port, fault == "--fault wrong-source") << fault;
        EXPECT_EQ(answer.from.sin_addr.s_addr != printer.address.sin_addr.s_addr, fault == "--fault wrong-address")
            << fault;
    }
}

TEST(Faults, DelayedAnswersDoNotDelayOthers) {
    const RunningPrinter printer("--fault delay=400@.1.3.6.1.2.1.25 --fault duplicate@.1.3.6.1.2.1.25");
    const auto start = std::chrono::steady_clock::now();
    printer.Send(StorageRequest());
    Bytes other = StorageRequest(0x12); // an object that does not exist
    other[35] = 0x7E;
    printer.Send(other);
    ASSERT_EQ(printer.Receive(5000, 1).at(0).bytes.at(17), 0x12);
    const std::vector<Received> late = printer.Receive(5000, 2);
    ASSERT_EQ(late.size(), 2u);
    EXPECT_EQ(late[1].bytes, StorageReply());
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(400));
}

TEST(Faults, SameSeedLosesTheSameAnswers) {
    std::vector<std::set<uint8_t>> survivors; // the answers of 60 that arrive
    for (const char* faults : {"--fault loss=50", "--fault loss=50", "--fault loss=50 --seed 2"}) {
        const RunningPrinter printer(faults);
        for (uint8_t id = 1; id <= 60; ++id)
            printer.Send(StorageRequest(id));
        survivors.emplace_back();
        for (const Received& answer : printer.Receive(500))
            survivors.back().insert(answer.bytes.at(17));
    }
    EXPECT_GT(survivors[0].size(), 12u); // fewer than 1 in 100,000 seeds give less or more
    EXPECT_LT(survivors[0].size(), 48u);
    EXPECT_EQ(survivors[1], survivors[0]);
    EXPECT_NE(survivors[2], survivors[0]);
}

} // namespace
