// All that a report shows of one model, as one document. Such documents of two models can be compared; one
// process can gather only one, since the module's tables are filled once.
#ifndef WORKBENCH_REPORT_CONTENTS_H
#define WORKBENCH_REPORT_CONTENTS_H

#include "workbench/lib/family_files.h"

// `dialogs` is a folder (UTF-8) that `workbench dialogs` has filled, or empty. The document:
//   name     of the model
//   facts    names and values
//   groups   documents of tables, by the titles of their sections
//   printer  see PrinterLooks
//   dialogs  the rows of the folder's lists, each with its `picture`, PNG in base 64
// Throws Failure when a list or picture of the folder cannot be read.
Document GatherContents(const FamilyFiles& family, const std::string& dialogs);

#endif
