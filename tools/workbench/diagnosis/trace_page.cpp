// Pairs requests with answers, and writes them as a document or as text.
#include "workbench/diagnosis/trace_page.h"

#include "workbench/lib/snmp_text.h"
#include "workbench/lib/table_text.h"

#include <algorithm>
#include <cmath>

namespace {

struct TracedRequest {
    double at; // milliseconds since the start
    std::string bytes;
    SnmpMessage message;
    int sends = 1;
    double lastSend = 0;
    bool isAnswered = false;
    SnmpMessage answer;               // the last: the one that the module has used, if any
    double took = 0;                  // milliseconds since the last send
    std::vector<std::string> skipped; // answers to other requests
};

// The module makes one request after the other, and repeats one by sending the same bytes.
std::vector<TracedRequest> PairedRequests(const std::vector<TracedMessage>& messages) {
    std::vector<TracedRequest> requests;
    for (const TracedMessage& traced : messages) {
        SnmpMessage message = traced.isDatagram ? ReadSnmpMessage(traced.bytes) : traced.message;
        const bool isRepeat = !requests.empty() && !requests.back().isAnswered && traced.isDatagram
                              && requests.back().bytes == traced.bytes;
        if (traced.isSent && !isRepeat) {
            TracedRequest request = {};
            request.at = request.lastSend = traced.at;
            request.bytes = traced.bytes;
            request.message = std::move(message);
            request.sends = 1;
            requests.push_back(std::move(request));
        } else if (traced.isSent) {
            ++requests.back().sends;
            requests.back().lastSend = traced.at;
        } else if (!requests.empty()) {
            TracedRequest& request = requests.back();
            if (message.hasRequestId && message.requestId != request.message.requestId) {
                request.skipped.push_back(AnswerText(message));
                continue;
            }
            request.isAnswered = true;
            request.took = traced.at - request.lastSend;
            request.answer = std::move(message);
        }
    }
    return requests;
}

// What the module asks the object for. Rows after the first of a table of stored resources differ in their
// last sub-identifier.
std::string UseOf(const std::vector<ModuleObject>& objects, const ObjectId& oid) {
    const ModuleObject* sameTable = nullptr;
    for (const ModuleObject& object : objects) {
        if (object.oid == oid)
            return object.use;
        if (object.oid.size() == oid.size() && std::equal(oid.begin(), oid.end() - 1, object.oid.begin()))
            sameTable = &object;
    }
    return sameTable != nullptr ? sameTable->use : "another question";
}

size_t RowsIn(const Document& lists) {
    size_t rows = 0;
    for (const Document::Field& list : lists.Fields())
        rows += list.value.Elements().size();
    return rows;
}

// The row of a table of the answers with this name in its first field.
const Document* RowOf(const Document& rows, const std::string& name) {
    for (const Document& row : rows.Elements())
        if (CellText(row.Fields()[0].value) == name)
            return &row;
    return nullptr;
}

// What the module has answered to a question: "option OpHDD".
std::string DriverAnswer(const Document& answers, const std::string& use) {
    const std::string name = use.substr(use.find(' ') + 1);
    if (use == "overlays" || use == "profiles")
        return std::to_string(RowsIn(answers[use])) + " in all lists";
    if (const Document* option = RowOf(answers["options"], name)) {
        const std::string answer = CellText((*option)["answer"]);
        return answer.empty() ? "no answer" : answer;
    }
    if (const Document* supply = RowOf(answers["supplies"], name)) {
        const Document& level = (*supply)["level"];
        return level.IsText()
                   ? level.Text()
                   : "state " + CellText((*supply)["state"]) + ", value " + CellText((*supply)["value"]);
    }
    return "reached";
}

double InHundredths(double milliseconds) {
    return std::round(milliseconds * 100) / 100;
}

Document RowOfRequest(const TracedRequest& request) {
    Document row = {
        {"ms", InHundredths(request.at)},
        {"request", RequestText(request.message)},
        {"oid", OidText(request.message.object)},
        {"sends", request.sends},
        {"answer", request.isAnswered ? AnswerText(request.answer) : "no answer"},
        {"tookMs", request.isAnswered ? Document(InHundredths(request.took)) : Document()},
    };
    row["skipped"] = Document::MakeList();
    for (const std::string& skipped : request.skipped)
        row["skipped"].Add(skipped);
    return row;
}

std::string Fixed(const Document& milliseconds, int width) {
    char text[32];
    snprintf(text, sizeof(text), "%*.2f", width, milliseconds.Real());
    return text;
}

std::string RequestLine(const Document& row) {
    std::string line =
        "  " + Fixed(row["ms"], 9) + " ms  " + row["request"].Text() + " -> " + row["answer"].Text();
    if (!row["tookMs"].IsNull())
        line += " (" + Fixed(row["tookMs"], 0) + " ms)";
    if (row["sends"].Integer() > 1)
        line += ", sent " + std::to_string(row["sends"].Integer()) + " times";
    const size_t skipped = row["skipped"].Elements().size();
    if (skipped != 0)
        line += ", after " + std::to_string(skipped) + " to other requests";
    return line + "\n";
}

} // namespace

Document TraceDocument(const std::vector<TracedMessage>& messages, const std::vector<ModuleObject>& objects,
                       const Document& answers) {
    Document trace = Document::MakeList();
    for (const TracedRequest& request : PairedRequests(messages)) {
        const std::string use = UseOf(objects, request.message.object);
        Document::List& groups = trace.Elements();
        if (groups.empty() || groups.back()["question"].Text() != use)
            groups.push_back(
                {{"question", use},
                 {"driver", answers.IsNull() ? Document() : Document(DriverAnswer(answers, use))},
                 {"traffic", Document::MakeList()}});
        groups.back()["traffic"].Add(RowOfRequest(request));
    }
    if (answers.IsNull() && !trace.Elements().empty())
        trace.Elements().back()["driver"] = "the query has failed";
    return trace;
}

std::string TraceText(const Document& trace) {
    std::string text = "Traffic, in milliseconds since the start\n";
    for (const Document& group : trace.Elements()) {
        const Document& driver = group["driver"];
        text += "  " + group["question"].Text() + (driver.IsNull() ? "" : ": " + driver.Text()) + "\n";
        for (const Document& row : group["traffic"].Elements())
            text += RequestLine(row);
    }
    return trace.Elements().empty() ? text + "  none\n" : text;
}
