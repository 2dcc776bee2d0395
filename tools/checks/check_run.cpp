// Starts the programs of checks one after another, and judges how they end.
#include "checks/check_run.h"

#include <cstdio>

namespace fs = std::filesystem;

std::string CheckRunner::StartPrinters(const std::string& list) {
    constexpr DWORD kMaxStart = 20000, kStep = 50; // milliseconds
    if (list.empty() || hasOtherPrinters)
        return "";
    const bool areRunning = printers && WaitForSingleObject(printers->process, 0) == WAIT_TIMEOUT;
    if (list == simulated && (areRunning || !refusal.empty()))
        return refusal;
    simulated = list;
    refusal.clear();
    printers.reset();
    const fs::path log = folders.Logs() / ("printers-" + fs::path(list).stem().string() + ".log");
    printers.emplace(folders.Programs() / "simprinter.exe", "--list " + list, folders.Data(), log);
    for (DWORD waited = 0; printers->process != nullptr && waited < kMaxStart; waited += kStep) {
        if (ReadFileBytes(log).find("ready with") != std::string::npos)
            return refusal;
        if (WaitForSingleObject(printers->process, kStep) == WAIT_OBJECT_0 || IsStopped())
            break;
    }
    refusal = "the simulated printers did not start. They need UDP port 161 of loopback addresses: stop the "
              "program that uses it (such as the SNMP service), then try again. "
              + (printers->process == nullptr ? "simprinter.exe: " + ErrorText(printers->startError)
                                              : "See " + log.filename().u8string());
    printers.reset();
    return refusal;
}

void CheckRunner::RunProgram(CheckResult& result) const {
    const Check& check = result.check;
    const fs::path log = folders.Logs() / (check.name + ".log");
    const DWORD start = GetTickCount();
    DWORD waited = WAIT_FAILED, exitCode = 0;
    {
        const Program program(folders.Programs() / check.program, check.arguments,
                              folders.Logs() / "temporary", log);
        const HANDLE events[] = {stop, program.process};
        if (program.process != nullptr) {
            waited = WaitForMultipleObjects(2, events, FALSE, static_cast<DWORD>(check.limit) * 1000);
            GetExitCodeProcess(program.process, &exitCode);
        } else {
            result.reason = check.program + " could not be started: " + ErrorText(program.startError);
        }
    }
    result.duration = GetTickCount() - start;
    result.tests = ReadTestLog(ReadFileBytes(log));
    const TestLog& tests = result.tests;
    const std::string during = tests.unfinished.empty() ? "" : " during " + tests.unfinished;
    if (waited == WAIT_OBJECT_0) {
        result.reason = "stopped" + during;
    } else if (waited == WAIT_TIMEOUT) {
        result.reason = "not finished after " + std::to_string(check.limit) + " s" + during;
    } else if (waited == WAIT_OBJECT_0 + 1) {
        char code[32];
        snprintf(code, sizeof(code), exitCode > 255 ? "0x%08lX" : "%lu", exitCode);
        if (!tests.isComplete || (exitCode != 0 && tests.failed.empty()))
            result.reason = std::string("ended with exit code ") + code
                            + (during.empty() ? ", not all tests have run" : during);
        else if (exitCode == 0 && tests.failed.empty())
            result.verdict = tests.passed != 0 ? Verdict::kPassed : Verdict::kSkipped;
    }
}

CheckResult CheckRunner::Run(const Check& check) {
    CheckResult result;
    result.check = check;
    result.reason = StartPrinters(check.printers);
    if (IsStopped())
        result.reason = "stopped before it was started";
    else if (result.reason.empty())
        RunProgram(result);
    else
        result.verdict = Verdict::kSkipped;
    return result;
}
