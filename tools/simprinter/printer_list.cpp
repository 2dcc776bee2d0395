// Reads lists of printers.
#include "simprinter/printer_list.h"

#include "common/encoding.h"
#include "common/files.h"
#include "common/lines.h"
#include "common/text.h"
#include "simprinter/command_line.h"
#include "simprinter/udp_socket.h"
#ifndef _WIN32
#include <arpa/inet.h>
#endif

namespace {

constexpr size_t kMaxPrinters = 1000; // as many sockets as a process usually can have

struct List {
    std::string path;
    std::vector<Printer> printers;
    std::map<std::string, size_t> lines; // of the addresses so far
    PrinterFiles files;
};

// An error at a position of a line.
struct LineError : std::runtime_error {
    size_t at;

    LineError(size_t where, const std::string& what) : std::runtime_error(what), at(where) {}
};

// Runs a part of the reader; its errors are those of the text at this one.
template <typename Part>
auto At(size_t position, const Part& part) {
    try {
        return part();
    } catch (const std::runtime_error& error) {
        throw LineError(position, error.what());
    }
}

std::optional<uint32_t> Ipv4(const std::string& text) {
    in_addr address = {};
    if (inet_pton(AF_INET, text.c_str(), &address) != 1)
        return std::nullopt;
    return ntohl(address.s_addr);
}

std::string Ipv4Text(uint32_t number) {
    in_addr address = {};
    address.s_addr = htonl(number);
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

std::string PlaceOf(const List& list, size_t line, size_t at) {
    return list.path + ':' + std::to_string(line) + ':' + std::to_string(at + 1) + ": ";
}

// Throws when the address is a name, or occurs twice; an IPv6 address can be written in several ways.
void CheckAddress(const std::string& address, size_t line, List& list) {
    const Endpoint endpoint = EndpointOf(ResolveEndpoint({address, 0}));
    const auto [earlier, isNew] = list.lines.emplace(endpoint.address, line);
    if (!isNew)
        throw std::runtime_error(address + " occurs in line " + std::to_string(earlier->second)
                                 + " already: remove one");
    if (list.printers.size() == kMaxPrinters)
        throw std::runtime_error("more than " + std::to_string(kMaxPrinters) + " printers");
}

void ReadListLine(const std::string& text, size_t line, List& list) {
    static constexpr char kBlanks[] = " \t\r";
    const auto wordAt = [&](size_t from) {
        return std::min(text.find_first_not_of(kBlanks, from), text.size());
    };
    const auto endOf = [&](size_t word) { return std::min(text.find_first_of(kBlanks, word), text.size()); };
    const size_t address = wordAt(0), program = wordAt(endOf(address)), options = wordAt(endOf(program));
    const std::string agent = text.substr(program, endOf(program) - program);
    if (address == text.size() || text[address] == '#'
        || agent == "snmpd") // an agent that is started by others
        return;
    if (agent != "simprinter")
        throw LineError(program,
                        "unknown agent " + Quote(agent)
                            + "; write 'ADDRESS simprinter OPTIONS' ('snmpd' lines are passed over)");
    PrinterOptions printer = At(options, [&] {
        return ReadPrinterOptions(text.substr(options, text.find_last_not_of(kBlanks) + 1 - options));
    });
    const std::string addresses = text.substr(address, endOf(address) - address);
    for (const std::string& one : At(address, [&] { return AddressesOf(addresses); })) {
        At(address, [&] { CheckAddress(one, line, list); });
        list.printers.push_back(At(options, [&] { return StartPrinter(one, printer, list.files); }));
        list.printers.back().place = PlaceOf(list, line, address);
        ++printer.seed; // the printers of a range differ in losses and speeds
    }
}

} // namespace

std::vector<Printer> StartListedPrinters(const std::string& path) {
    const std::string contents = ReadFile(path);
    if (const char* const fault = TextFileFault(contents))
        throw std::runtime_error(path + ": " + fault);
    List list = {path, {}, {}, {}};
    std::string problems;
    size_t number = 0;
    for (const std::string_view line : SplitLines(WithoutUtf8Mark(contents))) {
        ++number;
        try {
            ReadListLine(std::string(line), number, list);
        } catch (const LineError& error) {
            problems += (problems.empty() ? "" : "\n") + PlaceOf(list, number, error.at) + error.what();
            if (list.printers.size() == kMaxPrinters) // all further lines have the same error
                break;
        }
    }
    if (!problems.empty())
        throw std::runtime_error(problems);
    if (list.printers.empty())
        throw std::runtime_error(QuotePath(path)
                                 + " has no printers: write lines 'ADDRESS simprinter OPTIONS'");
    return std::move(list.printers);
}
