// Pairs requests with answers, and writes them as a document or as text.
#include "workbench/diagnosis/trace_page.h"

#include "workbench/lib/snmp_text.h"
#include "workbench/lib/table_text.h"
#include "workbench/lib/text.h"
#include "workbench/lib/traced_requests.h"

#include <algorithm>
#include <cmath>

namespace {

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

constexpr const char* kFailed = "the query has failed";
constexpr const char* kAccess = "access"; // the use of the object by which the module reaches a printer

// What the module has answered to a question: "option OpHDD". Null: not known.
Document DriverAnswer(const Document& answers, const std::string& use) {
    const size_t blank = use.find(' ');
    const std::string name = blank != std::string::npos ? use.substr(blank + 1) : "";
    const std::string kind = use.substr(0, blank);
    const std::string section = name.empty() ? use : kind == "option" ? "options" : "supplies";
    const Document& part = answers[section];
    if (part.IsNull())
        return answers.IsNull() || use == kAccess ? Document() : Document(kFailed);
    if (name.empty())
        return std::to_string(RowsIn(part)) + " in all lists";
    const Document* row = RowOf(part, name);
    if (row == nullptr)
        return {};
    const Document& words = (*row)[kind == "option" ? "setting" : "level"];
    return words.IsText() ? words
                          : "state " + CellText((*row)["state"]) + ", value " + CellText((*row)["value"]);
}

double InHundredths(double milliseconds) {
    return std::round(milliseconds * 100) / 100;
}

// With the object, where the answer is about another one than the request.
std::string AnswerTo(const TracedRequest& request) {
    const ObjectId& object = request.answer.object;
    const bool isOther = !object.empty() && object != request.message.object;
    return (isOther ? ObjectName(object) + " = " : "") + AnswerText(request.answer);
}

Document RowOfRequest(const TracedRequest& request) {
    Document row = {
        {"ms", InHundredths(request.sends.front())},
        {"request", RequestText(request.message)},
        {"oid", OidText(request.message.object)},
        {"sends", request.sends.size()},
        {"answer", request.isAnswered ? AnswerTo(request) : "no answer"},
        {"tookMs", request.isAnswered ? Document(InHundredths(request.took)) : Document()},
    };
    row["sentAtMs"] = Document::MakeList();
    for (const double at : request.sends)
        row["sentAtMs"].Add(InHundredths(at));
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
    const Document::List& sends = row["sentAtMs"].Elements();
    std::string repeats;
    for (size_t i = 1; i < sends.size(); ++i)
        AddPart(repeats, Fixed(sends[i], 0));
    if (!repeats.empty())
        line += ", sent " + std::to_string(sends.size()) + " times, again at " + repeats;
    const size_t skipped = row["skipped"].Elements().size();
    if (skipped != 0)
        line += ", after " + std::to_string(skipped) + " to other requests";
    return line + "\n";
}

} // namespace

Document TraceDocument(const std::vector<TracedMessage>& messages, const std::vector<ModuleObject>& objects,
                       const Document& answers) {
    Document trace = Document::MakeList();
    Document::List& groups = trace.Elements();
    size_t last = SIZE_MAX; // question of the module
    for (const TracedRequest& request : PairedRequests(messages)) {
        const ModuleObject* object = request.isOwn ? nullptr : ObjectAt(objects, request.message.object);
        const std::string use = request.isOwn       ? "(workbench)"
                                : object != nullptr ? object->use
                                                    : "another question";
        if (groups.empty() || groups.back()["question"].Text() != use)
            groups.push_back({{"question", use},
                              {"usedFor", object != nullptr ? object->usedFor : use},
                              {"driver", object != nullptr ? DriverAnswer(answers, use) : Document()},
                              {"traffic", Document::MakeList()}});
        groups.back()["traffic"].Add(RowOfRequest(request));
        if (request.isOwn)
            continue;
        last = groups.size() - 1;
        if (use == kAccess) // any intact answer will do for the module
            groups.back()["driver"] = request.HasUsableAnswer() ? "reached" : "not reached";
    }
    if (answers.IsNull() && last != SIZE_MAX && groups[last]["driver"].IsNull())
        groups[last]["driver"] = kFailed;
    return trace;
}

std::string TraceText(const Document& trace) {
    std::string text = "Traffic, in milliseconds since the start; (workbench): not asked by the driver\n";
    for (const Document& group : trace.Elements()) {
        const Document& driver = group["driver"];
        text += "  " + group["usedFor"].Text() + (driver.IsNull() ? "" : ": " + driver.Text()) + "\n";
        for (const Document& row : group["traffic"].Elements())
            text += RequestLine(row);
    }
    return trace.Elements().empty() ? text + "  none\n" : text;
}
