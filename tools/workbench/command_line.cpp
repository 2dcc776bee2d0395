// The commands of the program with their options. Only this file uses the command-line library.
#include "workbench/command_line.h"

#include "common/choices.h"
#include "workbench/commands/commands.h"
#include "workbench/lib/dialog_script.h"
#include "workbench/lib/model_dialogs.h"
#include "workbench/lib/printer_scene.h"
#include "workbench/lib/text.h"

#include <algorithm>
#include <CLI/CLI.hpp>
#include <memory>

namespace {

using Run = decltype(CommandLine::run);

template <Document (*kCommand)(const FamilyFiles& family)>
Run WithoutOptions(CLI::App& /*command*/) {
    return kCommand;
}

template <CommandResult (*kCommand)(const FamilyFiles& family, const std::string& agent)>
Run WithAddress(CLI::App& command) {
    const auto agent = std::make_shared<std::string>();
    command.add_option("ADDRESS", *agent, "IPv4 address or host name of the printer")->required();
    return [agent](const FamilyFiles& family) { return kCommand(family, *agent); };
}

template <Document (*kCommand)(const FamilyFiles& family, const std::string& out)>
Run WithOut(CLI::App& command) {
    const auto out = std::make_shared<std::string>();
    command.add_option("--out", *out, "The PNG file to write")->type_name("FILE")->required();
    return [out](const FamilyFiles& family) { return kCommand(family, *out); };
}

Run SetUpDiagnose(CLI::App& command) {
    command.footer("Ends with 0 when it finds nothing that is wrong, or notes only; otherwise 1.");
    return WithAddress<DiagnosePrinter>(command);
}

// One printer, or many.
Run SetUpQuery(CLI::App& command) {
    const auto address = std::make_shared<std::optional<std::string>>();
    const auto fleet = std::make_shared<FleetOptions>();
    CLI::Option* one = command.add_option("ADDRESS", *address, "IPv4 address or host name of the printer");
    CLI::Option* many =
        command
            .add_option("--list", fleet->list,
                        "Queries many printers: those in a file (- is the standard input), or in a range of "
                        "addresses such as 192.168.7.0/24; a line of the file has an address and a name")
            ->type_name("FILE|CIDR")
            ->excludes(one);
    command
        .add_option("--threads", fleet->threads,
                    "Queries so many of the list at once (default: " + std::to_string(kDefaultThreads) + ")")
        ->type_name("N")
        ->needs(many)
        ->check(CLI::Range(1, 64).description(""));
    command.add_flag("--csv", fleet->csv, "Writes the list as CSV")
        ->needs(many)
        ->excludes(command.get_option("--json"));
    const auto traces = std::make_shared<bool>(false);
    command.add_flag("--trace", *traces, "Shows every request and answer of the module first")
        ->excludes(many);
    command.footer(
        "Ends with 0 when the printer, or each of the list, has answered everything, whatever it needs; otherwise "
        "1.");
    return [=](const FamilyFiles& family) {
        if (!*address && !fleet->list)
            throw Failure(kExitUsage, "ADDRESS is required, or --list FILE|CIDR for many printers");
        if (fleet->list)
            return AskFleet(family, *fleet);
        return *traces ? TraceQuery(family, **address) : AskBySnmp(family, **address);
    };
}

void AddSetOption(CLI::App& command, std::vector<std::string>& assignments) {
    command.add_option("--set", assignments, "Sets an option feature, such as OpInTray3=DisOpInTray3")
        ->type_name("FEATURE=ITEM")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

Run SetUpCapabilities(CLI::App& command) {
    const auto assignments = std::make_shared<std::vector<std::string>>();
    AddSetOption(command, *assignments);
    return [assignments](const FamilyFiles& family) { return AskCapabilities(family, *assignments); };
}

Run SetUpAddress(CLI::App& command) {
    const auto options = std::make_shared<AddressOptions>();
    CLI::Option* record =
        command.add_option("--record", options->record, "Reads it from a settings record with this address")
            ->type_name("TEXT");
    command.add_option("--queue", options->queue, "Finds the address of this print queue's printer")
        ->type_name("NAME")
        ->excludes(record);
    return [options](const FamilyFiles& family) { return FindAddress(family, *options); };
}

Run SetUpView(CLI::App& command) {
    const auto options = std::make_shared<ViewOptions>();
    command.add_option("--out", options->out, "The PNG file to write")->type_name("FILE")->required();
    command.add_option("--size", options->size, "Size of the picture in pixels (default: 200x200)")
        ->type_name("WxH");
    AddSetOption(command, options->assignments);
    command
        .add_option("--from", options->from,
                    "Uses the options that the printer at this address reports; --set overrides them")
        ->type_name("ADDRESS");
    command
        .add_option("--machine", options->machine,
                    "Adds a second machine of this name and selects it, so that the picture shows its name")
        ->type_name("NAME");
    command.add_option("--tray", options->tray, "The paper source in use, such as InTray1")->type_name("KEY");
    command
        .add_option("--output-flag", options->outputFlags,
                    "Marks an output destination as in use, 1 to 9; can be repeated")
        ->type_name("N")
        ->check(CLI::Range(kFirstOutputFlag, kLastOutputFlag).description(""))
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    command.add_flag("--machine-only", options->machineOnly, "Omits the paper path");
    return [options](const FamilyFiles& family) { return DrawView(family, *options); };
}

Run SetUpMontage(CLI::App& command) {
    const auto out = std::make_shared<std::string>();
    const auto pictures = std::make_shared<std::vector<std::string>>();
    command.add_option("--out", *out, "The PNG file to write")->type_name("FILE")->required();
    command.add_option("PICTURE", *pictures, "PNG files")->required();
    return [=](const FamilyFiles& /*family*/) { return MakeMontage(*pictures, *out); };
}

std::string DialogHelp() {
    std::string kinds[2]; // colours, trays
    for (const ModelDialog& dialog : AllDialogs()) {
        AddPart(kinds[dialog.isForTrays ? 1 : 0], std::to_string(dialog.id));
    }
    return "The dialog: " + kinds[0] + " (colours) or " + kinds[1] + " (trays)";
}

Run SetUpDialog(CLI::App& command) {
    const auto options = std::make_shared<DialogOptions>();
    command.add_option("ID", options->id, DialogHelp())->required();
    command.add_option("--out", options->out, "Saves a picture of the dialog before it closes")
        ->type_name("FILE");
    command
        .add_option("--script", options->script,
                    "Runs these actions, then cancels the dialog if it is still open")
        ->type_name("FILE");
    command.add_flag("--open", options->waitsForPerson,
                     "Leaves the dialog open for a person after the script");
    command.add_option("--profiles", options->profiles, "Colour profiles stored in the printer (JSON)")
        ->type_name("FILE");
    command
        .add_option("--settings", options->settings,
                    "Initial settings, a record of 7808 bytes (default: the model's defaults)")
        ->type_name("FILE");
    command
        .add_option("--from", options->from,
                    "Uses the papers that the printer at this address reports; otherwise they are unknown")
        ->type_name("ADDRESS");
    command.add_flag("--short-rgb", options->isShort, "Offers only device RGB and sRGB as RGB sources");
    command.add_flag("--locked", options->isLocked, "Shows the settings without allowing changes");
    command.footer(ScriptHelp());
    return [options](const FamilyFiles& family) { return UseDialog(family, *options); };
}

Run SetUpDialogs(CLI::App& command) {
    const auto out = std::make_shared<std::string>();
    command.add_option("--out", *out, "Folder for the pictures")->type_name("DIR")->required();
    return [out](const FamilyFiles& family) { return PictureDialogs(family, *out); };
}

Run SetUpReport(CLI::App& command) {
    const auto options = std::make_shared<ReportOptions>();
    CLI::Option* out =
        command.add_option("--out", options->out, "Folder for the page, report.html")->type_name("DIR");
    command.add_option("--contents", options->contents, "Writes the contents of the page as JSON")
        ->type_name("FILE");
    command.add_option("--dialogs", options->dialogs, "Folder that 'workbench dialogs' has filled")
        ->type_name("DIR");
    command.add_option("--findings", options->findings, "What 'prmc check --json' has found (JSON)")
        ->type_name("FILE")
        ->needs(out);
    CLI::Option* against =
        command
            .add_option("--against", options->against,
                        "Compares with the model in this folder of TELMAR_D.DLL and TELMAR_D.PRM")
            ->type_name("DIR")
            ->needs(out);
    command.add_option("--against-dialogs", options->againstDialogs, "The dialogs of that model")
        ->type_name("DIR")
        ->needs(against);
    return [options](const FamilyFiles& family) { return MakeReport(family, *options); };
}

Run SetUpRun(CLI::App& command) {
    const auto file = std::make_shared<std::string>();
    command.add_option("--state", *file, "Where to keep the settings (default: a file of the user's)")
        ->type_name("FILE");
    return [file](const FamilyFiles& family) { return RunSheet(family, *file); };
}

Run SetUpTour(CLI::App& command) {
    const auto options = std::make_shared<TourOptions>();
    command.add_option("--out", options->out, "Folder for the pictures")->type_name("DIR")->required();
    command.add_option("--from", options->from, "Queries this printer (IPv4 address or host name)")
        ->type_name("ADDRESS");
    command.add_option("--state", options->state, "Where to keep the settings; otherwise they are not kept")
        ->type_name("FILE");
    command.add_flag("--reset", options->resets, "Resets all settings at the end");
    return [options](const FamilyFiles& family) { return TourSheet(family, *options); };
}

constexpr struct {
    const char* name;
    const char* summary;
    Run (*setUp)(CLI::App& command); // adds the command's own options
} kCommands[] = {
    {"describe", "Shows the model: switches, facts, ranges and lists", WithoutOptions<Describe>},
    {"capabilities", "Shows the paper sources, duplex and stapling that the module reports",
     SetUpCapabilities},
    {"defaults", "Shows the default settings, field by field", WithoutOptions<ShowDefaults>},
    {"query", "Queries a printer by SNMP for options, supplies, overlays and profiles", SetUpQuery},
    {"diagnose", "Finds out what is wrong with a printer on the network and what to do about it",
     SetUpDiagnose},
    {"status", "Queries a printer through the bidirectional library for options and trays",
     WithAddress<AskByLibrary>},
    {"texts", "Shows the dialogs' texts, colour lists and media type lists", WithoutOptions<ShowTexts>},
    {"address", "Shows the network address that the module finds for a printer", SetUpAddress},
    {"view", "Saves the module's picture of the printer with its options", SetUpView},
    {"logo", "Saves the module's logo", WithOut<DrawLogo>},
    {"gallery", "Saves a sheet of the module's pictures of the printer", WithOut<DrawGallery>},
    {"montage", "Combines pictures on one sheet", SetUpMontage},
    {"dialog", "Opens one of the model's dialogs, uses it and shows the changes", SetUpDialog},
    {"dialogs", "Saves pictures of the model's dialogs as they open", SetUpDialogs},
    {"report", "Writes a web page that shows the model", SetUpReport},
    {"run", "Opens the property sheet as a user of the driver sees it", SetUpRun},
    {"tour", "Opens the property sheet, uses its pages and saves a picture of each", SetUpTour},
};

// What is wrong with the name of a language; empty: nothing.
std::string LanguageFault(const std::string& name) {
    const std::vector<std::string> names = {"en", "de"};
    const bool isKnown = std::find(names.begin(), names.end(), name) != names.end();
    return isKnown ? "" : "there is no language '" + name + "'; " + Choices(names);
}

void AddCommands(CLI::App& app, CommandLine& line) {
    app.require_subcommand(1);
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    for (const auto& row : kCommands) {
        CLI::App& command = *app.add_subcommand(row.name, row.summary)->group("Commands");
        command
            .add_option("--folder", line.folder,
                        "Folder of TELMAR_D.DLL and TELMAR_D.PRM (default: the program's)")
            ->type_name("DIR");
        command
            .add_option("--language", line.language,
                        "Language of windows, en or de (default: the user's); other output is English")
            ->type_name("LANGUAGE")
            ->check(CLI::Validator(LanguageFault, ""));
        command.add_flag("--json", line.json, "Writes JSON instead of text");
        command.callback([&line, run = row.setUp(command)] { line.run = run; });
    }
}

// The commands, if there are any, and the options at this place of the line.
std::string ChoicesAt(const CLI::App& place) {
    std::vector<std::string> names;
    for (const CLI::App* command : place.get_subcommands([](const CLI::App*) { return true; }))
        names.push_back(command->get_name());
    for (const CLI::Option* option : place.get_options())
        names.push_back(option->get_name());
    return Choices(names);
}

// What is wrong with the line. An unknown word is reported first: it often explains what is missing.
std::string ParseErrorText(const CLI::App& app, const CLI::ParseError& error) {
    if (app.remaining_size(true) == 0)
        return error.what();
    const bool inCommand = app.remaining_size() == 0;
    const CLI::App& place = inCommand ? *app.get_subcommands().front() : app;
    return (inCommand ? place.get_name() + " has no option '" : "no command '") + place.remaining().front()
           + "'; " + ChoicesAt(place);
}

} // namespace

CommandLine ReadCommandLine(const std::vector<std::string>& arguments) {
    CLI::App app("Shows how the QUORVANE lumora R880 driver module TELMAR_D.DLL behaves", "workbench");
    CommandLine line;
    app.set_version_flag("--version", "workbench " PROJECT_VERSION);
    AddCommands(app, line);
    try {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend())); // the last one first
    } catch (const CLI::CallForHelp&) {
        line.help = app.help();
    } catch (const CLI::CallForVersion&) {
        line.help = app.version() + "\n";
    } catch (const CLI::ParseError& error) {
        throw Failure(kExitUsage, ParseErrorText(app, error));
    }
    return line;
}
