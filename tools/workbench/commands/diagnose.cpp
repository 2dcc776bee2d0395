// `workbench diagnose`: finds out what is wrong with a printer on the network, and what the driver makes of
// it.
#include "workbench/commands/commands.h"
#include "workbench/diagnosis/page.h"
#include "workbench/lib/progress_line.h"
#include "workbench/lib/stopwatch.h"

namespace {

std::string Seconds(double milliseconds) {
    return std::to_string(static_cast<int>(milliseconds / 1000)) + " s";
}

} // namespace

CommandResult DiagnosePrinter(const FamilyFiles& family, const std::string& address) {
    const Printer printer = PrinterAt(family, address);
    std::vector<DiagnosisFinding> findings;
    Document document;
    {
        ProgressLine line;
        const int64_t start = CounterNow();
        const Observations seen = ObservePrinter(printer, [&](const char* stage) {
            line.Show("Diagnosing " + printer.address + ": " + stage + ", "
                      + Seconds(MillisecondsSince(start)) + " of at most " + Seconds(kDiagnosisLimit));
        });
        findings = FindingsOf(seen);
        document = DiagnosisDocument(family, seen, findings);
    }
    return {document, DiagnosisText(document), HasFault(findings) ? kExitFailed : 0};
}
