// The reference of the entries, as text for a terminal, as Markdown and as JSON.
#ifndef PRMC_REFERENCE_REFERENCE_H
#define PRMC_REFERENCE_REFERENCE_H

#include "prmc/schema/schema.h"

#include <string>
#include <vector>

// One line for each entry.
std::string ShortReference();

// Everything about the entries, for a terminal.
std::string FullReference(const std::vector<const EntryRow*>& rows);

// The same as sections of a document. Kinds are links to the whole document's sections.
std::string MarkdownSections(const std::vector<const EntryRow*>& rows);

// The whole document: contents, kinds, all entries.
std::string MarkdownDocument();

// An array of objects, one for each entry.
std::string JsonReference(const std::vector<const EntryRow*>& rows);

#endif
