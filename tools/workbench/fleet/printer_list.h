// The printers that `workbench query --list` asks: from a file, the standard input or a range of addresses.
#ifndef WORKBENCH_FLEET_PRINTER_LIST_H
#define WORKBENCH_FLEET_PRINTER_LIST_H

#include <string>
#include <vector>

constexpr size_t kMaxListed = 4096;

struct ListedPrinter {
    std::string address; // IPv4 address or host name, UTF-8
    std::string name;    // on one line, without control characters; may be empty
};

struct PrinterList {
    std::vector<ListedPrinter> printers;
    bool isScan; // of a range: that most addresses do not answer is no problem
};

// Reads the list: "-" is the standard input, a text such as 192.168.7.0/24 a range, anything else a file.
// Throws Failure when it cannot be read or has faults.
PrinterList ReadPrinterList(const std::string& from);

// A line has an address and, after blanks, an optional name; a comment begins with '#' at the start of a line
// or after a blank. Lines end with LF, CR LF or, in all of the text, CR. Throws Failure with all faults of
// the text, each as NAME:LINE:COLUMN: what is wrong, what is expected.
std::vector<ListedPrinter> ParsePrinterList(const std::string& text, const std::string& name);

// The addresses of a range in CIDR notation, without those of the network and for broadcasts. Throws Failure
// when the text is not a range, or one of more than kMaxListed addresses.
std::vector<ListedPrinter> AddressesOfRange(const std::string& range);

#endif
