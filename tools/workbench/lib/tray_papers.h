// The paper in the trays as the tray-setting dialogs edit it: unknown or as a printer reports it, and what
// differs between two states.
#ifndef WORKBENCH_LIB_TRAY_PAPERS_H
#define WORKBENCH_LIB_TRAY_PAPERS_H

#include "workbench/lib/family_files.h"

#include <array>

using TrayPapers = std::array<TrayPaperSetting, TELMAR_TRAY_COUNT>;

// The model's trays in the order of the device table, with all attributes unknown.
TrayPapers UnknownPapers(const FamilyFiles& family);

// As the printer reports through the bidirectional library. Throws Failure when the request fails.
TrayPapers AskPapers(const FamilyFiles& family, const std::string& agent);

// A row for each attribute that differs: tray, attribute, names before and after, and the value after.
Document PaperChanges(const TrayPapers& before, const TrayPapers& after);

// A row for each tray with the names of its attributes.
Document PapersDocument(const TrayPapers& papers);

#endif
