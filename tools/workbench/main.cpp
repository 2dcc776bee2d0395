// workbench: opens the driver's files, runs the command and writes its document. Exit codes: 0, kExitFailed,
// kExitUsage.
#include "workbench/command_line.h"
#include "workbench/lib/json_form.h"
#include "workbench/lib/localized_text.h"
#include "workbench/lib/output.h"
#include "workbench/lib/running_jobs.h"
#include "workbench/lib/text.h"
#include "workbench/lib/text_form.h"
#include "workbench/property_sheet/text_ids.h"

namespace {

// A start without arguments, from the desktop or a console, opens the property sheet.
bool IsStartedWithoutArguments(int argc) {
    return argc < 2;
}

// Closes the console if no other program uses it: the system opened it only for this start from the desktop.
void CloseOwnConsole() {
    DWORD others[2];
    if (GetConsoleProcessList(others, 2) == 1)
        FreeConsole();
}

std::vector<std::string> Arguments(int argc, wchar_t** argv) {
    if (IsStartedWithoutArguments(argc)) {
        CloseOwnConsole();
        return {"run"};
    }
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i)
        arguments.push_back(Utf8(argv[i]));
    return arguments;
}

// A person who started the program from the desktop can't use what the failure says of options and builds.
FamilyFiles OpenFiles(int argc, const std::string& folder) {
    try {
        return OpenFamilyFiles(std::filesystem::u8path(folder));
    } catch (const Failure&) {
        if (!IsStartedWithoutArguments(argc))
            throw;
        throw Failure(kExitFailed, LocalizedText(TEXT_CANNOT_START, {ProgramFolder().u8string()}));
    }
}

int RunProgram(int argc, wchar_t** argv) {
    const CommandLine line = ReadCommandLine(Arguments(argc, argv));
    if (!line.help.empty()) {
        Print(STD_OUTPUT_HANDLE, line.help);
        return 0;
    }
    UseLanguage(line.language);
    const CommandResult result = line.run(OpenFiles(argc, line.folder));
    Print(STD_OUTPUT_HANDLE, line.json             ? JsonForm(result.document, 2) + "\n"
                             : result.text.empty() ? TextForm(result.document)
                                                   : result.text);
    return result.exitCode;
}

void ReportFailure(int argc, const char* failure) {
    if (IsStartedWithoutArguments(argc))
        ShowWarning(failure, LocalizedText(TEXT_PRINTER));
    else
        Print(STD_ERROR_HANDLE, std::string("workbench: ") + failure + "\n");
}

int RunAndReport(int argc, wchar_t** argv) {
    try {
        return RunProgram(argc, argv);
    } catch (const Failure& failure) {
        ReportFailure(argc, failure.what());
        return failure.exitCode;
    } catch (const std::exception& error) {
        ReportFailure(argc, error.what());
        return kExitFailed;
    }
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    const int exitCode = RunAndReport(argc, argv);
    EndProcessIfJobIsRunning(exitCode);
    return exitCode;
}
