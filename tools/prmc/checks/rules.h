// Rules on a model's contents, the same for YAML and binary files.
#ifndef PRMC_CHECKS_RULES_H
#define PRMC_CHECKS_RULES_H

#include "prmc/model.h"

void CheckRules(const Model& model, Findings& findings);

#endif
