// What must hold for a model besides its form: the same rules for a model read from YAML and from a binary
// file.
#ifndef PRMC_RULES_H
#define PRMC_RULES_H

#include "prmc/model.h"

void CheckRules(const Model& model, Findings& findings);

#endif
