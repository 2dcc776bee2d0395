// Reads lists of printers.
#include "simprinter/printer_list.h"

#include "common/files.h"
#include "common/text.h"
#include "simprinter/command_line.h"
#include "simprinter/udp_socket.h"

#include <arpa/inet.h>
#include <sstream>

namespace {

constexpr size_t kMaxPrinters = 1000; // as many sockets as a process usually can have

struct List {
    std::vector<Printer> printers;
    std::map<std::string, size_t> lines; // of the addresses so far
    PrinterFiles files;
};

std::optional<uint32_t> Ipv4(const std::string& text) {
    in_addr address = {};
    if (inet_pton(AF_INET, text.c_str(), &address) != 1)
        return std::nullopt;
    return ntohl(address.s_addr);
}

std::string Ipv4Text(uint32_t number) {
    const in_addr address = {htonl(number)};
    char text[INET_ADDRSTRLEN] = "";
    inet_ntop(AF_INET, &address, text, sizeof text);
    return text;
}

// "127.0.0.1-127.0.0.9" as single addresses; anything else is one address.
std::vector<std::string> AddressesOf(const std::string& text) {
    const size_t dash = text.find('-');
    if (dash == std::string::npos)
        return {text};
    const std::optional<uint32_t> first = Ipv4(text.substr(0, dash)), last = Ipv4(text.substr(dash + 1));
    if (!first || !last || *last < *first)
        throw std::runtime_error(Quote(text) + " is not a range such as 127.0.0.1-127.0.0.9");
    if (*last - *first >= kMaxPrinters)
        throw std::runtime_error(Quote(text) + " has more than " + std::to_string(kMaxPrinters)
                                 + " addresses");
    std::vector<std::string> addresses;
    for (uint32_t number = *first; number - *first <= *last - *first; ++number)
        addresses.push_back(Ipv4Text(number));
    return addresses;
}

void ReadListLine(const std::string& text, size_t line, List& list) {
    std::istringstream words(text);
    std::string addresses, program, options;
    words >> addresses >> program;
    std::getline(words, options);
    if (addresses.empty() || addresses[0] == '#' || program == "snmpd") // an agent that is started by others
        return;
    if (program != "simprinter")
        throw std::runtime_error("unknown agent " + Quote(program)
                                 + "; write 'ADDRESS simprinter OPTIONS' ('snmpd' lines are passed over)");
    PrinterOptions printer = ReadPrinterOptions(options);
    for (const std::string& address : AddressesOf(addresses)) {
        ResolveEndpoint({address, 0}); // throws for a name
        const auto [earlier, isNew] = list.lines.emplace(address, line);
        if (!isNew)
            throw std::runtime_error(address + " occurs in line " + std::to_string(earlier->second)
                                     + " already: remove one");
        if (list.printers.size() == kMaxPrinters)
            throw std::runtime_error("more than " + std::to_string(kMaxPrinters) + " printers");
        list.printers.push_back(StartPrinter(address, printer, list.files));
        ++printer.seed; // the printers of a range differ in losses and speeds
    }
}

} // namespace

std::vector<Printer> StartListedPrinters(const std::string& path) {
    List list;
    std::istringstream text(ReadFile(path));
    size_t number = 0;
    for (std::string line; std::getline(text, line);) {
        ++number;
        try {
            ReadListLine(line, number, list);
        } catch (const std::runtime_error& error) {
            throw std::runtime_error(path + ':' + std::to_string(number) + ": " + error.what());
        }
    }
    if (list.printers.empty())
        throw std::runtime_error(Quote(path) + " has no printers: write lines 'ADDRESS simprinter OPTIONS'");
    return std::move(list.printers);
}
