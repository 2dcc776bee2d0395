// The requests in a recorded traffic, each with its answer, and what the module wants to know by them.
#ifndef WORKBENCH_LIB_TRACED_REQUESTS_H
#define WORKBENCH_LIB_TRACED_REQUESTS_H

#include "workbench/lib/module_objects.h"
#include "workbench/lib/traffic_trace.h"

struct TracedRequest {
    std::vector<double> sends; // milliseconds since the start
    bool isOwn;                // of the workbench
    std::string bytes;
    SnmpMessage message;
    bool isAnswered = false;
    SnmpMessage answer;               // the last: the one that the module has used, if any
    double took = 0;                  // milliseconds since the first send
    std::vector<std::string> skipped; // answers to other requests

    bool HasUsableAnswer() const { return isAnswered && answer.damage == Damage::kNone; }
};

// The module makes one request after the other, and repeats one by sending the same bytes.
std::vector<TracedRequest> PairedRequests(const std::vector<TracedMessage>& messages);

// The object for which the module makes a request; null: another one. Rows after the first of a table of
// stored resources differ in their last sub-identifier.
const ModuleObject* ObjectAt(const std::vector<ModuleObject>& objects, const ObjectId& oid);

// What the module wanted to know ("option OpHDD") by requests that had no answer, or a damaged one. The
// module gives no reason where it reports nothing.
std::vector<std::string> UnansweredUses(const std::vector<TracedMessage>& messages,
                                        const std::vector<ModuleObject>& objects);

bool IsUnanswered(const std::vector<std::string>& uses, const OptionRequestItem& option);
bool IsUnanswered(const std::vector<std::string>& uses, const MrkSupRequestItem& supply);

#endif
