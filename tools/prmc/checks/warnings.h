// Warnings about a model: its data are valid, but the driver ignores some of them or uses them in another way
// than their author expects.
#ifndef PRMC_CHECKS_WARNINGS_H
#define PRMC_CHECKS_WARNINGS_H

#include "prmc/model.h"

// Call this after the rules. What a model lacks is reported only when there are no errors: an error may be
// the reason.
void FindWarnings(const Model& model, Findings& findings);

#endif
