// Pairs requests with answers.
#include "workbench/lib/traced_requests.h"

#include "workbench/lib/text.h"

#include <algorithm>

std::vector<TracedRequest> PairedRequests(const std::vector<TracedMessage>& messages) {
    std::vector<TracedRequest> requests;
    for (const TracedMessage& traced : messages) {
        SnmpMessage message = traced.isDatagram ? ReadSnmpMessage(traced.bytes) : traced.message;
        const bool isRepeat = !requests.empty() && !requests.back().isAnswered && traced.isDatagram
                              && requests.back().bytes == traced.bytes;
        if (traced.isSent && !isRepeat) {
            TracedRequest request = {};
            request.sends = {traced.at};
            request.isOwn = traced.isOwn;
            request.bytes = traced.bytes;
            request.message = std::move(message);
            requests.push_back(std::move(request));
        } else if (traced.isSent) {
            requests.back().sends.push_back(traced.at);
        } else if (!requests.empty()) {
            TracedRequest& request = requests.back();
            if (message.hasRequestId && message.requestId != request.message.requestId) {
                request.skipped.push_back(AnswerText(message));
                continue;
            }
            request.isAnswered = true;
            request.took = traced.at - request.sends.front();
            request.answer = std::move(message);
        }
    }
    return requests;
}

const ModuleObject* ObjectAt(const std::vector<ModuleObject>& objects, const ObjectId& oid) {
    const ModuleObject* sameTable = nullptr;
    for (const ModuleObject& object : objects) {
        if (object.oid == oid)
            return &object;
        if (object.oid.size() == oid.size() && std::equal(oid.begin(), oid.end() - 1, object.oid.begin()))
            sameTable = &object;
    }
    return sameTable;
}

std::vector<std::string> UnansweredUses(const std::vector<TracedMessage>& messages,
                                        const std::vector<ModuleObject>& objects) {
    std::vector<std::string> uses;
    for (const TracedRequest& request : PairedRequests(messages)) {
        const ModuleObject* object = ObjectAt(objects, request.message.object);
        if (object != nullptr && !request.isOwn && !request.HasUsableAnswer())
            uses.push_back(object->use);
    }
    return uses;
}

bool IsUnanswered(const std::vector<std::string>& uses, const OptionRequestItem& option) {
    return option.value[0] == 0
           && std::find(uses.begin(), uses.end(), "option " + FieldText(option.key)) != uses.end();
}

bool IsUnanswered(const std::vector<std::string>& uses, const MrkSupRequestItem& supply) {
    return supply.state == TELMAR_STATE_UNKNOWN
           && std::find(uses.begin(), uses.end(), "supply " + FieldText(supply.name)) != uses.end();
}
