// Documents as JSON. Only this file's implementation uses the JSON library.
#ifndef WORKBENCH_LIB_JSON_FORM_H
#define WORKBENCH_LIB_JSON_FORM_H

#include "workbench/lib/document.h"

// `indent` is the number of blanks for each level; -1 writes everything on one line.
std::string JsonForm(const Document& document, int indent = -1);

// Throws Failure when the text is not JSON or is nested too deeply. The message begins with `name`, the
// file's.
Document ParseJson(const std::string& text, const std::string& name);

#endif
