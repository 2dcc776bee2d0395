// Findings as JSON, for programs that show them in an editor or a build's report.
#ifndef PRMC_FINDINGS_JSON_H
#define PRMC_FINDINGS_JSON_H

#include "common/findings.h"

#include <string>
#include <vector>

// An array of objects with file, line and column (for a binary file: offset, in bytes), severity and message,
// in the order of the findings. A finding about a whole line has no column. `files` are those that the places
// count.
std::string FindingsJson(const std::vector<std::string>& files, const Findings& findings);

#endif
