// The differences between two models.
#ifndef PRMC_DIFF_H
#define PRMC_DIFF_H

#include "prmc/model.h"

#include <string>
#include <vector>

// One line for each difference: "ENTRY/ITEM/FIELD: A -> B", an element that only one model has, or a
// different order.
std::vector<std::string> DiffModels(const Model& a, const Model& b);

#endif
