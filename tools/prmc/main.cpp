// prmc, the compiler of parameter data files: command line, messages and exit codes.
// Exit codes: 0 done, no differences; there may be warnings. 1 errors in a file, or the files differ. 2 wrong
// usage, a file that can't be read or written, or a comparison of files with errors.
#include "common/choices.h"
#include "common/files.h"
#include "common/text.h"
#include "paramdata/prm_layout.h"
#include "prmc/diff.h"
#include "prmc/prm_parser.h"
#include "prmc/prm_writer.h"
#include "prmc/rules.h"
#include "prmc/warnings.h"
#include "prmc/yaml_reader.h"
#include "prmc/yaml_writer.h"

#include <CLI/CLI.hpp>
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <vector>

namespace {

enum ExitCode { kDone = 0, kErrors = 1, kFailed = 2 };

bool IsYaml(const std::string& path) {
    const std::string extension = std::filesystem::path(path).extension().string();
    if (EqualNoCase(extension, ".yaml") || EqualNoCase(extension, ".yml"))
        return true;
    if (!EqualNoCase(extension, ".prm"))
        throw std::runtime_error("'" + path
                                 + "' has an unknown file type: its name must end in .yaml or .PRM");
    return false;
}

// Throws when the command takes the other kind of file.
void ExpectForm(const std::string& path, bool wantsYaml) {
    if (IsYaml(path) != wantsYaml)
        throw std::runtime_error("'" + path + "' is "
                                 + (wantsYaml ? "a binary file; this command takes a model (.yaml)"
                                              : "a model; this command takes a binary file (.PRM)"));
}

// Reads a model or a binary file and applies the rules. The findings are sorted by place.
Model ReadModel(const std::string& path, bool isYaml, Findings& findings) {
    const std::string contents = ReadFile(path);
    Model model = isYaml ? ReadYaml(contents, findings) : ParsePrm(contents, findings);
    CheckRules(model, findings);
    findings.Sort();
    return model;
}

void AddWarnings(const Model& model, bool isStrict, Findings& findings) {
    FindWarnings(model, findings);
    findings.Sort();
    if (isStrict)
        findings.RaiseWarnings();
}

void Report(const std::string& path, const Findings& findings) {
    for (const Finding& finding : findings.list)
        std::cerr << path << ":" << FindingText(finding) << "\n";
}

ExitCode Build(const std::string& source, const std::string& target, bool isStrict) {
    ExpectForm(source, true);
    Findings findings;
    const Model model = ReadModel(source, true, findings);
    AddWarnings(model, isStrict, findings);
    Report(source, findings);
    if (findings.HasErrors())
        return kErrors;
    const std::vector<uint8_t> bytes = WritePrm(model);
    if (bytes.size() > kPrmMaxFileBytes)
        throw std::runtime_error("'" + source + "' has too many items: its file would have "
                                 + std::to_string(bytes.size()) + " bytes, and the driver reads at most "
                                 + std::to_string(kPrmMaxFileBytes));
    WriteFileWhole(target, std::string(bytes.begin(), bytes.end()));
    return kDone;
}

ExitCode Dump(const std::string& path) {
    ExpectForm(path, false);
    Findings findings;
    const Model model = ReadModel(path, false, findings);
    if (!findings.list.empty())
        std::cout
            << "# Problems in the binary file; the parts that they name may be missing or changed below:\n";
    for (const Finding& finding : findings.list)
        std::cout << "#   " << FindingText(finding) << "\n";
    std::cout << WriteYaml(model);
    if (!std::cout.flush())
        throw std::runtime_error("cannot write to the standard output");
    return findings.HasErrors() ? kErrors : kDone;
}

ExitCode Check(const std::string& path, bool isStrict) {
    Findings findings;
    const Model model = ReadModel(path, IsYaml(path), findings);
    AddWarnings(model, isStrict, findings);
    Report(path, findings);
    return findings.HasErrors() ? kErrors : kDone;
}

Model ReadValid(const std::string& path) {
    Findings findings;
    Model model = ReadModel(path, IsYaml(path), findings);
    Report(path, findings);
    if (findings.HasErrors())
        throw std::runtime_error("'" + path + "' has errors: correct them before comparing");
    return model;
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
    bool isStrict = false;
    CLI::App* build = app.add_subcommand("build", "compile a model");
    build->add_option("MODEL.yaml", first, "the model")->required();
    build->add_option("-o,--output", second, "binary file to write")->required()->type_name("FILE.PRM");
    build->add_flag("--strict", isStrict, "take warnings for errors");
    CLI::App* dump = app.add_subcommand("dump", "print a binary file as YAML");
    dump->add_option("FILE.PRM", first, "binary file")->required();
    CLI::App* check = app.add_subcommand(
        "check", "report all errors and warnings of a file; no output when there are none");
    check->add_option("FILE", first, "model (.yaml) or binary file (.PRM)")->required();
    check->add_flag("--strict", isStrict, "take warnings for errors");
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
        return Build(first, second, isStrict);
    if (dump->parsed())
        return Dump(first);
    return check->parsed() ? Check(first, isStrict) : Diff(first, second);
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
