// The machine that the checks run on, and the module that they check.
#ifndef CHECKS_MACHINE_H
#define CHECKS_MACHINE_H

#include <filesystem>
#include <string>

// On one line: "Windows 10.0.19045".
std::string SystemName();

// The version in a file's resources; empty when there is none.
std::string VersionOf(const std::filesystem::path& file);

// A line for each fact that a failure can depend on.
std::string DescribeMachine(const std::filesystem::path& module);

bool IsEnglish(); // the user's language, which the texts of the programs are in

#endif
