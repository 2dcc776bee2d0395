// What the property sheet shows and changes: the settings, options, trays and address that are kept between
// runs, and what a printer has told. All pages work on one of these, on the sheet's thread.
#ifndef PROPERTY_SHEET_SHEET_STATE_H
#define PROPERTY_SHEET_SHEET_STATE_H

#include "../device_options.h"
#include "../device_resources.h"
#include "../dialog_script.h"
#include "../printer_scene.h"
#include "../profile_file.h"
#include "../tray_papers.h"

// What a printer has told, as far as it has been asked.
struct DeviceReport {
    std::string road; // over which; for a person
    OptionAnswers options;
    TrayPapers papers;
    bool hasPapers = false;
    Supplies supplies;
    StoredResources overlays[2]; // by storage
    StoredProfiles profiles;
};

struct SheetState {
    SheetState(const FamilyFiles& familyFiles, HINSTANCE dialogTemplates);

    const FamilyFiles& family;
    const HINSTANCE templates; // of the model's dialogs

    // Kept between runs.
    OemDevmode settings;
    PrinterScene scene;  // options, and the key of the paper source
    std::string address; // of the printer
    TrayPapers papers;

    DeviceReport report;
    bool hasReport = false;
    std::filesystem::path file;     // where OK and Apply keep it; empty: nowhere
    DialogScript* script = nullptr; // uses the model's dialogs in place of a person; null: none does
};

// Puts everything that is kept back to what the model has of itself.
void ResetState(SheetState& state);

// Reads what has been kept in the state's file, if there is one; what is missing, or doesn't fit the model,
// stays as it is. Throws Failure when it is no file of this kind.
void LoadState(SheetState& state);

// Throws Failure when the file can't be written.
void SaveState(const SheetState& state);

// Where a person's settings are kept; its folder is made.
std::filesystem::path StateFile();

// Takes over what a printer has told.
void TakeReport(SheetState& state, DeviceReport report);

// The printer's colour profiles, as the model's dialogs want them.
PrinterProfiles ProfilesOf(const SheetState& state);

#endif
