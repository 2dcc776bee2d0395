// The command line: see the header. The one file that uses the library for command lines.
#include "workbench/command_line.h"

#include "workbench/commands/commands.h"
#include "workbench/lib/dialog_script.h"
#include "workbench/lib/printer_scene.h"

#include <CLI/CLI.hpp>
#include <memory>

namespace {

using Run = decltype(CommandLine::run);

template <Document (*kCommand)(const FamilyFiles& family)>
Run WithoutOptions(CLI::App& /*command*/) {
    return kCommand;
}

template <Document (*kCommand)(const FamilyFiles& family, const std::string& agent)>
Run WithAddress(CLI::App& command) {
    const auto agent = std::make_shared<std::string>();
    command.add_option("ADDRESS", *agent, "IPv4 address or host name of the printer")->required();
    return [agent](const FamilyFiles& family) { return kCommand(family, *agent); };
}

template <Document (*kCommand)(const FamilyFiles& family, const std::string& out)>
Run WithOut(CLI::App& command) {
    const auto out = std::make_shared<std::string>();
    command.add_option("--out", *out, "Where to write the PNG file")->type_name("FILE")->required();
    return [out](const FamilyFiles& family) { return kCommand(family, *out); };
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
    CLI::Option* record = command
                              .add_option("--record", options->record,
                                          "Takes it from a settings record that carries this address")
                              ->type_name("TEXT");
    command.add_option("--queue", options->queue, "Finds that of this print queue's printer")
        ->type_name("NAME")
        ->excludes(record);
    return [options](const FamilyFiles& family) { return FindAddress(family, *options); };
}

Run SetUpView(CLI::App& command) {
    const auto options = std::make_shared<ViewOptions>();
    command.add_option("--out", options->out, "Where to write the picture")->type_name("FILE")->required();
    command.add_option("--size", options->size, "Of the picture in pixels (200x200)")->type_name("WxH");
    AddSetOption(command, options->assignments);
    command
        .add_option("--from", options->from,
                    "Takes the options that the printer at this address reports; --set wins")
        ->type_name("ADDRESS");
    command
        .add_option("--machine", options->machine,
                    "Offers a second machine of this name and selects it, so that its name appears")
        ->type_name("NAME");
    command.add_option("--tray", options->tray, "The paper source in use, such as InTray1")->type_name("KEY");
    command
        .add_option("--output-flag", options->outputFlags,
                    "Marks an output destination as in use, 1 to 9; may be repeated")
        ->type_name("N")
        ->check(CLI::Range(kFirstOutputFlag, kLastOutputFlag).description(""))
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    command.add_flag("--machine-only", options->machineOnly, "Leaves out the paper's way");
    return [options](const FamilyFiles& family) { return DrawView(family, *options); };
}

Run SetUpMontage(CLI::App& command) {
    const auto out = std::make_shared<std::string>();
    const auto pictures = std::make_shared<std::vector<std::string>>();
    command.add_option("--out", *out, "Where to write the sheet")->type_name("FILE")->required();
    command.add_option("PICTURE", *pictures, "PNG files")->required();
    return [=](const FamilyFiles& /*family*/) { return MakeMontage(*pictures, *out); };
}

Run SetUpDialog(CLI::App& command) {
    const auto options = std::make_shared<DialogOptions>();
    command
        .add_option("ID", options->id, "The dialog: 122 to 125 or 128 of colours, 155, 165 or 166 of trays")
        ->required();
    command.add_option("--out", options->out, "Saves a picture of what OK or Cancel ends")->type_name("FILE");
    command
        .add_option("--script", options->script,
                    "Runs these actions; a dialog that they leave open is cancelled")
        ->type_name("FILE");
    command.add_flag("--open", options->waitsForPerson, "Leaves the dialog to a person, after the script");
    command.add_option("--profiles", options->profiles, "Colour profiles that the printer holds (JSON)")
        ->type_name("FILE");
    command
        .add_option("--settings", options->settings,
                    "Settings to begin with, a record of 7808 bytes (the model's defaults)")
        ->type_name("FILE");
    command
        .add_option(
            "--from", options->from,
            "Papers in the trays as a printer (IPv4 address or host name) tells them; otherwise unknown")
        ->type_name("ADDRESS");
    command.add_flag("--short-rgb", options->isShort, "Offers device RGB and sRGB as RGB sources only");
    command.add_flag("--locked", options->isLocked, "The user may look, but not change");
    command.footer(ScriptHelp());
    return [options](const FamilyFiles& family) { return UseDialog(family, *options); };
}

Run SetUpRun(CLI::App& command) {
    const auto file = std::make_shared<std::string>();
    command.add_option("--state", *file, "Where settings are kept (a file of the user's)")->type_name("FILE");
    return [file](const FamilyFiles& family) { return RunSheet(family, *file); };
}

Run SetUpTour(CLI::App& command) {
    const auto options = std::make_shared<TourOptions>();
    command.add_option("--out", options->out, "Folder for the pictures")->type_name("DIR")->required();
    command.add_option("--from", options->from, "Asks this printer (IPv4 address or host name)")
        ->type_name("ADDRESS");
    command.add_option("--state", options->state, "Where settings are kept; otherwise nowhere")
        ->type_name("FILE");
    command.add_flag("--reset", options->resets, "Puts everything back at the end");
    return [options](const FamilyFiles& family) { return TourSheet(family, *options); };
}

constexpr struct {
    const char* name;
    const char* summary;
    Run (*setUp)(CLI::App& command); // adds the command's own options
} kCommands[] = {
    {"describe", "Shows what the model offers: switches, facts, ranges and lists", WithoutOptions<Describe>},
    {"capabilities", "Asks the module for paper sources, duplex and stapling", SetUpCapabilities},
    {"defaults", "Shows the built-in default settings, field by field", WithoutOptions<ShowDefaults>},
    {"query", "Asks a printer by SNMP for options, supplies, overlays and profiles", WithAddress<AskBySnmp>},
    {"status", "Asks a printer through the bidirectional library for options and input trays",
     WithAddress<AskByLibrary>},
    {"texts", "Shows the dialogs' texts, colour lists and media type lists", WithoutOptions<ShowTexts>},
    {"address", "Asks the module for the network address of a printer", SetUpAddress},
    {"view", "Has the module draw the printer with its options", SetUpView},
    {"logo", "Has the module draw the logo", WithOut<DrawLogo>},
    {"gallery", "Has the module draw all telling pictures of the printer on one sheet", WithOut<DrawGallery>},
    {"montage", "Puts pictures on one sheet", SetUpMontage},
    {"dialog", "Opens one of the model's dialogs, uses it and shows what changes", SetUpDialog},
    {"run", "Opens the property sheet, as a user of the driver sees it", SetUpRun},
    {"tour", "Opens the property sheet, uses its pages and saves a picture of each", SetUpTour},
};

void AddCommands(CLI::App& app, CommandLine& line) {
    app.require_subcommand(1);
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    for (const auto& row : kCommands) {
        CLI::App& command = *app.add_subcommand(row.name, row.summary)->group("Commands");
        command
            .add_option("--folder", line.folder,
                        "Where TELMAR_D.DLL and TELMAR_D.PRM lie (beside the program)")
            ->type_name("DIR");
        command.add_flag("--json", line.json, "Writes JSON instead of text");
        command.callback([&line, run = row.setUp(command)] { line.run = run; });
    }
}

// What may stand in this place of the line: the commands, if it has any, and the options.
std::string Choices(const CLI::App& place) {
    std::string choices;
    for (const CLI::App* command : place.get_subcommands([](const CLI::App*) { return true; }))
        choices += command->get_name() + ", ";
    for (const CLI::Option* option : place.get_options())
        choices += option->get_name() + ", ";
    return choices.substr(0, choices.size() - 2); // --help is always there
}

// Why the line can't be carried out. A word that is not known explains more than what is missing without it.
std::string Complaint(const CLI::App& app, const CLI::ParseError& error) {
    if (app.remaining_size(true) == 0)
        return error.what();
    const bool inCommand = app.remaining_size() == 0;
    const CLI::App& place = inCommand ? *app.get_subcommands().front() : app;
    return (inCommand ? place.get_name() + " has no option '" : "no command '") + place.remaining().front()
           + "'; possible: " + Choices(place);
}

} // namespace

CommandLine ReadCommandLine(const std::vector<std::string>& arguments) {
    CLI::App app("Shows what the QUORVANE lumora R880 driver module TELMAR_D.DLL answers", "workbench");
    CommandLine line;
    AddCommands(app, line);
    try {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend())); // the last one first
    } catch (const CLI::CallForHelp&) {
        line.help = app.help();
    } catch (const CLI::ParseError& error) {
        throw Failure(kExitUsage, Complaint(app, error));
    }
    return line;
}
