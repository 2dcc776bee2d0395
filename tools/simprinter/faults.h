// Faults of a printer or a network, ordered on the command line: a table of them, each acting on the answer
// to a request, and the datagrams that the answer becomes.
#ifndef SIMPRINTER_FAULTS_H
#define SIMPRINTER_FAULTS_H

#include "simprinter/message.h"

#include <random>

enum class Source {
    kAsked,        // the address and port that the request went to
    kOtherPort,    // the same address, another port
    kOtherAddress, // another loopback address
};

struct Datagram {
    Octets octets;
    int delayMs = 0;
    Source source = Source::kAsked;
};

struct FaultKind; // a row of the table

struct Fault {
    const FaultKind* kind;
    std::optional<long> argument;
    Oid prefix;     // acts only when a variable of the request begins with it
    long acted = 0; // answers that it has acted on
};

struct FaultSet {
    std::vector<Fault> faults;
    std::mt19937 random; // for losses; the same with every start
};

// Reads NAME[=VALUE][@OID]. Throws std::runtime_error that says what is wrong and what is possible.
Fault ParseFault(const std::string& text);

// The table of faults for people, one line each.
std::string FaultHelp();

// Lets the faults act on the reply and encodes it. Appends the names of those that acted to `log`.
std::vector<Datagram> ApplyFaults(FaultSet& set, const Message& request, const Message& reply,
                                  std::string& log);

#endif
