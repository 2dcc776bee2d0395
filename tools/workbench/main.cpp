// workbench: opens the driver's files, runs the command of the line and writes its document. Exit codes: 0,
// kExitFailed, kExitUsage.
#include "workbench/command_line.h"
#include "workbench/lib/json_form.h"
#include "workbench/lib/output.h"
#include "workbench/lib/text_form.h"

namespace {

// Without arguments a person has started the program, from the desktop or a console.
bool IsStartedByPerson(int argc) {
    return argc < 2;
}

// The desktop gives the program a console of its own, where there is nothing to be seen.
void LeaveOwnConsole() {
    DWORD others[2];
    if (GetConsoleProcessList(others, 2) == 1)
        FreeConsole();
}

std::vector<std::string> Arguments(int argc, wchar_t** argv) {
    if (IsStartedByPerson(argc)) {
        LeaveOwnConsole();
        return {"run"};
    }
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i)
        arguments.push_back(Utf8(argv[i]));
    return arguments;
}

void RunProgram(int argc, wchar_t** argv) {
    const CommandLine line = ReadCommandLine(Arguments(argc, argv));
    if (!line.help.empty()) {
        Print(STD_OUTPUT_HANDLE, line.help);
        return;
    }
    const Document document = line.run(OpenFamilyFiles(std::filesystem::u8path(line.folder)));
    Print(STD_OUTPUT_HANDLE, line.json ? JsonForm(document, 2) + "\n" : TextForm(document));
}

void TellFailure(int argc, const char* failure) {
    if (IsStartedByPerson(argc))
        TellPerson(failure);
    else
        Print(STD_ERROR_HANDLE, std::string("workbench: ") + failure + "\n");
}

} // namespace

int wmain(int argc, wchar_t** argv) {
    try {
        RunProgram(argc, argv);
        return 0;
    } catch (const Failure& failure) {
        TellFailure(argc, failure.what());
        return failure.exitCode;
    } catch (const std::exception& error) {
        TellFailure(argc, error.what());
        return kExitFailed;
    }
}
