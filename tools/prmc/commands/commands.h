// Commands of prmc that are more than a call. They return what is printed and throw std::runtime_error.
#ifndef PRMC_COMMANDS_COMMANDS_H
#define PRMC_COMMANDS_COMMANDS_H

#include <string>
#include <vector>

// All entries in short, or those of these names in full; as JSON always in full, as Markdown without names
// the whole document.
std::string DescribeEntries(const std::vector<std::string>& names, bool isJson, bool isMarkdown);

#endif
