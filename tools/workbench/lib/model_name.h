// What a model is called.
#ifndef WORKBENCH_LIB_MODEL_NAME_H
#define WORKBENCH_LIB_MODEL_NAME_H

#include "workbench/lib/family_files.h"

// The first machine's name, from the machine information or else from the machines to choose from; empty when
// the model has neither.
std::string ModelName(const FamilyFiles& family);

#endif
