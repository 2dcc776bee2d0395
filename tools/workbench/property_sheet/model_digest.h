// The identity of a model, as far as kept settings refer to it.
#ifndef WORKBENCH_PROPERTY_SHEET_MODEL_DIGEST_H
#define WORKBENCH_PROPERTY_SHEET_MODEL_DIGEST_H

#include "workbench/lib/family_files.h"

// A number, as hexadecimal digits, from the keys and values of all lists of the model. Texts and the order of
// the lists' items have no part in it, so settings survive a corrected or translated text.
std::string ModelDigest(const FamilyFiles& family);

#endif
