// The groups of warnings. `isWhole`: nothing of the model is missing because of an error, so that what it
// lacks can be reported, too.
#ifndef PRMC_CHECKS_WARNING_CHECKS_H
#define PRMC_CHECKS_WARNING_CHECKS_H

#include "prmc/model.h"

void CheckColors(const Model& model, bool isWhole, Findings& findings);
void CheckPaperSources(const Model& model, bool isWhole, Findings& findings);
void CheckLists(const Model& model, bool isWhole, Findings& findings);
void CheckTexts(const Model& model, bool isWhole, Findings& findings);
void CheckFeatures(const Model& model, bool isWhole, Findings& findings);

#endif
