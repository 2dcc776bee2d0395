// The JSON form of a document: the one place that uses the JSON library.
#ifndef WORKBENCH_LIB_JSON_FORM_H
#define WORKBENCH_LIB_JSON_FORM_H

#include "workbench/lib/document.h"

// `indent` is the number of blanks for each level; without it all is on one line.
std::string JsonForm(const Document& document, int indent = -1);

// Throws Failure, which begins with `name`, the file's, when the text is not JSON (then with line and
// column), or its values lie very deep in one another.
Document ParseJson(const std::string& text, const std::string& name);

#endif
