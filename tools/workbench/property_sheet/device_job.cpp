// Makes the queries one after the other and reports progress to the page.
#include "workbench/property_sheet/device_job.h"

#include "workbench/lib/printer_identity.h"
#include "workbench/lib/printer_text_ids.h"
#include "workbench/lib/text.h"

#include <atomic>
#include <cstring>
#include <functional>

namespace {

struct Question {
    UINT asked; // text
    std::function<void(const Printer& printer, DeviceReport& report)> ask;
};
using Questions = std::vector<Question>;

template <typename Answers>
void Append(Answers& to, const Answers& answers) {
    to.insert(to.end(), answers.begin(), answers.end());
}

// By SNMP each option is a question. The library reads the whole device for any question, so it gets one for
// all options.
void AddOptions(const FamilyFiles& family, Transport transport, Questions& questions) {
    const std::vector<std::string> keys = OptionKeys(family, transport);
    const size_t size = transport == Transport::kLibrary ? keys.size() : 1;
    for (size_t first = 0; first < keys.size(); first += size) {
        const auto from = keys.begin() + static_cast<ptrdiff_t>(first);
        const std::vector<std::string> some(from, from + static_cast<ptrdiff_t>(size));
        questions.push_back({PRINTER_TEXT_ASK_OPTIONS, [=](const Printer& printer, DeviceReport& report) {
                                 Append(report.options, AskOptions(printer, transport, some));
                             }});
    }
}

Questions QuestionsFor(const FamilyFiles& family, Transport transport) {
    Questions questions;
    AddOptions(family, transport, questions);
    if (transport == Transport::kLibrary) // only the library reports papers
        questions.push_back({PRINTER_TEXT_ASK_PAPERS, [](const Printer& printer, DeviceReport& report) {
                                 report.trays = AskTraysByLibrary(printer);
                             }});
    for (const std::string& name : SupplyNames(family))
        questions.push_back({PRINTER_TEXT_ASK_SUPPLIES, [=](const Printer& printer, DeviceReport& report) {
                                 Append(report.supplies, AskSupplies(printer, {name}));
                             }});
    for (const int32_t storage : {0, 1})
        questions.push_back({PRINTER_TEXT_ASK_OVERLAYS, [=](const Printer& printer, DeviceReport& report) {
                                 report.overlays[storage] = AskOverlays(printer, storage);
                             }});
    questions.push_back({PRINTER_TEXT_ASK_PROFILES, [](const Printer& printer, DeviceReport& report) {
                             report.profiles = AskProfiles(printer);
                         }});
    return questions;
}

LPARAM Packed(const JobProgress& progress) {
    LPARAM packed = 0;
    static_assert(sizeof(progress) <= sizeof(packed));
    memcpy(&packed, &progress, sizeof(progress));
    return packed;
}

} // namespace

struct DeviceJob::Work {
    FamilyFiles files;
    std::string address;
    HWND page;
    WPARAM number;
    std::atomic<bool> isCancelled{false};
    std::optional<PrinterFailure> failure;
    DeviceReport report;

    void Post(UINT message, LPARAM lParam = 0) const {
        if (!isCancelled)
            PostMessageW(page, message, number, lParam);
    }

    // What the printer does not answer is noted as missing. Without options it can't be queried at all.
    void Ask(const Printer& printer, const Question& question) {
        try {
            question.ask(printer, report);
        } catch (const PrinterFailure&) {
            if (question.asked == PRINTER_TEXT_ASK_OPTIONS)
                throw;
            std::vector<UINT>& missing = report.missing;
            if (missing.empty() || missing.back() != question.asked)
                missing.push_back(question.asked);
        }
    }

    void AskAll() {
        const Printer printer = PrinterAt(files, address);
        report.address = printer.address;
        report.transport = TransportOf(files);
        CheckPrinter(printer, report.transport);
        const Questions questions = QuestionsFor(files, report.transport);
        JobProgress progress = {0, static_cast<uint16_t>(questions.size()), 0};
        for (const Question& question : questions) {
            if (isCancelled)
                return;
            ++progress.question;
            progress.asked = static_cast<uint16_t>(question.asked);
            Post(kJobProgress, Packed(progress));
            Ask(printer, question);
        }
        if (report.transport == Transport::kSnmp && !isCancelled) // the library has checked the model
            report.warning = IdentityWarning(AskIdentity(printer), UserLanguage());
    }

    void Run() {
        try {
            AskAll();
        } catch (const PrinterFailure& reason) {
            failure = reason;
        } catch (const std::exception&) { // of the module itself, which the commands report
            failure.emplace(Outcome::kInterrupted, address);
        }
        Post(kJobEnd);
    }
};

JobProgress ProgressOf(LPARAM posted) {
    JobProgress progress;
    memcpy(&progress, &posted, sizeof(progress));
    return progress;
}

DeviceJob::DeviceJob(const FamilyFiles& family, const std::string& address, HWND page, WPARAM jobNumber)
    : number(jobNumber), work(std::make_shared<Work>()) {
    work->files = ModuleOf(family);
    work->address = address;
    work->page = page;
    work->number = jobNumber;
    StartJob([shared = work] { shared->Run(); });
}

DeviceJob::~DeviceJob() {
    work->isCancelled = true;
}

const std::optional<PrinterFailure>& DeviceJob::Failure() const {
    return work->failure;
}

DeviceReport& DeviceJob::Report() {
    return work->report;
}
