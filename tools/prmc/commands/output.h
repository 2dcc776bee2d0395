// What the commands of prmc have in common: reading a model with its findings, and output.
#ifndef PRMC_COMMANDS_OUTPUT_H
#define PRMC_COMMANDS_OUTPUT_H

#include "prmc/commands/commands.h"
#include "prmc/model_file.h"

#include <string>

// Throws std::runtime_error when the file has the other form.
void ExpectForm(const std::string& path, bool wantsYaml);

// Reads a model with its errors and warnings, as the options want them.
ModelFile ReadForCheck(const std::string& path, const CheckOptions& options);

// To the standard output. Throws std::runtime_error when it can't be written.
void Print(const std::string& text);

// Writes the binary file of a model without errors. Throws std::runtime_error when the driver would not read
// it.
void WriteModel(const ModelFile& read, const std::string& target);

// "FILE:PLACE: MESSAGE", a line for each finding.
std::string FindingLines(const ModelFile& read);

// Reports the findings in the form of the options.
void Report(const ModelFile& read, const CheckOptions& options = {});

#endif
