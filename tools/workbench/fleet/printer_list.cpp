// Reads lists of printers and reports their faults.
#include "workbench/fleet/printer_list.h"

#include "common/encoding.h"
#include "common/lines.h"
#include "workbench/lib/document.h"
#include "workbench/lib/files.h"
#include "workbench/lib/host_address.h"
#include "workbench/lib/text.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <utility>

namespace {

constexpr int kAddressBits = 32;
constexpr int kLeastPrefix = 20; // of kMaxListed addresses
constexpr const char* kListBlanks = " \t\r";

bool HasOnly(const std::string& text, const char* characters) {
    return !text.empty() && text.find_first_not_of(characters) == std::string::npos;
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

// Where the text is not UTF-8, as LINE:COLUMN: what is wrong; empty: nowhere.
std::string Utf8Fault(const Lines& lines) {
    for (size_t i = 0; i < lines.size(); ++i) {
        const std::string line(lines[i]);
        if (IsUtf8(line))
            continue;
        size_t valid = line.size() - 1; // the longest start of the line that is UTF-8
        while (!IsUtf8(line.substr(0, valid)))
            --valid;
        return std::to_string(i + 1) + ":" + ColumnOf(line, valid) + ": not UTF-8: save the file as UTF-8";
    }
    return {};
}

// Collects the printers and the faults of a text.
struct ListReader {
    std::string name; // of the file
    std::vector<ListedPrinter> printers;
    std::map<std::string, size_t> lines; // of each address
    std::string faults;
    bool isFull = false; // which is a fault of the first line too many

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
        if (printers.size() < kMaxListed)
            printers.push_back({address, OneLine(line.substr(end))});
        else if (!std::exchange(isFull, true))
            Fault(line, number, start,
                  "more than " + std::to_string(kMaxListed) + " printers: expected fewer; split the list");
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

// Why there is no file of this name; empty: there is one.
std::string ListFault(const std::string& from) {
    constexpr const char* kExpectedList = "expected a file, or a range of addresses such as 192.0.2.0/24";
    std::error_code error;
    const std::filesystem::path path = std::filesystem::u8path(from);
    if (std::filesystem::is_directory(path, error))
        return "'" + from + "' is a folder; " + kExpectedList;
    if (std::filesystem::exists(path, error))
        return {};
    if (ParseAddress(from))
        return "'" + from + "' is one address: leave out --list, or ask for " + from + "/32";
    return "'" + from + "' is no file; " + kExpectedList;
}

bool IsRange(const std::string& text) {
    return text.find('/') != std::string::npos && HasOnly(text, "0123456789./");
}

} // namespace

std::vector<ListedPrinter> ParsePrinterList(const std::string& text, const std::string& name) {
    if (const char* fault = TextFileFault(text))
        throw Failure(kExitUsage, name + ": " + fault);
    const Lines lines = SplitLines(text);
    if (const std::string fault = Utf8Fault(lines); !fault.empty())
        throw Failure(kExitUsage, name + ":" + fault);
    ListReader reader = {name, {}, {}, {}};
    for (size_t i = 0; i < lines.size(); ++i)
        reader.Read(std::string(lines[i]), i + 1);
    if (!reader.faults.empty())
        throw Failure(kExitUsage, reader.faults);
    if (reader.printers.empty())
        throw Failure(kExitUsage, name + ": has no printer; " + kExpectedAddress + " in each line");
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
    if (from == "-")
        return {ParsePrinterList(std::string(WithoutUtf8Mark(StandardInput())), "standard input"), false};
    if (const std::string fault = ListFault(from); !fault.empty())
        throw Failure(kExitUsage, "--list: " + fault);
    return {ParsePrinterList(ReadTextFile(from, "--list"), from), false};
}
