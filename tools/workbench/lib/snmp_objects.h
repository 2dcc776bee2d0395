// Reads several objects of a device at once, by the workbench's own requests: facts about a device for which
// the module has no query.
#ifndef WORKBENCH_LIB_SNMP_OBJECTS_H
#define WORKBENCH_LIB_SNMP_OBJECTS_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct ObjectValue {
    std::string text;              // decoded, on one line; empty for other types
    std::optional<int32_t> number; // of an INTEGER
};
using ObjectValues = std::vector<std::optional<ObjectValue>>; // none: the device does not have the object

// The values in a reply, in the order of the request, after ReadSnmpReply has accepted it. Ends where the
// reply is malformed.
ObjectValues ReadSnmpValues(std::string_view datagram);

// Requests the objects from the agent at this address (in network order), in one datagram; if the device
// refuses that, one by one, since SNMPv1 answers nothing when one object is missing. Ends when the device no
// longer answers: waits about a second at most.
ObjectValues ReadObjects(uint32_t address, const std::vector<std::string>& oids);

#endif
