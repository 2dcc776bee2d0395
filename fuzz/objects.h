// Checks the objects of a simulated printer, for the fuzz targets of the two files that they can come from.
#ifndef FUZZ_OBJECTS_H
#define FUZZ_OBJECTS_H

#include "require.h"

#include "common/findings.h"
#include "simprinter/message.h"

// Every object can be sent and is received as it was. Opaque numbers are exempt: the decoder knows them.
inline void CheckObjects(const ObjectMap& objects, const Findings& findings) {
    constexpr size_t kMaxSent = 65000; // bytes of a value
    for (const Finding& finding : findings.list)
        Require(!FindingText(finding).empty(), "a finding without a text");
    for (const auto& [name, value] : objects) {
        Message message;
        message.type = PduType::kSet;
        message.varBinds = {{name, value}};
        const std::optional<Message> received = ParseRequest(BuildMessage(message));
        Require(value.bytes.size() > kMaxSent || (received && received->varBinds.at(0).name == name),
                "an object can't be sent");
        Require(!received || value.tag == kOpaque || received->varBinds.at(0).value == value, "another value arrives");
    }
}

#endif
