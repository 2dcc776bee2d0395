// simprinter, a simulated printer on the network: messages and exit codes.
// Exit codes: 0 stopped by a signal or a control line, recorded, --help or --version; 1 failure; 2 wrong
// usage.
#include "common/program.h"
#include "simprinter/command_line.h"
#include "simprinter/control.h"
#include "simprinter/control_input.h"
#include "simprinter/printer_list.h"
#include "simprinter/server.h"
#include "simprinter/sockets.h"

#include <algorithm>
#include <exception>
#include <iostream>

namespace {

enum ExitCode { kDone = 0, kFailed = 1, kWrongUsage = 2 };

std::vector<Printer> StartPrinters(const CommandLine& line) {
    if (!line.listFile.empty())
        return StartListedPrinters(line.listFile);
    PrinterFiles files;
    std::vector<Printer> printers;
    printers.push_back(StartPrinter(line.address, line.printer, files));
    return printers;
}

// What scripts wait for: with a list, the last line.
void PrintReady(const std::vector<Endpoint>& opened, bool isList) {
    for (const Endpoint& endpoint : opened)
        std::cout << "simprinter: ready on " << EndpointText(endpoint) << '\n';
    if (isList)
        std::cout << "simprinter: ready with " << opened.size() << " printers\n";
    std::cout.flush();
}

void ServePrinters(const CommandLine& line) {
    constexpr int kTickMs = 250; // a level that changes is noticed so soon
    std::vector<Printer> printers = StartPrinters(line);
    std::vector<Endpoint> endpoints;
    endpoints.reserve(printers.size());
    for (const Printer& printer : printers)
        endpoints.push_back({printer.address, line.port, printer.place});
    const auto start = std::chrono::steady_clock::now();
    const auto upTime = [&] {
        return std::chrono::duration_cast<UpTime>(std::chrono::steady_clock::now() - start);
    };
    const bool isVarying = std::any_of(printers.begin(), printers.end(), [](const Printer& printer) {
        return printer.options.varySeconds > 0;
    });
    Serve(endpoints, line.logs,
          {[&](const std::vector<Endpoint>& opened) { PrintReady(opened, !line.listFile.empty()); },
           [&](size_t printer, const Bytes& datagram) {
               return AnswerDatagram(printers[printer], datagram, upTime());
           },
           [&](const std::string& text) {
               const ControlReply reply = RunControlLine(printers, text, upTime());
               if (!reply.text.empty())
                   (reply.isDone ? std::cout : std::cerr << "simprinter: ") << reply.text << std::endl;
               if (reply.stops)
                   RequestStop();
           },
           [&] {
               for (Printer& printer : printers)
                   AdvancePrinter(printer, upTime());
           },
           isVarying ? kTickMs : 0});
}

ExitCode Run(int argc, char** argv) {
    CommandLine line;
    if (!ReadCommandLine(argc, argv, line))
        return kDone;
    if (line.record)
        return RecordDevice(*line.record) ? kDone : kFailed;
    ServePrinters(line);
    return kDone;
}

} // namespace

int main(int argc, char** argv) {
    StartProgram(argc, argv);
    try {
        StartSockets();
        return Run(argc, argv);
    } catch (const WrongUsage& error) {
        std::cerr << "simprinter: " << error.what() << "\n";
        return kWrongUsage;
    } catch (const std::exception& error) {
        std::cerr << "simprinter: " << error.what() << "\n";
        return kFailed;
    }
}
