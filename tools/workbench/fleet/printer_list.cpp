// Reads lists of printers and reports their faults.
#include "workbench/fleet/printer_list.h"

#include "common/encoding.h"
#include "workbench/lib/document.h"
#include "workbench/lib/files.h"
#include "workbench/lib/text.h"

#include <algorithm>
#include <map>
#include <optional>

namespace {

constexpr size_t kMaxHostName = 253; // bytes
constexpr int kAddressBits = 32;
constexpr int kLeastPrefix = 20; // of kMaxListed addresses
constexpr const char* kListBlanks = " \t\r";
constexpr const char* kExpected = "expected an IPv4 address, such as 192.0.2.10, or a host name";

bool HasOnly(const std::string& text, const char* characters) {
    return !text.empty() && text.find_first_not_of(characters) == std::string::npos;
}

// Four numbers from 0 to 255; none for any other text.
std::optional<uint32_t> ParseAddress(const std::string& text) {
    uint32_t address = 0;
    size_t at = 0;
    for (int part = 0; part < 4; ++part) {
        const size_t end = part < 3 ? text.find('.', at) : text.size();
        const int number = end == std::string::npos ? -1 : ParseNumber(text.substr(at, end - at), 3);
        if (number < 0 || number > UINT8_MAX)
            return std::nullopt;
        address = address << 8 | static_cast<uint32_t>(number);
        at = end + 1;
    }
    return address;
}

std::string AddressText(uint32_t address) {
    std::string text;
    for (int shift = kAddressBits - 8; shift >= 0; shift -= 8)
        text += (text.empty() ? "" : ".") + std::to_string(address >> shift & UINT8_MAX);
    return text;
}

bool IsHostCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte > 0x7F || std::isalnum(byte) != 0 || c == '-' || c == '.' || c == '_';
}

// What is wrong with an address, and at which of its bytes; empty: nothing.
std::string AddressFault(const std::string& address, size_t& at) {
    at = 0;
    if (address.find(':') != std::string::npos)
        return "'" + address + "' is an IPv6 address, or has a port; neither is supported: " + kExpected;
    if (address.find('/') != std::string::npos)
        return "'" + address + "' is a range, which only --list itself can be: " + kExpected;
    if (HasOnly(address, "0123456789.") && !ParseAddress(address))
        return "'" + address
               + "' is no IPv4 address: expected four numbers from 0 to 255, such as 192.0.2.10";
    if (address.size() > kMaxHostName)
        return "a host name of more than " + std::to_string(kMaxHostName) + " bytes; " + kExpected;
    const auto bad = std::find_if_not(address.begin(), address.end(), IsHostCharacter);
    if (bad == address.end())
        return "";
    at = static_cast<size_t>(bad - address.begin());
    return "a host name can't have the character '" + std::string(1, *bad) + "'; " + kExpected;
}

// Characters up to this byte, from 1.
std::string ColumnOf(const std::string& line, size_t byte) {
    size_t column = 1;
    for (size_t i = 0; i < byte; ++i)
        column += (line[i] & 0xC0) != 0x80 ? 1 : 0;
    return std::to_string(column);
}

std::string WithoutListComment(const std::string& line) {
    for (size_t at = line.find('#'); at != std::string::npos; at = line.find('#', at + 1))
        if (at == 0 || line[at - 1] == ' ' || line[at - 1] == '\t')
            return line.substr(0, at);
    return line;
}

// Collects the printers and the faults of a text.
struct ListReader {
    std::string name; // of the file
    std::vector<ListedPrinter> printers;
    std::map<std::string, size_t> lines; // of each address
    std::string faults;

    void Fault(const std::string& line, size_t number, size_t byte, const std::string& message) {
        faults += (faults.empty() ? "" : "\n") + name + ":" + std::to_string(number) + ":"
                  + ColumnOf(line, byte) + ": " + message;
    }

    void Read(const std::string& whole, size_t number) {
        const std::string line = WithoutListComment(whole);
        const size_t start = line.find_first_not_of(kListBlanks);
        if (start == std::string::npos)
            return;
        const size_t end = std::min(line.find_first_of(kListBlanks, start), line.size());
        const std::string address = line.substr(start, end - start);
        size_t at = 0;
        if (const std::string fault = AddressFault(address, at); !fault.empty())
            return Fault(line, number, start + at, fault);
        const auto [before, isNew] = lines.try_emplace(address, number);
        if (!isNew)
            return Fault(line, number, start,
                         address + " is already in line " + std::to_string(before->second)
                             + ": expected each printer once");
        if (printers.size() == kMaxListed)
            return Fault(line, number, start,
                         "more than " + std::to_string(kMaxListed)
                             + " printers: expected fewer; split the list");
        printers.push_back({address, Trimmed(line.substr(end))});
    }
};

std::string StandardInput() {
    std::string text;
    char block[4096];
    DWORD read = 0;
    while (ReadFile(GetStdHandle(STD_INPUT_HANDLE), block, sizeof(block), &read, nullptr) && read != 0)
        text.append(block, read);
    return text;
}

bool IsRange(const std::string& text) {
    return text.find('/') != std::string::npos && HasOnly(text, "0123456789./");
}

} // namespace

std::vector<ListedPrinter> ParsePrinterList(const std::string& text, const std::string& name) {
    if (const char* fault = WideTextFault(text))
        throw Failure(kExitUsage, name + ": " + fault);
    ListReader reader = {name, {}, {}, {}};
    size_t number = 1;
    for (size_t at = 0; at < text.size(); ++number) {
        const size_t end = std::min(text.find('\n', at), text.size());
        reader.Read(text.substr(at, end - at), number);
        at = end + 1;
    }
    if (!reader.faults.empty())
        throw Failure(kExitUsage, reader.faults);
    if (reader.printers.empty())
        throw Failure(kExitUsage, name + ": has no printer; " + kExpected + " in each line");
    return reader.printers;
}

std::vector<ListedPrinter> AddressesOfRange(const std::string& range) {
    const size_t slash = range.find('/');
    const std::optional<uint32_t> address = ParseAddress(range.substr(0, slash));
    const int prefix = slash == std::string::npos ? -1 : ParseNumber(range.substr(slash + 1), 2);
    if (!address || prefix < kLeastPrefix || prefix > kAddressBits)
        throw Failure(kExitUsage,
                      "'" + range + "' is no range of addresses; expected one such as 192.0.2.0/24, from /"
                          + std::to_string(kLeastPrefix) + " (" + std::to_string(kMaxListed)
                          + " addresses) to /" + std::to_string(kAddressBits));
    const uint32_t count = uint32_t{1} << (kAddressBits - prefix);
    const uint32_t first = *address & ~(count - 1);
    const uint32_t edge = count > 2 ? 1 : 0; // the network itself, and its broadcast address
    std::vector<ListedPrinter> printers;
    for (uint32_t i = edge; i < count - edge; ++i)
        printers.push_back({AddressText(first + i), {}});
    return printers;
}

PrinterList ReadPrinterList(const std::string& from) {
    if (IsRange(from))
        return {AddressesOfRange(from), true};
    if (from != "-")
        return {ParsePrinterList(ReadTextFile(from, "--list"), from), false};
    return {ParsePrinterList(std::string(WithoutUtf8Mark(StandardInput())), "standard input"), false};
}
