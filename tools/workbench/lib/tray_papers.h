// The paper in the trays, for the tray-setting dialogs: unknown, or as a printer tells it; and what has
// changed.
#ifndef WORKBENCH_LIB_TRAY_PAPERS_H
#define WORKBENCH_LIB_TRAY_PAPERS_H

#include "trays/tray_settings.h"
#include "workbench/lib/family_files.h"

#include <array>

using TrayPapers = std::array<TrayPaperSetting, TELMAR_TRAY_COUNT>;

// Of the model's trays nothing is known. They are in the order in which the dialogs list them.
TrayPapers UnknownPapers(const FamilyFiles& family);

// As the printer tells through the bidirectional library. Throws Failure when it can't be asked.
TrayPapers AskPapers(const FamilyFiles& family, const std::string& agent);

// Tray, attribute, names and values before and after of what differs; and of every tray what is set now.
Document PaperChanges(const TrayPapers& before, const TrayPapers& after);
Document PapersDocument(const TrayPapers& papers);

#endif
