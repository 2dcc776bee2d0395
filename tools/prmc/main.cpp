// prmc, the compiler of parameter data files: command line, messages and exit codes.
// Exit codes: 0 done, no errors, no differences; 1 errors in a file, or the files differ; 2 wrong usage, a
// file that can't be read or written, or a comparison of files with errors.
#include "common/choices.h"
#include "common/files.h"
#include "common/text.h"
#include "paramdata/prm_layout.h"
#include "prmc/diff.h"
#include "prmc/model_file.h"
#include "prmc/prm_writer.h"
#include "prmc/yaml_writer.h"

#include <CLI/CLI.hpp>
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <vector>

namespace {

enum ExitCode { kDone = 0, kErrors = 1, kFailed = 2 };

// Throws when the command takes the other kind of file.
void ExpectForm(const std::string& path, bool wantsYaml) {
    if (IsYaml(path) != wantsYaml)
        throw std::runtime_error("'" + path + "' is "
                                 + (wantsYaml ? "a binary file; this command takes a model (.yaml)"
                                              : "a model; this command takes a binary file (.PRM)"));
}

// Writes a line for each finding: FILE:PLACE: MESSAGE.
void Report(const ModelFile& read, std::ostream& stream = std::cerr, const char* before = "") {
    for (const Finding& finding : read.findings.list)
        stream << before << read.files[finding.place.file] << ":" << FindingText(finding) << "\n";
}

ExitCode Build(const std::string& source, const std::string& target) {
    ExpectForm(source, true);
    const ModelFile read = ReadModelFile(source);
    Report(read);
    if (read.findings.HasErrors())
        return kErrors;
    const std::vector<uint8_t> bytes = WritePrm(read.model);
    if (bytes.size() > kPrmMaxFileBytes)
        throw std::runtime_error("'" + source + "' has too many items: its file would have "
                                 + std::to_string(bytes.size()) + " bytes, and the driver reads at most "
                                 + std::to_string(kPrmMaxFileBytes));
    WriteFileWhole(target, std::string(bytes.begin(), bytes.end()));
    return kDone;
}

// Prints the model as YAML; of a model that builds on another, the whole.
ExitCode Dump(const std::string& path) {
    const ModelFile read = ReadModelFile(path);
    if (IsYaml(path) && read.findings.HasErrors())
        return Report(read), kErrors;
    if (!read.findings.list.empty())
        std::cout << "# Problems in the file; the parts that they name may be missing or changed below:\n";
    Report(read, std::cout, "#   ");
    std::cout << WriteYaml(read.model);
    if (!std::cout.flush())
        throw std::runtime_error("cannot write to the standard output");
    return read.findings.HasErrors() ? kErrors : kDone;
}

ExitCode Check(const std::string& path) {
    const ModelFile read = ReadModelFile(path);
    Report(read);
    return read.findings.HasErrors() ? kErrors : kDone;
}

Model ReadValid(const std::string& path) {
    ModelFile read = ReadModelFile(path);
    Report(read);
    if (read.findings.HasErrors())
        throw std::runtime_error("'" + path + "' has errors: correct them before comparing");
    return std::move(read.model);
}

ExitCode Diff(const std::string& first, const std::string& second) {
    const std::vector<std::string> lines = DiffModels(ReadValid(first), ReadValid(second));
    for (const std::string& line : lines)
        std::cout << line << "\n";
    return lines.empty() ? kDone : kErrors;
}

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
    app.require_subcommand(1);
    std::string first, second;
    CLI::App* build = app.add_subcommand("build", "compile a model");
    build->add_option("MODEL.yaml", first, "the model")->required();
    build->add_option("-o,--output", second, "binary file to write")->required()->type_name("FILE.PRM");
    CLI::App* dump =
        app.add_subcommand("dump", "print a file as YAML; a model with all that it takes from its base");
    dump->add_option("FILE", first, "model (.yaml) or binary file (.PRM)")->required();
    CLI::App* check =
        app.add_subcommand("check", "report all errors in a file; no output when there are none");
    check->add_option("FILE", first, "model (.yaml) or binary file (.PRM)")->required();
    CLI::App* diff = app.add_subcommand("diff", "compare two files' contents, each .yaml or .PRM");
    diff->add_option("A", first, "first file")->required();
    diff->add_option("B", second, "second file")->required();
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) // --help
            return app.exit(error), kDone;
        std::vector<std::string> commands;
        for (const CLI::App* command : app.get_subcommands(nullptr))
            commands.push_back(command->get_name());
        throw std::runtime_error(UsageError(app, error, commands)
                                 + "\n'prmc COMMAND --help' describes a command.");
    }
    if (build->parsed())
        return Build(first, second);
    if (dump->parsed())
        return Dump(first);
    return check->parsed() ? Check(first) : Diff(first, second);
}

} // namespace

int main(int argc, char** argv) {
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "prmc: " << error.what() << "\n";
        return kFailed;
    }
}
