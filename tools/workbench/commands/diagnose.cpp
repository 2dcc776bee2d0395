// `workbench diagnose`: finds out what is wrong with a printer on the network, and what the driver makes of
// it.
#include "workbench/commands/commands.h"
#include "workbench/diagnosis/page.h"
#include "workbench/lib/output.h"
#include "workbench/lib/stopwatch.h"

namespace {

// A line on the console that says what is being done, and for how long.
struct DiagnosisProgress {
    explicit DiagnosisProgress(const std::string& printer) : address(printer) {
        DWORD mode;
        isShown = GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode) != FALSE;
    }
    ~DiagnosisProgress() { Write(""); }
    DiagnosisProgress(const DiagnosisProgress&) = delete;
    DiagnosisProgress& operator=(const DiagnosisProgress&) = delete;

    void Show(const char* stage) {
        Write("Diagnosing " + address + ": " + stage + ", "
              + std::to_string(static_cast<int>(MillisecondsSince(start) / 1000)) + " s of at most "
              + std::to_string(static_cast<int>(kDiagnosisLimit / 1000)) + " s");
    }

private:
    void Write(const std::string& text) {
        if (!isShown || text == shown)
            return;
        const size_t surplus = shown.size() > text.size() ? shown.size() - text.size() : 0;
        Print(STD_ERROR_HANDLE, "\r" + text + std::string(surplus, ' ') + (text.empty() ? "\r" : ""));
        shown = text;
    }

    const std::string address;
    const int64_t start = CounterNow();
    bool isShown;
    std::string shown;
};

} // namespace

CommandResult DiagnosePrinter(const FamilyFiles& family, const std::string& address) {
    const Printer printer = PrinterAt(family, address);
    std::vector<DiagnosisFinding> findings;
    Document document;
    {
        DiagnosisProgress progress(printer.address);
        const Observations seen = ObservePrinter(printer, [&](const char* stage) { progress.Show(stage); });
        findings = FindingsOf(seen);
        document = DiagnosisDocument(family, seen, findings);
    }
    return {document, DiagnosisText(document), HasFault(findings) ? kExitFailed : 0};
}
