// The table of the levels of attention, and that of the failures.
#include "workbench/fleet/attention.h"

namespace {

constexpr struct {
    Attention attention;
    const char* word;
    const char* title;
} kAttentionWords[] = {
    {Attention::kNoAnswer, "no answer", "No answer"},
    {Attention::kOtherDevice, "other device", "Other devices"},
    {Attention::kStopped, "stopped", "Stopped"},
    {Attention::kEmpty, "empty", "Empty"},
    {Attention::kLow, "low", "Low"},
    {Attention::kIncomplete, "incomplete", "Not read completely"},
    {Attention::kFine, "fine", "Fine"},
};

constexpr struct {
    Outcome outcome;
    FailureWords words;
} kFailureWords[] = {
    {Outcome::kNoAddress, {Attention::kNoAnswer, "no address", "correct the list"}},
    {Outcome::kUnfitAddress, {Attention::kNoAnswer, "no such name", "list its IPv4 address"}},
    {Outcome::kBadAddress, {Attention::kNoAnswer, "no address", "correct the list"}},
    {Outcome::kIpv6Address, {Attention::kNoAnswer, "IPv6 only", "list its IPv4 address"}},
    {Outcome::kUnknownHost,
     {Attention::kNoAnswer, "unknown name", "check the spelling, or list its IPv4 address"}},
    {Outcome::kNoNameService,
     {Attention::kNoAnswer, "name service silent", "ask again later, or list its IPv4 address"}},
    {Outcome::kNoLibrary, {Attention::kNoAnswer, "not queried", "install the bidirectional library"}},
    {Outcome::kNotSent, {Attention::kNoAnswer, "not reachable", "check the network of this computer"}},
    {Outcome::kRefused, {Attention::kNoAnswer, "SNMP refused", "turn on SNMP, or check the address"}},
    {Outcome::kNoAnswer, {Attention::kNoAnswer, "no answer", "turn it on; check address and SNMP community"}},
    {Outcome::kInterrupted,
     {Attention::kNoAnswer, "stopped answering", "ask again; restart it if that does not help"}},
    {Outcome::kSlow, {Attention::kIncomplete, "slow, or answers get lost", "run workbench diagnose"}},
    {Outcome::kOtherRequests,
     {Attention::kNoAnswer, "other answers only", "ask again; restart it if that does not help"}},
    {Outcome::kMalformedAnswer,
     {Attention::kNoAnswer, "damaged answer", "check that it is a printer; restart it"}},
    {Outcome::kErrorStatus, {Attention::kNoAnswer, "SNMP error", "restart it; check its SNMP settings"}},
    {Outcome::kNotAPrinter, {Attention::kOtherDevice, "not a printer", "check the address"}},
    {Outcome::kOtherNumber, {Attention::kOtherDevice, "not device 1 of its host", "set its options by hand"}},
    {Outcome::kOtherModel,
     {Attention::kOtherDevice, "other model", "check the address, or use its own driver"}},
};

} // namespace

const char* AttentionWord(Attention attention) {
    for (const auto& row : kAttentionWords)
        if (row.attention == attention)
            return row.word;
    return "";
}

const char* AttentionTitle(Attention attention) {
    for (const auto& row : kAttentionWords)
        if (row.attention == attention)
            return row.title;
    return "";
}

FailureWords WordsOf(Outcome outcome) {
    for (const auto& row : kFailureWords)
        if (row.outcome == outcome)
            return row.words;
    throw Failure(kExitFailed, "an outcome of a query has no words"); // never: a test asks for all
}
