// Documents as text for people: sections of aligned tables. Independent of what the documents are about.
#ifndef WORKBENCH_LIB_TEXT_FORM_H
#define WORKBENCH_LIB_TEXT_FORM_H

#include "workbench/lib/document.h"

// The document is an object of sections. A section that is an object of plain values becomes lines of name
// and value, a list of objects becomes a table with a column for each field, an object of lists becomes one
// table after the other, and null becomes "none".
std::string TextForm(const Document& document);

#endif
