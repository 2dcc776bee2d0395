// The commands of the program. Each adds its own options to the command line and leaves behind what to run
// once the line has been read; a new command is one file, one declaration here and one row of the table in
// main.cpp.
#ifndef WORKBENCH_COMMANDS_H
#define WORKBENCH_COMMANDS_H

#include "family_files.h"

#include <CLI/CLI.hpp>
#include <functional>

using Run = std::function<Document(const FamilyFiles& family)>;

// What the model offers: switches, facts, ranges and every list, from the parameter data file.
Run SetUpDescribe(CLI::App& command);

// The built-in default settings: every field with its offset and value.
Run SetUpDefaults(CLI::App& command);

// The texts of the dialogs' controls, the colour lists, and the lists and columns of the tray settings.
Run SetUpTexts(CLI::App& command);

// What the module answers to the device-capability questions.
Run SetUpCapabilities(CLI::App& command);

// What a printer answers to SNMP requests: options, supplies, overlays and colour profiles.
Run SetUpQuery(CLI::App& command);

// What a printer answers through the bidirectional library: options and input trays.
Run SetUpStatus(CLI::App& command);

// The network address that the module finds for a print queue or in a settings record.
Run SetUpAddress(CLI::App& command);

// The picture of the printer with the options as wanted, written as PNG.
Run SetUpView(CLI::App& command);

// The logo picture of the version page, written as PNG.
Run SetUpLogo(CLI::App& command);

// One sheet of all telling pictures of the printer, written as PNG.
Run SetUpGallery(CLI::App& command);

// Pictures on one sheet, written as PNG.
Run SetUpMontage(CLI::App& command);

// One of the model's dialogs, used by a script or a person: what it shows and which settings it changes.
Run SetUpDialog(CLI::App& command);

// The property sheet, for a person.
Run SetUpRun(CLI::App& command);

// The same, used by the program: a picture of each page.
Run SetUpTour(CLI::App& command);

#endif
