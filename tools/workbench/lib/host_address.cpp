// Reads IPv4 addresses, and finds what is wrong with addresses and host names.
#include "workbench/lib/host_address.h"

#include "workbench/lib/text.h"

#include <algorithm>
#include <cctype>
#include <winsock2.h>

#include <ws2tcpip.h> // after winsock2.h

namespace {

constexpr size_t kMaxHostName = 253; // bytes
constexpr const char* kExpectedNumbers =
    " is no IPv4 address: expected four numbers from 0 to 255 without leading zeros, such as 192.0.2.10";

// Letters of other scripts belong to international names.
bool IsHostCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte > 0x7F || std::isalnum(byte) != 0 || c == '-' || c == '.' || c == '_';
}

// The character at this byte, in quotation marks unless it is invisible.
std::string ShownCharacter(const std::string& text, size_t at) {
    size_t end = at + 1;
    while (end < text.size() && (text[end] & 0xC0) == 0x80)
        ++end;
    const std::string shown = OneLine(text.substr(at, end - at));
    return shown.empty() ? "a control character" : shown == "\u00A0" ? "a no-break space" : "'" + shown + "'";
}

} // namespace

std::optional<uint32_t> ParseAddress(const std::string& text) {
    uint32_t address = 0;
    size_t at = 0;
    for (int part = 0; part < 4; ++part) {
        const size_t end = part < 3 ? text.find('.', at) : text.size();
        const int number = end == std::string::npos ? -1 : ParseNumber(text.substr(at, end - at), 3);
        if (number < 0 || number > UINT8_MAX || (text[at] == '0' && end > at + 1))
            return std::nullopt;
        address = address << 8 | static_cast<uint32_t>(number);
        at = end + 1;
    }
    return address;
}

bool IsIpv6Text(const std::string& text) {
    const bool isInBrackets = text.size() > 2 && text.front() == '[' && text.back() == ']';
    const std::string bare = isInBrackets ? text.substr(1, text.size() - 2) : text;
    in6_addr address = {};
    return inet_pton(AF_INET6, bare.substr(0, bare.find('%')).c_str(), &address) == 1;
}

std::string AddressText(uint32_t address) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += (text.empty() ? "" : ".") + std::to_string(address >> shift & UINT8_MAX);
    return text;
}

std::string AddressFault(const std::string& address, size_t& at) {
    at = 0;
    const std::string quoted = "'" + address + "'";
    const std::string expected = std::string("; ") + kExpectedAddress;
    if (address.find("://") != std::string::npos)
        return quoted + " is the address of a web page" + expected;
    if (address.find(':') != std::string::npos)
        return quoted + " is an IPv6 address, or has a port; neither is supported" + expected;
    if (address.find('/') != std::string::npos)
        return quoted + " is a range, which only --list itself can be" + expected;
    if (address.find_first_not_of("0123456789.-") == std::string::npos
        && address.find('-') != std::string::npos)
        return quoted + " is a range, of which --list takes the form 192.0.2.0/24 only" + expected;
    // The module takes whatever inet_addr accepts, such as 10.1 or 0x7f.1, for an address.
    if (!ParseAddress(address)
        && (address.find_first_not_of("0123456789.") == std::string::npos
            || inet_addr(address.c_str()) != INADDR_NONE))
        return quoted + kExpectedNumbers;
    if (address.size() > kMaxHostName)
        return "a host name of more than " + std::to_string(kMaxHostName) + " bytes" + expected;
    if (address[0] == '-')
        return "a host name can't begin with '-'" + expected;
    const auto bad = std::find_if_not(address.begin(), address.end(), IsHostCharacter);
    at = std::min(static_cast<size_t>(bad - address.begin()), address.find("\u00A0"));
    if (at >= address.size()) {
        at = 0;
        return "";
    }
    const bool isSeparator = address[at] == ',' || address[at] == ';';
    return "a host name can't have " + ShownCharacter(address, at)
           + (isSeparator ? "; a blank separates the address from the name" : expected);
}
