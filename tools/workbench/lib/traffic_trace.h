// Records the requests that the module sends and the answers that it receives. Its built-in SNMP client calls
// Windows Sockets through the import table of its library; while a trace exists, the table leads to functions
// that record and pass on. Where the module uses the system's SNMP libraries, the pointer to their request
// function is replaced in the same way: then the answers are recorded as these libraries return them, without
// the datagrams, and a request that they repeat is recorded once. The workbench's own requests can be
// recorded in the same way, by its own import table.
#ifndef WORKBENCH_LIB_TRAFFIC_TRACE_H
#define WORKBENCH_LIB_TRAFFIC_TRACE_H

#include "workbench/lib/snmp_text.h"

#include <cstdint>
#include <mutex>
#include <string>
#include <vector>
#include <windows.h>

struct TracedMessage {
    double at; // milliseconds since the start of the trace
    bool isSent;
    bool isOwn;          // of the workbench, not of the module
    bool isDatagram;     // otherwise recorded at the system's libraries
    std::string bytes;   // of a datagram
    SnmpMessage message; // otherwise; without version, community and request-id
    DWORD thread;        // that has sent or received it
};

// How many requests are sent again, with the same bytes, because no answer has come.
size_t RepeatsIn(const std::vector<TracedMessage>& messages);

// Whether the module makes its requests through the system's SNMP libraries, as it does where both load.
bool UsesSystemSnmp();

enum class TraceOf { kModule, kModuleAndWorkbench };

// Only one trace exists at a time. The library must stay loaded. A query on another thread is recorded, too,
// and must end before the trace does.
class TrafficTrace {
public:
    explicit TrafficTrace(HMODULE library, TraceOf what = TraceOf::kModule);
    ~TrafficTrace();
    TrafficTrace(const TrafficTrace&) = delete;
    TrafficTrace& operator=(const TrafficTrace&) = delete;

    // What has been recorded so far.
    std::vector<TracedMessage> Messages() const;

    // Removes what the calling thread has sent and received so far, and returns it.
    std::vector<TracedMessage> TakeOfThisThread();

    void Add(bool isSent, bool isOwn, const char* bytes, int count); // nothing for a negative count
    void Add(bool isSent, SnmpMessage message);

private:
    struct Replaced {
        void** slot; // of the import table or the library's data
        void* before;
    };
    void Patch(void** slot, void* function);

    const int64_t start; // of the performance counter
    std::vector<Replaced> replaced;
    mutable std::mutex access; // to the messages
    std::vector<TracedMessage> messages;
};

#endif
