// Starts simulated printers from their files and keeps their objects current.
#include "simprinter/printer.h"

#include "common/files.h"
#include "common/text.h"
#include "simprinter/device/device_reader.h"
#include "simprinter/device/objects.h"
#include "simprinter/recordings/recording.h"

#include <iostream>
#include <stdexcept>

namespace {

int64_t Hundredths(UpTime upTime) {
    return upTime.count() / 10;
}

// The contents of a file, read when it is needed first. Prints the findings; throws when any of them is an
// error.
template <typename Contents, typename Read>
const Contents& ReadOnce(std::map<std::string, Contents>& all, const std::string& path, const Read& read,
                         size_t mostBytes, bool isStrict) {
    if (const auto known = all.find(path); known != all.end())
        return known->second;
    Findings findings;
    Contents contents = read(ReadFile(path, mostBytes), findings);
    if (isStrict)
        findings.RaiseWarnings();
    findings.Sort();
    for (const Finding& finding : findings.list)
        std::cerr << path << ':' << FindingText(finding) << '\n';
    if (findings.HasErrors())
        throw std::runtime_error(QuotePath(path) + " has errors: correct them and start again");
    return all.emplace(path, std::move(contents)).first->second;
}

Device DescribedDevice(const PrinterOptions& options, PrinterFiles& files) {
    return options.deviceFile.empty()
               ? PlainDevice()
               : ReadOnce(files.devices, options.deviceFile, ReadDevice, kMaxFileBytes, options.isStrict);
}

} // namespace

Printer StartPrinter(const std::string& address, const PrinterOptions& options, PrinterFiles& files) {
    Printer printer{address, options, {options.agent, {}, {options.faults, std::mt19937(options.seed)}},
                    {},      {},      {},
                    {},      {}};
    for (const Fault& fault : options.faults) {
        if (const char* const problem = FaultProblem(fault, address))
            throw std::runtime_error(problem);
    }
    if (!options.replayFile.empty()) {
        const auto read = [](const std::string& text, Findings& findings) {
            return std::make_shared<const ObjectMap>(ReadRecording(text, findings));
        };
        printer.agent.objects =
            ReadOnce(files.recordings, options.replayFile, read, kMaxRecordingBytes, options.isStrict);
        return printer;
    }
    printer.start = DescribedDevice(options, files);
    printer.device = *printer.start;
    std::mt19937 speeds(options.seed);
    if (options.varySeconds > 0)
        printer.variation = StartVariation(printer.device, options.varySeconds, speeds);
    AdvancePrinter(printer, UpTime::zero());
    NoteChange(printer, UpTime::zero());
    return printer;
}

void AdvancePrinter(Printer& printer, UpTime upTime) {
    const double seconds = std::chrono::duration<double>(upTime).count();
    if (printer.start && printer.options.varySeconds > 0
        && VaryLevels(printer.variation, printer.device, seconds))
        NoteChange(printer, upTime);
}

void NoteChange(Printer& printer, UpTime upTime) {
    UpdateAlerts(printer.alerts, printer.device, Hundredths(upTime));
    printer.isChanged = true;
}

Outcome AnswerDatagram(Printer& printer, const Bytes& datagram, UpTime upTime) {
    AdvancePrinter(printer, upTime);
    if (printer.start) { // a recording's times don't change either
        if (printer.isChanged) {
            printer.own = std::make_shared<ObjectMap>(ObjectsOf(printer.device, printer.alerts));
            printer.agent.objects = printer.own;
            printer.isChanged = false;
        }
        SetUpTime(*printer.own, Hundredths(upTime));
    }
    return HandleDatagram(printer.agent, datagram);
}
