// The command entries: finds the entries and writes them in the form that is asked for.
#include "common/text.h"
#include "prmc/commands/commands.h"
#include "prmc/reference.h"

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

std::string DescribeEntries(const std::vector<std::string>& names, bool isJson, bool isMarkdown) {
    const std::vector<const EntryRow*> rows = FindEntries(names);
    if (isJson)
        return JsonReference(rows);
    if (isMarkdown)
        return names.empty() ? MarkdownDocument() : MarkdownSections(rows);
    return names.empty() ? ShortReference() : FullReference(rows);
}
