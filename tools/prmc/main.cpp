// prmc, the compiler of parameter data files: the command line.
#include "common/choices.h"
#include "common/program.h"
#include "common/text.h"
#include "prmc/commands/commands.h"

#include <CLI/CLI.hpp>
#include <exception>
#include <iostream>
#include <stdexcept>

namespace {

// Describes the error in the command line.
std::string UsageError(const CLI::App& app, const CLI::ParseError& error,
                       const std::vector<std::string>& commands) {
    const std::vector<std::string> unknown = app.remaining(true);
    const bool hasCommand = !app.get_subcommands().empty();
    if (unknown.empty())
        return hasCommand ? error.what() : "a command is missing; " + Choices(commands);
    if (unknown[0].rfind('-', 0) == 0)
        return "unknown option " + Quote(unknown[0]);
    if (!hasCommand)
        return "unknown command " + Quote(unknown[0]) + "; " + Choices(commands);
    return "too many files: " + Quote(unknown[0]);
}

ExitCode Run(int argc, char** argv) {
    CLI::App app{
        "Compiles a printer model's parameter data from YAML to the binary file that the driver reads.",
        "prmc"};
    app.set_version_flag("--version", "prmc " PROJECT_VERSION);
    app.allow_windows_style_options(false); // "/x" is a file there, too
    app.require_subcommand(1);
    std::string first, second, report;
    CheckOptions options;
    bool isJson = false, isMarkdown = false;
    CLI::App* build = app.add_subcommand("build", "compile a model");
    build->add_option("MODEL.yaml", first, "the model")->required();
    build->add_option("-o,--output", second, "binary file to write")->required()->type_name("FILE.PRM");
    CLI::App* watch = app.add_subcommand("watch", "check a model at each save, until Ctrl+C");
    watch->add_option("MODEL.yaml", first, "the model")->required();
    watch->add_option("-o,--output", second, "binary file to write while there is no error")
        ->type_name("FILE.PRM");
    watch->add_option("--report", report, "shell command to run then, such as './dev report MODEL.yaml'")
        ->type_name("COMMAND");
    CLI::App* dump =
        app.add_subcommand("dump", "print a file as YAML; a model with all that it takes from its base");
    dump->add_option("FILE", first, "model (.yaml) or binary file (.PRM)")->required();
    CLI::App* check = app.add_subcommand(
        "check", "report all errors and warnings of a file; no output when there are none");
    check->add_option("FILE", first, "model (.yaml) or binary file (.PRM)")->required();
    for (CLI::App* command : {build, watch, check}) {
        CLI::Option* strict = command->add_flag("--strict", options.isStrict, "take warnings for errors");
        command->add_flag("--no-warnings", options.isQuiet, "report errors only")->excludes(strict);
        command->add_flag("--json", options.isJson,
                          "write errors and warnings as JSON to the standard output");
    }
    CLI::App* diff = app.add_subcommand("diff", "compare two files' contents, each .yaml or .PRM");
    diff->add_option("A", first, "first file")->required();
    diff->add_option("B", second, "second file")->required();
    CLI::App* entries = app.add_subcommand("entries", "describe the entries of a model");
    std::vector<std::string> names;
    entries->add_option("NAME", names, "entries to describe in full; without a name all are listed");
    CLI::Option* json = entries->add_flag("--json", isJson, "write JSON");
    entries->add_flag("--markdown", isMarkdown, "write Markdown")->excludes(json);
    CLI::App* schema = app.add_subcommand("schema", "print a JSON Schema of the model file, for editors");
    schema->add_flag("--json", isJson, "write JSON, as without it");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) // --help, --version
            return app.exit(error), kDone;
        std::vector<std::string> commands;
        for (const CLI::App* command : app.get_subcommands(nullptr))
            commands.push_back(command->get_name());
        throw std::runtime_error(UsageError(app, error, commands)
                                 + "\n'prmc COMMAND --help' describes a command.");
    }
    if (build->parsed())
        return Build(first, second, options);
    if (watch->parsed())
        Watch(first, second, report, options);
    if (dump->parsed())
        return Dump(first);
    if (entries->parsed())
        return DescribeEntries(names, isJson, isMarkdown);
    if (schema->parsed())
        return PrintSchema();
    return check->parsed() ? Check(first, options) : Diff(first, second);
}

} // namespace

int main(int argc, char** argv) {
    StartProgram(argc, argv);
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "prmc: " << error.what() << "\n";
        return kFailed;
    }
}
