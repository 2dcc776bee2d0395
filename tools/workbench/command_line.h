// Parsing of the command line.
#ifndef WORKBENCH_COMMAND_LINE_H
#define WORKBENCH_COMMAND_LINE_H

#include "workbench/commands/commands.h"

#include <functional>

struct CommandLine {
    std::string folder;   // of the driver's files, UTF-8; empty: the program's folder
    std::string language; // of texts for the user, "en" or "de"; empty: the user's
    bool json = false;
    std::function<CommandResult(const FamilyFiles& family)> run;
    std::string help; // or the version; not empty: to be shown instead of running a command
};

// Parses the arguments (UTF-8, without the program's name). Throws Failure that says what is wrong and what
// is possible.
CommandLine ReadCommandLine(const std::vector<std::string>& arguments);

#endif
