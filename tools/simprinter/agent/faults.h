// Faults of a printer or a network, selected on the command line. They change the answers to requests.
#ifndef SIMPRINTER_FAULTS_H
#define SIMPRINTER_FAULTS_H

#include "simprinter/snmp/message.h"

#include <random>

enum class Source {
    kAsked,        // the address and port of the request
    kOtherPort,    // the same address, another port
    kOtherAddress, // another loopback address
};

struct Datagram {
    Bytes bytes;
    int delayMs = 0;
    Source source = Source::kAsked;
};

struct FaultKind; // a row of the table

struct Fault {
    const FaultKind* kind;
    std::optional<long> argument;
    Oid prefix;     // applies only to requests with a variable below it
    long acted = 0; // answers changed so far
};

struct FaultSet {
    std::vector<Fault> faults;
    std::mt19937 random; // for losses; seeded, so every run loses the same answers
};

// Parses NAME[=VALUE][@OID]. Throws std::runtime_error for anything else.
Fault ParseFault(const std::string& text);

// As it is written, "delay=500@.1.3.6.1.2.1.43".
std::string FaultText(const Fault& fault);

// In place of one of the same kind and prefix.
void AddFault(FaultSet& set, const Fault& fault);

// Takes away those of NAME, or NAME@OID alone. False when there is none. Throws std::runtime_error for any
// other text.
bool RemoveFaults(FaultSet& set, const std::string& text);

// What hinders an agent of this address from having the fault; usually nothing.
const char* FaultProblem(const Fault& fault, const std::string& address);

// Help text: one line for each fault.
std::string FaultHelp();

// Applies the faults to the reply and encodes it. Appends the names of those that applied to `log`.
std::vector<Datagram> ApplyFaults(FaultSet& set, const Message& request, const Message& reply,
                                  std::string& log);

#endif
