// Each fault as a raw socket sees it, and the order's wording.
#include "running_printer.h"

#include "simprinter/faults.h"

#include <chrono>
#include <gtest/gtest.h>
#include <set>

namespace {

const TemporaryFolder kFolder;

std::string Arguments(const std::string& faults) {
    return "--device " + kFolder.File("device.yaml", "memory: 640\n") + ' ' + faults;
}

// The answers to one request of hrStorageSize.1.
std::vector<Received> Answers(const std::string& faults, size_t expected) {
    const RunningPrinter printer(Arguments(faults));
    const RawClient client(printer);
    client.Send(StorageRequest());
    std::vector<Received> answers = client.Receive(5000, expected); // those that are due may take their time
    for (const Received& further : client.Receive(200))
        answers.push_back(further);
    return answers;
}

// The reply with some of its octets replaced from a position on.
Octets Changed(size_t position, const Octets& by, size_t replaced) {
    Octets octets = StorageReply();
    const auto at = octets.begin() + static_cast<ptrdiff_t>(position);
    octets.insert(octets.erase(at, at + static_cast<ptrdiff_t>(replaced)), by.begin(), by.end());
    return octets;
}

TEST(Faults, OneAnswerAndItsOctets) {
    const Octets good = StorageReply();
    Octets wrongCommunity = Changed(6, {0x0A, 'n', 'o', 't', '-'}, 1);
    wrongCommunity[1] = 0x2F;
    Octets error = StorageRequest(); // what was asked comes back, with the error and its place
    error[13] = 0xA2;
    error[20] = 0x05;
    error[23] = 0x01;
    const struct {
        const char* faults;
        Octets octets;
    } cases[] = {
        {"", good},
        {"--fault wrong-community", wrongCommunity},
        {"--fault truncated=10", Octets(good.begin(), good.begin() + 10)},
        {"--fault malformed", Changed(6, {0x7F}, 1)},
        {"--fault error-status=5", error},
        {"--fault counter", Changed(41, {0x41}, 1)},
    };
    for (const auto& one : cases) {
        const std::vector<Received> answers = Answers(one.faults, 1);
        ASSERT_EQ(answers.size(), 1u) << one.faults;
        EXPECT_EQ(answers[0].octets, one.octets) << one.faults;
    }
}

TEST(Faults, WrongSource) {
    for (const bool otherPort : {true, false}) {
        const RunningPrinter printer(Arguments(otherPort ? "--fault wrong-source" : "--fault wrong-address"));
        const RawClient client(printer);
        client.Send(StorageRequest());
        const std::vector<Received> answers = client.Receive(5000, 1);
        ASSERT_EQ(answers.size(), 1u);
        EXPECT_EQ(answers[0].octets, StorageReply());
        EXPECT_EQ(answers[0].from.sin_port != client.printer.sin_port, otherPort);
        EXPECT_EQ(answers[0].from.sin_addr.s_addr != client.printer.sin_addr.s_addr, !otherPort);
    }
}

TEST(Faults, DelayHoldsUpNothingElse) {
    const RunningPrinter printer(
        Arguments("--fault delay=400@.1.3.6.1.2.1.25 --fault duplicate@.1.3.6.1.2.1.25"));
    const RawClient client(printer);
    const auto start = std::chrono::steady_clock::now();
    client.Send(StorageRequest());
    Octets other = StorageRequest(0x12); // an object that is not there
    other[35] = 0x7E;
    client.Send(other);
    ASSERT_EQ(client.Receive(5000, 1).at(0).octets.at(17), 0x12);
    const std::vector<Received> late = client.Receive(5000, 2);
    ASSERT_EQ(late.size(), 2u);
    EXPECT_EQ(late[1].octets, StorageReply());
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(400));
}

TEST(Faults, LossIsTheSameWithTheSameSeed) {
    std::vector<std::set<uint8_t>> survivors; // which of 60 answers arrive
    for (const char* faults : {"--fault loss=50", "--fault loss=50", "--fault loss=50 --seed 2"}) {
        const RunningPrinter printer(Arguments(faults));
        const RawClient client(printer);
        for (uint8_t id = 1; id <= 60; ++id)
            client.Send(StorageRequest(id));
        survivors.emplace_back();
        for (const Received& answer : client.Receive(500))
            survivors.back().insert(answer.octets.at(17));
    }
    EXPECT_GT(survivors[0].size(), 12u); // fewer than 1 of 100,000 seeds give less or more
    EXPECT_LT(survivors[0].size(), 48u);
    EXPECT_EQ(survivors[1], survivors[0]);
    EXPECT_NE(survivors[2], survivors[0]);
}

TEST(Faults, WordingThatIsRefused) {
    const struct {
        const char* text;
        const char* message;
    } cases[] = {
        {"dealy=5",
         "fault 'dealy=5': there is no such fault; did you mean 'delay'?\nFaults are silence, loss, "},
        {"delay", "fault 'delay': write delay=MS"},
        {"loss=101", "fault 'loss=101': PERCENT must be a number from 0 to 100"},
        {"counter=1", "fault 'counter=1': counter takes no value"},
        {"silence@system",
         "fault 'silence@system': behind '@' stands no object identifier such as .1.3.6.1.2.1.43"},
    };
    for (const auto& one : cases) {
        try {
            ParseFault(one.text);
            ADD_FAILURE() << one.text << " is taken";
        } catch (const std::runtime_error& fault) {
            EXPECT_EQ(std::string(fault.what()).rfind(one.message, 0), 0u) << fault.what();
        }
    }
}

} // namespace
