// The paper in the trays as the tray-setting dialogs edit it: unknown or as a printer reports it, and what
// differs between two states.
#ifndef WORKBENCH_LIB_TRAY_PAPERS_H
#define WORKBENCH_LIB_TRAY_PAPERS_H

#include "workbench/lib/localized_text.h"
#include "workbench/lib/printer_queries.h"

#include <array>

using TrayPapers = std::array<TrayPaperSetting, TELMAR_TRAY_COUNT>;

// The model's trays in the order of the device table, with all attributes unknown.
TrayPapers UnknownPapers(const FamilyFiles& family);

// As a printer has reported them. Trays that it has not reported stay unknown.
TrayPapers PapersOf(const FamilyFiles& family, const TrayAnswers& answers);

// Asks the printer through the bidirectional library. Throws PrinterFailure when the query fails.
TrayPapers AskPapers(const FamilyFiles& family, const std::string& address);

// Whether the printer has this tray. The size of a tray that it lacks is unknown.
bool IsTrayReported(const InputTrayStatusItem& answer);

// What a paper source is called in the model; the key itself when it has no other name.
std::string TrayName(const FamilyFiles& family, const char* key);

// The sheets in a tray, such as "430 sheets" or "empty". Empty when they are not known.
std::string TrayLevel(const InputTrayStatusItem& answer, LANGID language = kEnglish);

// A row for each attribute that differs: tray, attribute, names before and after, and the value after.
Document PaperChanges(const TrayPapers& before, const TrayPapers& after);

// A row for each tray with the names of its attributes.
Document PapersDocument(const TrayPapers& papers);

#endif
