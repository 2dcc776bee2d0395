// The command line: which command with which options.
#ifndef WORKBENCH_COMMAND_LINE_H
#define WORKBENCH_COMMAND_LINE_H

#include "workbench/lib/family_files.h"

#include <functional>

struct CommandLine {
    std::string folder; // of the driver's files, UTF-8; empty: the program's own
    bool json = false;
    std::function<Document(const FamilyFiles& family)> run;
    std::string help; // to be shown instead, when it was asked for
};

// Reads the arguments (UTF-8, without the program's name). Throws Failure that says what can't be carried out
// and what is possible.
CommandLine ReadCommandLine(const std::vector<std::string>& arguments);

#endif
