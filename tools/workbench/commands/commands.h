// The commands of the program: functions from the driver's files and plain options to a document. A new
// command is one file, one declaration here, and its name and options in command_line.cpp. All texts are
// UTF-8. Each throws Failure when it can't answer.
#ifndef WORKBENCH_COMMANDS_COMMANDS_H
#define WORKBENCH_COMMANDS_COMMANDS_H

#include "workbench/lib/family_files.h"

#include <optional>
#include <string>
#include <vector>

// What the model offers: switches, facts, ranges and every list, from the parameter data file.
Document Describe(const FamilyFiles& family);

// The built-in default settings: every field with its offset and value.
Document ShowDefaults(const FamilyFiles& family);

// The texts of the dialogs' controls, the colour lists, and the lists and columns of the tray settings.
Document ShowTexts(const FamilyFiles& family);

// What the module answers to the device-capability questions, with options set as by SetOption.
Document AskCapabilities(const FamilyFiles& family, const std::vector<std::string>& assignments);

// What a printer answers to SNMP requests: options, supplies, overlays and colour profiles.
Document AskBySnmp(const FamilyFiles& family, const std::string& agent);

// What a printer answers through the bidirectional library: options and input trays.
Document AskByLibrary(const FamilyFiles& family, const std::string& agent);

// The network address that the module finds for a print queue or in a settings record; one of the two.
struct AddressOptions {
    std::optional<std::string> record;
    std::optional<std::string> queue;
};
Document FindAddress(const FamilyFiles& family, const AddressOptions& options);

// The picture of the printer with the options as wanted, written as PNG.
struct ViewOptions {
    std::string out;
    std::string size = "200x200";
    std::vector<std::string> assignments; // for SetOption
    std::optional<std::string> tray;
    std::vector<int> outputFlags;
    bool machineOnly = false;
    std::optional<std::string> from;
    std::optional<std::string> machine;
};
Document DrawView(const FamilyFiles& family, const ViewOptions& options);

// The logo picture of the version page, written as PNG.
Document DrawLogo(const FamilyFiles& family, const std::string& out);

// One sheet of all telling pictures of the printer, written as PNG.
Document DrawGallery(const FamilyFiles& family, const std::string& out);

// Pictures on one sheet, written as PNG.
Document MakeMontage(const std::vector<std::string>& paths, const std::string& out);

// One of the model's dialogs, used by a script or a person: what it shows and which settings it changes.
struct DialogOptions {
    std::string id;
    std::optional<std::string> out;
    std::optional<std::string> profiles;
    std::optional<std::string> settings;
    std::optional<std::string> script;
    std::optional<std::string> from;
    bool isShort = false;
    bool isLocked = false;
    bool waitsForPerson = false;
};
Document UseDialog(const FamilyFiles& family, const DialogOptions& options);

// The property sheet, for a person; its settings are kept in this file, of the user's own when it is empty.
Document RunSheet(const FamilyFiles& family, const std::string& file);

// The same, used by the program: a picture of each page.
struct TourOptions {
    std::string out;
    std::string from;
    std::string state;
    bool resets = false;
};
Document TourSheet(const FamilyFiles& family, const TourOptions& options);

#endif
