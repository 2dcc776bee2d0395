// `workbench query --list`: asks all printers of a list or a range of addresses, and shows what needs
// attention first. Progress goes to the console, if there is one.
#include "workbench/commands/commands.h"
#include "workbench/fleet/fleet_forms.h"
#include "workbench/fleet/fleet_run.h"
#include "workbench/lib/output.h"

namespace {

constexpr uint32_t kProgressInterval = 200; // milliseconds

// The line of the progress, which the next one overwrites.
class ProgressLine {
public:
    explicit ProgressLine(size_t count) : total(count) {
        DWORD mode;
        isShown = GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode) != FALSE;
    }
    ~ProgressLine() { Write(""); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void Show(const FleetProgress& progress) {
        Write(std::to_string(progress.done) + " of " + std::to_string(total) + " asked, "
              + std::to_string(progress.needAttention) + " need attention");
    }

private:
    void Write(const std::string& line) {
        if (!isShown || (line.empty() && width == 0))
            return;
        const std::string padding(width > line.size() ? width - line.size() : 0, ' ');
        Print(STD_ERROR_HANDLE, "\r" + line + padding + (line.empty() ? "\r" : ""));
        width = line.size();
    }

    const size_t total;
    bool isShown;
    size_t width = 0; // of the line that is shown
};

} // namespace

CommandResult AskFleet(const FamilyFiles& family, const FleetOptions& options) {
    const PrinterList list = ReadPrinterList(*options.list);
    const DWORD start = GetTickCount();
    const InterruptWatch watch;
    const FleetRun run(family, list, options.threads);
    {
        ProgressLine line(list.printers.size());
        while (!run.WaitFor(kProgressInterval) && !InterruptWatch::IsInterrupted())
            line.Show(run.Progress());
    }
    FleetAnswers answers = {*options.list, list.isScan, list.printers.size(), run.States(),
                            GetTickCount() - start};
    const size_t unused = DropUnused(answers);
    SortByAttention(answers.states);
    const size_t asked = answers.states.size() + unused;
    if (asked < answers.listed)
        Print(STD_ERROR_HANDLE, "workbench: interrupted; " + std::to_string(answers.listed - asked) + " of "
                                    + std::to_string(answers.listed)
                                    + " printers were not asked, or not completely\n");
    bool haveAllAnswered = asked == answers.listed && !answers.states.empty();
    for (const PrinterState& state : answers.states)
        haveAllAnswered = haveAllAnswered && state.hasAnswered;
    return {FleetDocument(answers, unused), options.csv ? FleetCsv(answers) : FleetPage(answers, unused),
            haveAllAnswered ? 0 : kExitFailed};
}
