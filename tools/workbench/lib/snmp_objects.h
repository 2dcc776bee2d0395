// Reads several objects of a device at once, by the workbench's own requests: facts about a device for which
// the module has no query.
#ifndef WORKBENCH_LIB_SNMP_OBJECTS_H
#define WORKBENCH_LIB_SNMP_OBJECTS_H

#include "workbench/lib/snmp_text.h"

#include <functional>
#include <optional>

struct ObjectValue {
    bool isAnswered = false; // otherwise it is unknown whether the device has the object
    bool exists = false;
    ObjectId oid;                  // as the reply names it
    std::string bytes;             // of an OCTET STRING, as sent
    std::string text;              // the same decoded, on one line
    std::optional<int32_t> number; // of any type of numbers
    ObjectId objectId;             // of an OBJECT IDENTIFIER
};
using ObjectValues = std::vector<ObjectValue>;

// The same of a message that answers a request for one object.
ObjectValue ValueIn(const SnmpMessage& answer);

// The values in a reply, in the order of the request, after ReadSnmpReply has accepted it. Ends where the
// reply is malformed.
ObjectValues ReadSnmpValues(std::string_view datagram);

// Requests the objects from the agent at this address (in network order), in one datagram; without an answer
// that has all of them, one by one, since SNMPv1 answers nothing when one object is missing. Ends when three
// of them were not answered, so it waits about four seconds at most. Has an element for each object.
ObjectValues ReadObjects(uint32_t address, const std::vector<std::string>& oids);

// The same for what follows each of the objects in the device, in one datagram or, at the end of the device's
// objects, one by one. `isAnswered` is false when the device has not answered, or with another error.
ObjectValues ReadNextObjects(uint32_t address, const std::vector<std::string>& oids, bool& isAnswered);

// This, or another way to find out the same.
using NextObjects = std::function<ObjectValues(const std::vector<std::string>& oids, bool& isAnswered)>;
NextObjects NextObjectsAt(uint32_t address);

// Takes a reply that does not go on from the object, as an agent with a fault sends it, for none.
void CheckOrder(const std::string& oid, ObjectValue& next, bool& isAnswered);

// Whether an object is in a column of a table. `index` is the rest of its OID.
bool IsInColumn(const ObjectId& oid, const std::string& column, ObjectId& index);

#endif
