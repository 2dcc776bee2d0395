// The text form of a document: sections of aligned tables for a person to read. Knows nothing of what is
// shown.
#ifndef WORKBENCH_LIB_TEXT_FORM_H
#define WORKBENCH_LIB_TEXT_FORM_H

#include "workbench/lib/document.h"

// The document is an object of sections. An object of plain values becomes name and value, line by line; an
// array of objects a table with one column per field; an object of arrays its tables one after the other;
// null is "none".
std::string TextForm(const Document& document);

#endif
