// Model to binary parameter data file. The bytes depend only on the model: the header, then for each entry in
// order the entry itself, its range, the item offset array, the records, pairs, keys and display names.
#ifndef PRMC_FORMS_PRM_WRITER_H
#define PRMC_FORMS_PRM_WRITER_H

#include "prmc/model.h"

#include <cstdint>
#include <vector>

// The model must have passed the rules. Unused bytes are 0.
std::vector<uint8_t> WritePrm(const Model& model);

#endif
