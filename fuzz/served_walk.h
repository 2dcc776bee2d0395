// What is common to the files of simulated printers: their objects are served, and a walk gives them all.
#ifndef FUZZ_SERVED_WALK_H
#define FUZZ_SERVED_WALK_H

#include "require.h"

#include "simprinter/agent/agent.h"

// Asks with SNMPv2c, from the first name on, for the next object until there is none.
inline void RequireSameWalk(const ObjectMap& objects) {
    constexpr size_t kLargestDatagram = 65507;
    Agent agent{{}, std::make_shared<const ObjectMap>(objects), {}};
    agent.options.largestReply = kLargestDatagram;
    Message request;
    request.version = &kVersions[1];
    request.community = agent.options.community;
    request.type = PduType::kGetNext;
    request.varBinds = {{{0, 0}, {}}};
    for (auto object = objects.upper_bound({0, 0});; ++object) {
        const Outcome outcome = HandleDatagram(agent, BuildMessage(request));
        Require(outcome.datagrams.size() == 1, "no answer");
        const std::optional<Message> reply = ParseReply(outcome.datagrams[0].bytes);
        Require(reply && reply->errorStatus == kNoError && reply->varBinds.size() == 1, "an object can't be served");
        const auto& [name, value] = reply->varBinds[0];
        if (object == objects.end()) {
            Require(value.tag == kEndOfMibView, "the walk does not end");
            return;
        }
        Require(name == object->first, "the walk passes over an object");
        // The decoder knows some of the numbers in an Opaque and refuses others.
        Require(value == object->second || object->second.tag == kOpaque, "another value arrives");
        request.varBinds[0].name = name;
    }
}

#endif
