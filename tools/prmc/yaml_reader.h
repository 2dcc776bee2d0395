// YAML text to model. Reports every structural error: unknown names, wrong types, missing fields. The rules
// on the contents are in rules.h.
#ifndef PRMC_YAML_READER_H
#define PRMC_YAML_READER_H

#include "prmc/model.h"

#include <string>

// Returns what could be read even when there are errors, so that the rules can report theirs too.
Model ReadYaml(const std::string& text, Findings& findings);

#endif
