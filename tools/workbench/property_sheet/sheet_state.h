// What the property sheet shows and changes: the settings, options, trays and address that are kept between
// runs, and what a printer has told. All pages work on one of these, on the sheet's thread.
#ifndef WORKBENCH_PROPERTY_SHEET_SHEET_STATE_H
#define WORKBENCH_PROPERTY_SHEET_SHEET_STATE_H

#include "workbench/lib/capability_questions.h"
#include "workbench/lib/device_options.h"
#include "workbench/lib/device_resources.h"
#include "workbench/lib/dialog_script.h"
#include "workbench/lib/printer_scene.h"
#include "workbench/lib/profile_file.h"
#include "workbench/lib/tray_papers.h"

// What a printer has told, as far as it has been asked.
struct DeviceReport {
    std::string address;   // whose report it is
    std::string transport; // for a person
    std::string missing;   // for a person: what it has not told; empty: nothing
    OptionAnswers options;
    TrayPapers papers;
    bool hasPapers = false;
    Supplies supplies;
    StoredResources overlays[2]; // by storage
    StoredProfiles profiles;
};

// A program that uses the sheet in place of a person.
struct SheetUser {
    DialogScript script;               // for the model's dialog that is opened next
    std::vector<std::string> failures; // that a person would be told of
};

struct SheetState {
    SheetState(const FamilyFiles& familyFiles, HINSTANCE dialogTemplates);

    const FamilyFiles& family;
    const HINSTANCE templates; // of the model's dialogs

    // Kept between runs.
    OemDevmode settings;
    OptionFeatures options;
    std::string address; // of the printer
    std::string toldBy;  // address of the printer that options and papers come from; empty: from none
    TrayPapers papers;

    DeviceReport report; // of the printer that has been asked last; its address is empty when none has told
    std::string status;  // of asking, for a person
    bool isAsking = false;
    bool hasChanges = false;    // that are not kept yet
    std::filesystem::path file; // where they are kept; empty: nowhere
    SheetUser* user = nullptr;  // null: a person
};

// Puts everything that is kept back to what the model has of itself.
void ResetState(SheetState& state);

// Reads what has been kept in the state's file, if there is one; what is missing, or doesn't fit the model,
// stays as it is. A file that is none of this kind is put aside under another name; the answer then says so,
// otherwise it is empty.
std::string LoadState(SheetState& state);

// Keeps what has changed. Throws Failure when the file can't be written.
void SaveState(SheetState& state);

// Where a person's settings are kept; its folder is made.
std::filesystem::path StateFile();

// Takes over what a printer has told. What it doesn't tell stays if it comes from the same printer.
void TakeReport(SheetState& state, DeviceReport report);

// The paper sources that the module offers for what is installed. When the one in the settings is none of
// them, the first takes its place.
std::vector<PaperSource> OfferedSources(SheetState& state);

// What the picture shows: the options, and the way from the paper source.
PrinterScene SceneOf(const SheetState& state);

// The printer's colour profiles, as the model's dialogs want them.
PrinterProfiles ProfilesOf(const SheetState& state);

#endif
