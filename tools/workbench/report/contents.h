// All that a report shows of one model, as one document. Such documents of two models can be compared; one
// process can gather only one, since the module's tables are filled once.
#ifndef WORKBENCH_REPORT_CONTENTS_H
#define WORKBENCH_REPORT_CONTENTS_H

#include "workbench/lib/family_files.h"

// The dialogs in a folder (UTF-8) that `workbench dialogs` has filled: the rows of its lists, each with its
// `picture`, PNG in base 64. Throws Failure when a list or picture cannot be read.
Document ReadDialogs(const std::string& folder);

// The document:
//   name     of the model
//   facts    names and values
//   groups   documents of tables, by the titles of their sections
//   printer  see PrinterLooks
//   dialogs  as given
Document GatherContents(const FamilyFiles& family, const Document& dialogs);

#endif
