// Finds out at which of many addresses something answers, on one thread that waits and does not poll. What
// does not answer costs half a second for each send, the same for hundreds at once.
#ifndef WORKBENCH_FLEET_SCOUT_H
#define WORKBENCH_FLEET_SCOUT_H

#include "workbench/lib/snmp_probe.h"

#include <atomic>
#include <functional>
#include <vector>

// Sends each address (in network order) the request of ProbeObject, so often and with the same waiting, to at
// most 256 at once. Calls `onEnd` with the position of each address as soon as it is known how it ends, with
// the milliseconds since the first request to it. Returns early, without the rest, when `isStopped` is set.
void Scout(const std::vector<uint32_t>& addresses, int maxSends, const std::atomic<bool>& isStopped,
           const std::function<void(size_t position, ProbeEnd end, uint32_t milliseconds)>& onEnd);

#endif
