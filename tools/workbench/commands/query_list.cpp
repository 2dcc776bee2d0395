// `workbench query --list`: asks all printers of a list or a range of addresses, and shows what needs
// attention first. Progress goes to the console, if there is one.
#include "workbench/commands/commands.h"
#include "workbench/fleet/fleet_forms.h"
#include "workbench/fleet/fleet_run.h"
#include "workbench/lib/output.h"
#include "workbench/lib/progress_line.h"

namespace {

constexpr uint32_t kProgressInterval = 200; // milliseconds

} // namespace

CommandResult AskFleet(const FamilyFiles& family, const FleetOptions& options) {
    const PrinterList list = ReadPrinterList(*options.list);
    const DWORD start = GetTickCount();
    const InterruptWatch watch;
    const FleetRun run(family, list, options.threads);
    {
        ProgressLine line;
        while (!run.WaitFor(kProgressInterval) && !InterruptWatch::IsInterrupted()) {
            const FleetProgress progress = run.Progress();
            line.Show(std::to_string(progress.done) + " of " + std::to_string(list.printers.size())
                      + " asked, " + std::to_string(progress.needAttention) + " need attention");
        }
    }
    FleetAnswers answers = {*options.list,          list.isScan, list.printers.size(), run.States(),
                            GetTickCount() - start, {}};
    DropUnused(answers);
    SortByAttention(answers.states);
    const size_t asked = answers.states.size() + answers.unused.Count();
    if (asked < answers.listed)
        Print(STD_ERROR_HANDLE, "workbench: interrupted; " + std::to_string(answers.listed - asked) + " of "
                                    + std::to_string(answers.listed)
                                    + " printers were not asked, or not completely\n");
    bool haveAllAnswered = asked == answers.listed && !answers.states.empty();
    for (const PrinterState& state : answers.states)
        haveAllAnswered = haveAllAnswered && state.hasAnswered && state.isComplete;
    return {FleetDocument(answers), options.csv ? FleetCsv(answers) : FleetPage(answers),
            haveAllAnswered ? 0 : kExitFailed};
}
