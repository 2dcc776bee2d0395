// `workbench query --trace`: the query, with every request and answer that the module sends and receives.
#include "workbench/commands/commands.h"
#include "workbench/diagnosis/trace_page.h"
#include "workbench/lib/text_form.h"

namespace {

constexpr const char* kSystemNote =
    "The module makes its requests through the system's SNMP libraries, which may send one several times.";

} // namespace

// The traffic comes first, then the answers of the query or why it has failed.
CommandResult TraceQuery(const FamilyFiles& family, const std::string& address) {
    const TrafficTrace trace(family.module.get(), TraceOf::kModuleAndWorkbench);
    Document document;
    Document answers; // also when only some queries have been answered
    std::string end;
    int exitCode = 0;
    try {
        const CommandResult asked = AskBySnmp(family, address, trace);
        document = answers = asked.document;
        end = asked.text.empty() ? TextForm(asked.document) : asked.text;
        exitCode = asked.exitCode;
    } catch (const Failure& failure) {
        document["failure"] = failure.what();
        end = std::string("Failure\n  ") + failure.what() + "\n";
        exitCode = failure.exitCode;
    }
    document["trace"] = TraceDocument(trace.Messages(), ModuleObjects(family), answers);
    std::string text = TraceText(document["trace"]) + "\n" + end;
    if (UsesSystemSnmp()) {
        document["traceNote"] = kSystemNote;
        text = std::string(kSystemNote) + "\n\n" + text;
    }
    return {document, text, exitCode};
}
