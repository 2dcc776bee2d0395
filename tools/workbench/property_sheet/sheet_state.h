// The state of the property sheet: settings, options, trays and address, which are kept between runs, and the
// results of the last query of a printer. All pages share one state and use it on the sheet's thread.
#ifndef WORKBENCH_PROPERTY_SHEET_SHEET_STATE_H
#define WORKBENCH_PROPERTY_SHEET_SHEET_STATE_H

#include "workbench/lib/capability_questions.h"
#include "workbench/lib/dialog_script.h"
#include "workbench/lib/printer_queries.h"
#include "workbench/lib/printer_scene.h"
#include "workbench/lib/profile_file.h"
#include "workbench/lib/tray_papers.h"

#include <optional>

// The results of querying a printer, as far as the query has succeeded.
struct DeviceReport {
    std::string address; // of the printer
    Transport transport = Transport::kSnmp;
    std::vector<UINT> missing; // texts of what could not be queried
    std::string warning;       // of a device that does not say that it is of this model
    OptionAnswers options;     // also those that the trays imply
    TrayAnswers trays;         // empty: not reported
    Supplies supplies;
    StoredResources overlays[2]; // by storage
    StoredProfiles profiles;

    // Of the same printer, since it was last queried by the person: answers before their last change.
    OptionAnswers optionsBefore;
    Supplies suppliesBefore;
};

// A program that uses the sheet instead of a person.
struct SheetUser {
    DialogScript script;                // for the next dialog that is opened
    std::vector<std::string> failures;  // that a person would see in a message box
    std::vector<std::string> questions; // that a person would be asked
    bool confirms = true;               // the answer to them
};

struct SheetState {
    SheetState(const FamilyFiles& familyFiles, HINSTANCE dialogTemplates);

    const FamilyFiles& family;
    const HINSTANCE templates; // of the model's dialogs

    // Kept between runs.
    OemDevmode settings;
    OptionFeatures options;
    std::string address;    // of the printer
    std::string reportedBy; // address of the printer that reported options and papers; empty: none
    std::string reportedOn; // date and time of that, local: YYYY-MM-DD HH:MM
    std::vector<std::string> notReported; // keys of the options that it has not reported
    std::vector<std::string> addresses;   // of printers that have answered, the last one first
    bool isRefreshed = true;              // queries the printer again every minute
    TrayPapers papers;
    std::optional<POINT> place; // of the sheet's window on the screen, in pixels

    DeviceReport report;                   // of the last query; its address is empty when that has failed
    std::string status;                    // of the query, as shown to the user; empty: no query yet
    std::optional<PrinterFailure> failure; // of the last query; none: it was answered
    bool isQuerying = false;
    bool hasChanges = false;    // that are not saved yet
    bool wasSaved = false;      // since the sheet has been opened
    std::filesystem::path file; // where the state is kept; empty: nowhere
    Document saved;             // what the file contains
    SheetUser* user = nullptr;  // null: a person
};

// Resets everything that is kept to the model's defaults.
void ResetState(SheetState& state);

// Loads the state's file if it exists. What is missing in it stays as it is. Nothing is taken from the file
// of another model, or from a damaged one, which is renamed; the result is then a warning for the user,
// otherwise it is empty. Throws Failure when the file cannot be read or renamed.
std::string LoadState(SheetState& state);

// Saves the state if it has changed. Throws Failure that says what the user can do when the file cannot be
// written.
void SaveState(SheetState& state);

// Saves where the window is, and nothing else. A failure is ignored.
void SavePlace(SheetState& state, POINT place);

// Whether the state has been saved, and where.
Document SavingDocument(const SheetState& state);

// The user's own file, by default. Creates its folder.
std::filesystem::path StateFile();

// The paper sources that the module offers with the installed options. If the current one is not among them,
// the first becomes the current one.
std::vector<PaperSource> OfferedSources(SheetState& state);

// The picture of the printer with its options and the path from the current paper source.
PrinterScene SceneOf(const SheetState& state);

// The colour profiles of the printer for the model's dialogs.
PrinterProfiles ProfilesOf(const SheetState& state);

#endif
