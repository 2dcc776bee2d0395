// Binary parameter data file to model. Takes any bytes at all: whatever is wrong with them becomes a finding,
// and what can be told comes back. Work and memory are bounded by the file's size.
#ifndef PRMC_PRM_PARSER_H
#define PRMC_PRM_PARSER_H

#include "prmc/model.h"

#include <string_view>

// Errors: broken or looping chains, offsets outside the file, blocks that overlap, missing terminators,
// counts that can't be true. Notes: contents that the model can't hold, such as words that no reader reads.
// The rules on the contents are in rules.h.
Model ParsePrm(std::string_view bytes, Findings& findings);

#endif
