// The commands of prmc, one file each. They print what they find, return the exit code and throw
// std::runtime_error for what keeps them from working: a file that can't be read or written, an unknown name.
#ifndef PRMC_COMMANDS_COMMANDS_H
#define PRMC_COMMANDS_COMMANDS_H

#include <string>
#include <vector>

enum ExitCode {
    kDone = 0,   // there are no errors, no differences
    kErrors = 1, // in a file, or differences
    kFailed = 2, // also wrong usage, and a comparison of files with errors
};

struct CheckOptions {
    bool isStrict = false; // warnings are errors
    bool isQuiet = false;  // no warnings
    bool isJson = false;   // findings as JSON on the standard output; else lines on the standard error output
};

// Compiles a model; the target is written only when there is no error.
ExitCode Build(const std::string& source, const std::string& target, const CheckOptions& options);

// Checks a model now and at each change of its file, or of one that it builds on, until the program is ended.
// While there is no error, writes the target and runs the shell command; either may be empty.
[[noreturn]] void Watch(const std::string& source, const std::string& target, const std::string& command,
                        const CheckOptions& options);

// Reports all findings of a model or a binary file.
ExitCode Check(const std::string& path, const CheckOptions& options);

// Prints a file as YAML; of a model that builds on another, the whole.
ExitCode Dump(const std::string& path);

ExitCode Diff(const std::string& first, const std::string& second);

// Describes all entries in short, or those of these names in full; as JSON always in full, as Markdown
// without names the whole document.
ExitCode DescribeEntries(const std::vector<std::string>& names, bool isJson, bool isMarkdown);

ExitCode PrintSchema();

#endif
