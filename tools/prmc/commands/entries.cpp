// The commands entries and schema.
#include "common/text.h"
#include "prmc/commands/output.h"
#include "prmc/reference/json_schema.h"
#include "prmc/reference/reference.h"

#include <stdexcept>

namespace {

// The entries of these names, or all when there is no name.
std::vector<const EntryRow*> FindEntries(const std::vector<std::string>& names) {
    std::vector<const EntryRow*> rows;
    std::vector<std::string> known;
    for (const EntryRow& row : KnownEntries()) {
        known.push_back(row.name);
        if (names.empty())
            rows.push_back(&row);
    }
    for (const std::string& name : names) {
        rows.push_back(FindEntryRow(name));
        if (!rows.back())
            throw std::runtime_error("unknown entry " + Quote(name) + NearestHint(name, known)
                                     + "\n'prmc entries' lists all.");
    }
    return rows;
}

} // namespace

ExitCode DescribeEntries(const std::vector<std::string>& names, bool isJson, bool isMarkdown) {
    const std::vector<const EntryRow*> rows = FindEntries(names);
    if (isJson)
        Print(JsonReference(rows));
    else if (isMarkdown)
        Print(names.empty() ? MarkdownDocument() : MarkdownSections(rows));
    else
        Print(names.empty() ? ShortReference() : FullReference(rows));
    return kDone;
}

ExitCode PrintSchema() {
    Print(ModelJsonSchema());
    return kDone;
}
