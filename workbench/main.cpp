// workbench: the command line. Reads it by the table of commands, opens the driver's files, runs the command
// and writes its document. Exit codes: 0, kExitFailed, kExitUsage.
#include "commands.h"
#include "output.h"
#include "text_form.h"

namespace {

constexpr struct {
    const char* name;
    const char* summary;
    Run (*setUp)(CLI::App& command);
} kCommands[] = {
    {"describe", "Shows what the model offers: switches, facts, ranges and lists", SetUpDescribe},
    {"capabilities", "Asks the module for paper sources, duplex and stapling", SetUpCapabilities},
    {"defaults", "Shows the built-in default settings, field by field", SetUpDefaults},
    {"query", "Asks a printer by SNMP for options, supplies, overlays and profiles", SetUpQuery},
    {"status", "Asks a printer through the bidirectional library for options and input trays", SetUpStatus},
    {"texts", "Shows the dialogs' texts, colour lists and media type lists", SetUpTexts},
    {"address", "Asks the module for the network address of a printer", SetUpAddress},
    {"view", "Has the module draw the printer with its options", SetUpView},
    {"logo", "Has the module draw the logo", SetUpLogo},
    {"gallery", "Has the module draw all telling pictures of the printer on one sheet", SetUpGallery},
    {"montage", "Puts pictures on one sheet", SetUpMontage},
    {"dialog", "Opens one of the model's dialogs, uses it and shows what changes", SetUpDialog},
    {"run", "Opens the property sheet, as a user of the driver sees it", SetUpRun},
    {"tour", "Opens the property sheet, uses its pages and saves a picture of each", SetUpTour},
};

struct CommonOptions {
    std::string folder; // UTF-8
    bool json = false;
};

void AddCommands(CLI::App& app, CommonOptions& common, Run& chosen) {
    app.require_subcommand(1);
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    for (const auto& row : kCommands) {
        CLI::App& command = *app.add_subcommand(row.name, row.summary)->group("Commands");
        command
            .add_option("--folder", common.folder,
                        "Where TELMAR_D.DLL and TELMAR_D.PRM lie (beside the program)")
            ->type_name("DIR");
        command.add_flag("--json", common.json, "Writes JSON instead of text");
        command.callback([&chosen, run = row.setUp(command)] { chosen = run; });
    }
}

// Without arguments a person has started the program, from the desktop or a console.
bool IsStartedByPerson(int argc) {
    return argc < 2;
}

// The desktop gives the program a console of its own, where there is nothing to be seen.
void LeaveOwnConsole() {
    DWORD others[2];
    if (GetConsoleProcessList(others, 2) == 1)
        FreeConsole();
}

// The arguments in UTF-8, last one first, as CLI11 takes them.
std::vector<std::string> Arguments(int argc, wchar_t** argv) {
    if (IsStartedByPerson(argc)) {
        LeaveOwnConsole();
        return {"run"};
    }
    std::vector<std::string> arguments;
    for (int i = argc - 1; i > 0; --i)
        arguments.push_back(Utf8(argv[i]));
    return arguments;
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

int RunProgram(int argc, wchar_t** argv) {
    CLI::App app("Shows what the QUORVANE lumora R880 driver module TELMAR_D.DLL answers", "workbench");
    CommonOptions common;
    Run run;
    AddCommands(app, common, run);
    try {
        app.parse(Arguments(argc, argv));
    } catch (const CLI::CallForHelp&) {
        Print(STD_OUTPUT_HANDLE, app.help());
        return 0;
    } catch (const CLI::ParseError& error) {
        throw Failure(kExitUsage, Complaint(app, error));
    }
    const Document document = run(OpenFamilyFiles(std::filesystem::u8path(common.folder)));
    Print(STD_OUTPUT_HANDLE, common.json ? document.dump(2) + "\n" : TextForm(document));
    return 0;
}

void TellFailure(int argc, const char* failure) {
    if (IsStartedByPerson(argc))
        TellPerson(failure);
    else
        Print(STD_ERROR_HANDLE, std::string("workbench: ") + failure + "\n");
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    try {
        return RunProgram(argc, argv);
    } catch (const Failure& failure) {
        TellFailure(argc, failure.what());
        return failure.exitCode;
    } catch (const std::exception& error) {
        TellFailure(argc, error.what());
        return kExitFailed;
    }
}
