// YAML text to model. Reports every fault of the form (unknown names, wrong shapes, missing fields); the
// rules on the contents are in rules.h.
#ifndef PRMC_YAML_READER_H
#define PRMC_YAML_READER_H

#include "prmc/model.h"

#include <string>

// What could be read comes back even when there are faults, so that the rules can report theirs too.
Model ReadYaml(const std::string& text, Findings& findings);

#endif
