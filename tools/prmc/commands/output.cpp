// Reports findings, and prints.
#include "prmc/commands/output.h"

#include "prmc/checks/warnings.h"
#include "prmc/findings_json.h"

#include <iostream>
#include <stdexcept>

void ExpectForm(const std::string& path, bool wantsYaml) {
    if (IsYaml(path) != wantsYaml)
        throw std::runtime_error("'" + path + "' is "
                                 + (wantsYaml ? "a binary file; this command takes a model (.yaml)"
                                              : "a model; this command takes a binary file (.PRM)"));
}

ModelFile ReadForCheck(const std::string& path, const CheckOptions& options) {
    ModelFile read = ReadModelFile(path);
    if (!options.isQuiet)
        FindWarnings(read.model, read.findings);
    read.findings.Sort();
    if (options.isStrict)
        read.findings.RaiseWarnings();
    return read;
}

void Print(const std::string& text) {
    std::cout << text;
    if (!std::cout.flush())
        throw std::runtime_error("cannot write to the standard output");
}

std::string FindingLines(const ModelFile& read) {
    std::string lines;
    for (const Finding& finding : read.findings.list)
        lines += read.files[finding.place.file] + ":" + FindingText(finding) + "\n";
    return lines;
}

void Report(const ModelFile& read, const CheckOptions& options) {
    if (options.isJson)
        Print(FindingsJson(read.files, read.findings));
    else
        std::cerr << FindingLines(read);
}
