// Runs checks, with the simulated printers that they query.
#ifndef CHECKS_CHECK_RUN_H
#define CHECKS_CHECK_RUN_H

#include "checks/check_list.h"
#include "checks/program.h"
#include "checks/test_log.h"

#include <optional>

struct Folders {
    std::filesystem::path root; // of the package
    std::filesystem::path Programs() const { return root / "bin"; }
    std::filesystem::path Data() const { return root / "data"; }
    std::filesystem::path Logs() const { return root / "logs"; }
};

enum class Verdict { kPassed, kFailed, kSkipped };

struct CheckResult {
    Check check;
    Verdict verdict = Verdict::kFailed;
    TestLog tests;
    std::string reason; // of a failure that no test explains, or why nothing was run
    DWORD duration = 0; // milliseconds
};

struct CheckRunner {
    // The event ends what is running. Where `arePrintersRunning`, another program simulates the printers:
    // wine binds UDP sockets to no loopback address but 127.0.0.1.
    CheckRunner(const Folders& package, HANDLE stopEvent, bool arePrintersRunning)
        : folders(package), stop(stopEvent), hasOtherPrinters(arePrintersRunning) {}

    CheckResult Run(const Check& check);
    bool IsStopped() const { return WaitForSingleObject(stop, 0) == WAIT_OBJECT_0; }

private:
    const Folders folders;
    const HANDLE stop;
    const bool hasOtherPrinters;
    // Why the printers of a list can't be queried; empty when they can.
    std::string StartPrinters(const std::string& list);
    void RunProgram(CheckResult& result) const;

    std::string simulated; // the list of the printers that run
    std::string refusal;   // why they do not
    std::optional<Program> printers;
};

#endif
