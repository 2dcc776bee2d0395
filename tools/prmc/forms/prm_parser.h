// Binary parameter data file to model. The input is untrusted: every defect becomes a finding and the
// readable rest is returned. Time and memory are bounded by the file's size.
#ifndef PRMC_FORMS_PRM_PARSER_H
#define PRMC_FORMS_PRM_PARSER_H

#include "prmc/model.h"

#include <string_view>

// Errors: broken or looping chains, offsets outside the file, overlapping blocks, missing terminators,
// impossible counts. Notes: contents that the model has no field for. The rules on the contents are in
// rules.h.
Model ParsePrm(std::string_view bytes, Findings& findings);

#endif
