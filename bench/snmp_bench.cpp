// The built-in SNMP client against net-snmp's library: a GetRequest built, a reply read, and requests to the
// same agent on loopback, these also against a bare UDP echo; all the options of a printer asked at once; and
// how long an unresponsive agent takes.
#include "base/records.h"
#include "devcomm/model.h"
#include "devcomm/snmp/snmp_client.h"
#include "devcomm/snmp/snmp_entry_points.h"
#include "devcomm/snmp/snmp_message.h"
#include "devcomm/snmp/snmp_values.h"
#include "loopback.h"
#include "net_snmp_peer.h"
#include "win32_control.h"

#include <benchmark/benchmark.h>
#include <cstring>
#include <iterator>
#include <vector>

namespace {

// hrStorageSize.1 and a reply to request 257, "640".
constexpr const char* kObject = ".1.3.6.1.2.1.25.2.3.1.5.1";
constexpr UINT kSubIdentifiers[] = {1, 3, 6, 1, 2, 1, 25, 2, 3, 1, 5, 1};
constexpr uint32_t kRequestId = 257;
uint8_t reply[] = {0x30, 0x2C, 0x02, 0x01, 0x00, 0x04, 0x06, 't',  'o',  'v',  'a',  's',
                   'k',  0xA2, 0x1F, 0x02, 0x02, 0x01, 0x01, 0x02, 0x01, 0x00, 0x02, 0x01,
                   0x00, 0x30, 0x13, 0x30, 0x11, 0x06, 0x0B, 0x2B, 0x06, 0x01, 0x02, 0x01,
                   0x19, 0x02, 0x03, 0x01, 0x05, 0x01, 0x02, 0x02, 0x02, 0x80};

// A list of one varbind: the object, without a value.
struct Question {
    Question() {
        ClientStrToOid(kObject, &varBind.name);
        varBind.value.asnType = ASN_NULL;
    }
    ~Question() { ClientVarBindFree(&varBind); }
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;

    SnmpVarBind varBind = {};
    SnmpVarBindList list = {&varBind, 1};
};

void BuildRequest(benchmark::State& state) {
    const Question question;
    for ([[maybe_unused]] auto _ : state) {
        BerBuffer message = SnmpBuildRequest(SNMP_PDU_GET, kCommunity, kRequestId, question.list);
        benchmark::DoNotOptimize(message.octets);
        BerFree(message);
    }
}
BENCHMARK(BuildRequest);

void PeerBuildsRequest(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        uint8_t message[512];
        if (PeerBuildRequest(kCommunity, kRequestId, kSubIdentifiers, std::size(kSubIdentifiers), message,
                             sizeof(message))
            == 0)
            state.SkipWithError("net-snmp does not build the request");
        benchmark::DoNotOptimize(message);
    }
}
BENCHMARK(PeerBuildsRequest);

void ReadReply(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        SnmpReply read;
        SnmpResult result;
        AsnAny value;
        if (!SnmpReadReply(reply, sizeof(reply), read) || !SnmpReadResult(read, nullptr, nullptr, result)
            || !SnmpDecodeValue(result.valueType, result.value, value) || value.asnValue.number != 640)
            state.SkipWithError("the reply is not read");
        benchmark::DoNotOptimize(value);
    }
}
BENCHMARK(ReadReply);

void PeerReadsReply(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        long value = 0;
        if (!PeerReadReply(reply, sizeof(reply), value) || value != 640)
            state.SkipWithError("net-snmp does not read the reply");
        benchmark::DoNotOptimize(value);
    }
}
BENCHMARK(PeerReadsReply);

// A session with the agent that serves this port.
SnmpSession OpenTo(uint16_t port) {
    win32::RedirectPort(161, port);
    return ClientOpen("127.0.0.1", kCommunity, 2000, 3);
}

void RoundTrip(benchmark::State& state) {
    const Server printer = SimulatedPrinter("--address 127.0.0.1");
    SnmpSession session = OpenTo(printer.port);
    Question question;
    for ([[maybe_unused]] auto _ : state) {
        question.varBind.value.asnType = ASN_NULL;
        if (ClientRequest(session, SNMP_PDU_GET, &question.list, nullptr, nullptr) == 0) {
            state.SkipWithError("no answer");
            break;
        }
    }
    ClientClose(session);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(RoundTrip)->UseRealTime();

void PeerRoundTrip(benchmark::State& state) {
    const Server printer = SimulatedPrinter("--address 127.0.0.1");
    void* session = PeerOpen(printer.port, kCommunity);
    for ([[maybe_unused]] auto _ : state)
        if (session == nullptr || !PeerGet(session, kSubIdentifiers, std::size(kSubIdentifiers))) {
            state.SkipWithError("net-snmp gets no answer");
            break;
        }
    if (session != nullptr)
        PeerClose(session);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(PeerRoundTrip)->UseRealTime();

void EchoRoundTrip(benchmark::State& state) {
    const Server echo = EchoServer();
    const EchoClient client(echo.port);
    for ([[maybe_unused]] auto _ : state)
        if (!client.RoundTrip(reply, sizeof(reply))) {
            state.SkipWithError("no echo");
            break;
        }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(EchoRoundTrip)->UseRealTime();

// For a printer with 512 MB: four for the memory size, one for the hard disk, five for the trays and one for
// the duplex unit.
constexpr int kOptionRequests = 4 + 1 + 5 + 1;

void AllOptions(benchmark::State& state) {
    const Server printer = SimulatedPrinter("--address 127.0.0.1");
    win32::RedirectPort(161, printer.port);
    SnmpApiBind();
    const OptionReqInfo& options = *MIB_OptionReqInfo();
    std::vector<OptionRequestItem> items(static_cast<size_t>(options.count));
    for (size_t i = 0; i < items.size(); ++i)
        memcpy(items[i].key, options.options[i].key, sizeof(items[i].key));
    for ([[maybe_unused]] auto _ : state)
        if (!MIB_OptionRequest("127.0.0.1", static_cast<DWORD>(items.size()), items.data())
            || strcmp(items[0].value, "512MB") != 0 || items.back().value[0] == 0) {
            state.SkipWithError("the options are not answered");
            break;
        }
    SnmpApiRelease();
}
BENCHMARK(AllOptions)->UseRealTime();

void EchoesOfAllOptions(benchmark::State& state) {
    const Server echo = EchoServer();
    const EchoClient client(echo.port);
    for ([[maybe_unused]] auto _ : state)
        for (int i = 0; i < kOptionRequests; ++i)
            if (!client.RoundTrip(reply, sizeof(reply)))
                state.SkipWithError("no echo");
}
BENCHMARK(EchoesOfAllOptions)->UseRealTime();

void UnresponsiveAgent(benchmark::State& state) {
    const Server printer = SimulatedPrinter("--fault silence");
    SnmpSession session = OpenTo(printer.port);
    Question question;
    for ([[maybe_unused]] auto _ : state)
        if (ClientRequest(session, SNMP_PDU_GET, &question.list, nullptr, nullptr) != 0)
            state.SkipWithError("it answers");
    ClientClose(session);
}
BENCHMARK(UnresponsiveAgent)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
