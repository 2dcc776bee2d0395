// Addresses of printers as people write them: the one reader for lists, ranges and commands.
#ifndef WORKBENCH_LIB_HOST_ADDRESS_H
#define WORKBENCH_LIB_HOST_ADDRESS_H

#include <cstdint>
#include <optional>
#include <string>

// Four numbers from 0 to 255 without leading zeros, which some programs take as octal; none for any other
// text. The first number is in the highest byte.
std::optional<uint32_t> ParseAddress(const std::string& text);

// Whether the text is an IPv6 address: also with a zone, such as fe80::1%4, or in square brackets.
bool IsIpv6Text(const std::string& text);

std::string AddressText(uint32_t address);

// What is wrong with the address or the host name, with what is expected, and at which of its bytes; empty:
// nothing.
std::string AddressFault(const std::string& address, size_t& at);

constexpr const char* kExpectedAddress = "expected an IPv4 address, such as 192.0.2.10, or a host name";

#endif
