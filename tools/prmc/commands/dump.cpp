// The commands dump and diff.
#include "prmc/commands/output.h"
#include "prmc/diff.h"
#include "prmc/forms/yaml_writer.h"

#include <regex>
#include <stdexcept>

namespace {

Model ReadValid(const std::string& path) {
    ModelFile read = ReadModelFile(path);
    Report(read);
    if (read.findings.HasErrors())
        throw std::runtime_error("'" + path + "' has errors: correct them before comparing");
    return std::move(read.model);
}

} // namespace

ExitCode Dump(const std::string& path) {
    const ModelFile read = ReadModelFile(path);
    if (IsYaml(path) && read.findings.HasErrors()) {
        Report(read);
        return kErrors;
    }
    std::string text;
    if (!read.findings.list.empty())
        text = "# Problems in the file; the parts that they name may be missing or changed below:\n"
               + std::regex_replace(FindingLines(read), std::regex("([^\n]*\n)"), "#   $1");
    Print(text + WriteYaml(read.model));
    return read.findings.HasErrors() ? kErrors : kDone;
}

ExitCode Diff(const std::string& first, const std::string& second) {
    const std::vector<std::string> lines = DiffModels(ReadValid(first), ReadValid(second));
    for (const std::string& line : lines)
        Print(line + "\n");
    return lines.empty() ? kDone : kErrors;
}
