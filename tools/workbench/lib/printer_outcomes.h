// How asking a printer can end, with what the user is told about it: the one list for the property sheet and
// all commands.
#ifndef WORKBENCH_LIB_PRINTER_OUTCOMES_H
#define WORKBENCH_LIB_PRINTER_OUTCOMES_H

#include "workbench/lib/document.h"

#include <string>

enum class Outcome : uint8_t {
    kAnswered,
    // The address is not one.
    kNoAddress,
    kUnfitAddress, // a character that the system's code page lacks
    kBadAddress,   // neither an IPv4 address nor a host name
    kIpv6Address,  // the module takes IPv4 only
    // Nothing has answered.
    kUnknownHost,
    kNoNameService, // it is unknown whether there is such a host
    kNoLibrary,
    kNotSent,
    kRefused,
    kNoAnswer,
    kInterrupted, // it has answered before
    kSlow,        // the module gives up, but the device answers the workbench
    // Something has answered, but not as a printer of this model.
    kOtherRequests,
    kMalformedAnswer,
    kErrorStatus,
    kNotAPrinter,
    kOtherNumber, // the printer is not device 1 of its host
    kOtherModel,
};

// The failure of a query. Its message is that of the commands: English, with the address first.
struct PrinterFailure : Failure {
    // Address in UTF-8, as the user has written it. The detail is what the outcome's texts name in addition:
    // a path, a number or a model.
    PrinterFailure(Outcome end, const std::string& address, const std::string& detail = {});

    Outcome outcome;
    std::string sentence; // what has happened and what to do, in the user's language
};

#endif
