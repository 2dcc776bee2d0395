// Model to binary parameter data file. The layout is a function of the model alone: header, then for each
// entry in order the entry, its range, the item offset array, the records, the pairs, the keys and the
// display names.
#ifndef PRMC_PRM_WRITER_H
#define PRMC_PRM_WRITER_H

#include "prmc/model.h"

#include <cstdint>
#include <vector>

// The model must have passed the rules. Words that no reader reads are 0.
std::vector<uint8_t> WritePrm(const Model& model);

#endif
