// workbench: the command line. Reads it by the table of commands, opens the driver's files, runs the command
// and writes its document. Exit codes: 0, kExitFailed, kExitUsage.
#include "commands.h"
#include "output.h"
#include "text_form.h"

#include <sstream>

namespace {

constexpr struct {
    const char* name;
    const char* summary;
    Run (*setUp)(CLI::App& command);
} kCommands[] = {
    {"describe", "Shows what the model offers: switches, facts, ranges and lists", SetUpDescribe},
    {"capabilities", "Asks the module for paper sources, duplex and stapling", SetUpCapabilities},
};

struct CommonOptions {
    std::string folder; // UTF-8
    bool json = false;
};

void AddCommands(CLI::App& app, CommonOptions& common, Run& chosen) {
    app.require_subcommand(1);
    for (const auto& row : kCommands) {
        CLI::App& command = *app.add_subcommand(row.name, row.summary);
        command
            .add_option("--folder", common.folder,
                        "Where TELMAR_D.DLL and TELMAR_D.PRM lie (beside the program)")
            ->type_name("DIR");
        command.add_flag("--json", common.json, "Writes JSON instead of text");
        command.callback([&chosen, run = row.setUp(command)] { chosen = run; });
    }
}

// The arguments in UTF-8, last one first, as CLI11 takes them.
std::vector<std::string> Arguments(int argc, wchar_t** argv) {
    std::vector<std::string> arguments;
    for (int i = argc - 1; i > 0; --i)
        arguments.push_back(Utf8(argv[i]));
    return arguments;
}

int RunProgram(int argc, wchar_t** argv) {
    CLI::App app("Shows what the QUORVANE lumora R880 driver module TELMAR_D.DLL answers", "workbench");
    CommonOptions common;
    Run run;
    AddCommands(app, common, run);
    try {
        app.parse(Arguments(argc, argv));
    } catch (const CLI::ParseError& error) {
        std::ostringstream out;
        std::ostringstream err;
        const int code = app.exit(error, out, err);
        Print(STD_OUTPUT_HANDLE, out.str());
        Print(STD_ERROR_HANDLE, err.str());
        return code == 0 ? 0 : kExitUsage;
    }
    const Document document = run(OpenFamilyFiles(std::filesystem::u8path(common.folder)));
    Print(STD_OUTPUT_HANDLE, common.json ? document.dump(2) + "\n" : TextForm(document));
    return 0;
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    try {
        return RunProgram(argc, argv);
    } catch (const Failure& failure) {
        Print(STD_ERROR_HANDLE, std::string("workbench: ") + failure.what() + "\n");
        return failure.exitCode;
    } catch (const std::exception& error) {
        Print(STD_ERROR_HANDLE, std::string("workbench: ") + error.what() + "\n");
        return kExitFailed;
    }
}
