// The commands of the program. Each takes the driver's files and plain options and returns a document. A new
// command is one file, one declaration here, and its name and options in command_line.cpp. All texts are
// UTF-8. All commands throw Failure when they cannot answer.
#ifndef WORKBENCH_COMMANDS_COMMANDS_H
#define WORKBENCH_COMMANDS_COMMANDS_H

#include "workbench/lib/family_files.h"

#include <optional>
#include <string>
#include <vector>

class TrafficTrace;

// What a command answers. Most have only a document.
struct CommandResult {
    CommandResult(Document answers, std::string forPeople = {}, int code = 0)
        : document(std::move(answers)), text(std::move(forPeople)), exitCode(code) {}

    Document document;
    std::string text; // instead of the document when JSON is not asked for; empty: the document as text
    int exitCode;
};

// The device table: switches, facts, ranges and all lists of the model; and its paper sources.
Document Describe(const FamilyFiles& family);

// The default print settings: every field with its offset and value.
Document ShowDefaults(const FamilyFiles& family);

// The texts of the dialogs' controls, the colour lists, and the lists and columns of the tray settings.
Document ShowTexts(const FamilyFiles& family);

// What the module answers about device capabilities, with options assigned as by SetOption.
Document AskCapabilities(const FamilyFiles& family, const std::vector<std::string>& assignments);

// What a printer answers to SNMP requests: options, supplies, overlays and colour profiles.
CommandResult AskBySnmp(const FamilyFiles& family, const std::string& address);

// The same with this trace, which has recorded nothing before.
CommandResult AskBySnmp(const FamilyFiles& family, const std::string& address, const TrafficTrace& trace);

// The same of many printers, what needs attention first.
constexpr int kDefaultThreads = 16;
struct FleetOptions {
    std::optional<std::string> list; // a file, "-" for the standard input, or a range of addresses
    int threads = kDefaultThreads;
    bool csv = false;
};
CommandResult AskFleet(const FamilyFiles& family, const FleetOptions& options);

// What AskBySnmp answers, with all requests and answers of the module, also when the query fails.
CommandResult TraceQuery(const FamilyFiles& family, const std::string& address);

// What is wrong with a printer, or the way to it. Exit code kExitFailed when anything is.
CommandResult DiagnosePrinter(const FamilyFiles& family, const std::string& address);

// What a printer answers through the bidirectional library: options and input trays.
CommandResult AskByLibrary(const FamilyFiles& family, const std::string& address);

// The network address that the module finds for a print queue or in a settings record; one of the two is
// given.
struct AddressOptions {
    std::optional<std::string> record;
    std::optional<std::string> queue;
};
Document FindAddress(const FamilyFiles& family, const AddressOptions& options);

// Writes the picture of the printer as PNG.
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

// Writes the logo of the version page as PNG.
Document DrawLogo(const FamilyFiles& family, const std::string& out);

// Writes one sheet of pictures of the printer as PNG.
Document DrawGallery(const FamilyFiles& family, const std::string& out);

// Writes one sheet of the given pictures as PNG.
Document MakeMontage(const std::vector<std::string>& paths, const std::string& out);

// Opens one of the model's dialogs for a script or a person; returns what it shows and which settings it
// changes.
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

// Writes a picture of each of the model's dialogs into the folder, ID-DPI.png, and a list of them,
// dialogs-DPI.json, with the controls of each.
Document PictureDialogs(const FamilyFiles& family, const std::string& out);

// Writes the page of the model, FOLDER/report.html, or its contents as JSON.
struct ReportOptions {
    std::optional<std::string> out;
    std::optional<std::string> contents;
    std::optional<std::string> dialogs;
    std::optional<std::string> findings;
    std::optional<std::string> against;
    std::optional<std::string> againstDialogs;
};
Document MakeReport(const FamilyFiles& family, const ReportOptions& options);

// The property sheet, for a person. Its settings are kept in this file, or in the user's own if the name is
// empty.
Document RunSheet(const FamilyFiles& family, const std::string& file);

// The property sheet, used by the program. Saves a picture of each page.
struct TourOptions {
    std::string out;
    std::string from;
    std::string state;
    bool resets = false;
};
Document TourSheet(const FamilyFiles& family, const TourOptions& options);

#endif
