// The workbench's own SNMP requests: one object at a time, over Windows Sockets. They find out why the
// module's queries of a printer fail, and look for printers; printers are queried through the module only.
// The messages are built and read by the module's code.
#ifndef WORKBENCH_LIB_SNMP_PROBE_H
#define WORKBENCH_LIB_SNMP_PROBE_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Windows Sockets, started as long as the object exists.
struct SocketsStart {
    SocketsStart();
    ~SocketsStart();
    SocketsStart(const SocketsStart&) = delete;
    SocketsStart& operator=(const SocketsStart&) = delete;
};

enum class HostKind {
    kIpv4,
    kIpv6,          // the host has no other address
    kUnknown,       // the name service says that there is no such name
    kNoNameService, // it does not answer, or can't tell
};

// Looks up an address or a host name in the system's code page. `address` (in network order) is set for
// kIpv4. Waits for the name service, which can take 10 seconds and more.
HostKind FindHost(const std::string& host, uint32_t& address);

// How a request of the workbench is sent: to this port, this often, with so much time for each answer, until
// so many answers to other requests have arrived.
constexpr uint16_t kSnmpPort = 161;
constexpr int kProbeSends = 2;
constexpr int kPatientSends = 5;     // as often as the module
constexpr uint32_t kProbeWait = 500; // milliseconds
constexpr int kMaxOtherAnswers = 5;

// Differs from those of all other requests of this process.
uint32_t NextRequestId();

// The object by which the module finds out whether a device answers: sysObjectID, which every agent has.
constexpr const char* kAgentObject = ".1.3.6.1.2.1.1.2.0";

// Shows that the device is a printer: prtInputType of the first input of device 1, the only one that the
// module asks.
constexpr const char* kPrinterObject = ".1.3.6.1.2.1.43.8.2.1.2.1.1";

// A request for one object (or the next one), as a datagram, with the module's community unless there is
// another. Empty when the OID is not one.
std::string SnmpRequest(const char* oid, uint32_t requestId, bool isForNext = false,
                        const char* community = nullptr);

struct SnmpReplyText {
    uint32_t requestId;
    int32_t errorStatus; // 0: the object exists
    std::string text;    // its value, decoded; empty for numbers and other values
};

// None when the datagram is not a well-formed reply.
std::optional<SnmpReplyText> ReadSnmpReply(std::string_view datagram);

enum class ProbeEnd {
    kAnswered,
    kNoAnswer,
    kRefused,       // there is a host, but no program listens
    kNotSent,       // there is no way to the host
    kMalformed,     // the answer is not an SNMP reply
    kOtherRequests, // only answers to other requests have arrived
};
struct ProbeAnswer {
    ProbeEnd end;
    SnmpReplyText reply;  // for kAnswered
    std::string datagram; // the same as it was received
};

// How a receive from a connected socket has ended that failed with this error of Windows Sockets.
ProbeEnd ProbeEndOf(int error);

// Sends this request to the agent at this address (in network order), so often, and waits about half a second
// for an answer each time.
ProbeAnswer ProbeRequest(uint32_t address, const std::string& request, uint32_t requestId,
                         int maxSends = kProbeSends);

// Requests the object from the agent at this address (in network order) in the same way.
ProbeAnswer ProbeObject(uint32_t address, const char* oid, int maxSends = kProbeSends);

#endif
