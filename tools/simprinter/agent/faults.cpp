// The table of faults, and the datagrams that a faulty answer becomes.
#include "simprinter/agent/faults.h"

#include "common/choices.h"
#include "common/text.h"

#include <algorithm>
#include <stdexcept>

namespace {

// An answer that the faults change before it is sent.
struct Answer {
    const Message& request;
    Message message;
    bool isSent = true;
    int delayMs = 0;
    int copies = 1;
    long staleCount = 0; // answers to other requests that are sent first
    Source source = Source::kAsked;
    bool isMalformed = false;
    bool isTruncated = false;
    std::optional<long> bytesLeft = {}; // of a truncated answer; not given: half
};

} // namespace

// Changes the answer; false when the fault did not apply this time.
using Act = bool (*)(Answer& answer, Fault& fault, std::mt19937& random);

enum class Argument { kNone, kMayHave, kMustHave };

struct FaultKind {
    const char* name;
    Argument argument;
    const char* argumentName;
    long least, most; // of the argument
    Act act;
    const char* text;
};

namespace {

bool DropAnswer(Answer& answer, Fault& fault, std::mt19937&) {
    const bool acts = !fault.argument || fault.acted < *fault.argument;
    answer.isSent = answer.isSent && !acts;
    return acts;
}

bool LoseSome(Answer& answer, Fault& fault, std::mt19937& random) {
    const bool acts = random() % 100 < static_cast<unsigned long>(*fault.argument);
    answer.isSent = answer.isSent && !acts;
    return acts;
}

bool Delay(Answer& answer, Fault& fault, std::mt19937&) {
    answer.delayMs = static_cast<int>(*fault.argument);
    return true;
}

bool Duplicate(Answer& answer, Fault&, std::mt19937&) {
    answer.copies = 2;
    return true;
}

bool SendStaleFirst(Answer& answer, Fault& fault, std::mt19937&) {
    answer.staleCount = *fault.argument;
    return true;
}

bool ChangeCommunity(Answer& answer, Fault&, std::mt19937&) {
    answer.message.community = "not-" + answer.message.community;
    return true;
}

bool UseOtherPort(Answer& answer, Fault&, std::mt19937&) {
    answer.source = Source::kOtherPort;
    return true;
}

bool UseOtherAddress(Answer& answer, Fault&, std::mt19937&) {
    answer.source = Source::kOtherAddress;
    return true;
}

bool Truncate(Answer& answer, Fault& fault, std::mt19937&) {
    answer.isTruncated = true;
    answer.bytesLeft = fault.argument;
    return true;
}

bool MakeMalformed(Answer& answer, Fault&, std::mt19937&) {
    answer.isMalformed = true;
    return true;
}

bool AnswerError(Answer& answer, Fault& fault, std::mt19937&) {
    answer.message.varBinds = answer.request.varBinds;
    answer.message.errorStatus = *fault.argument;
    answer.message.errorIndex = *fault.argument == kNoError || answer.message.varBinds.empty() ? 0 : 1;
    return true;
}

bool AnswerCounters(Answer& answer, Fault&, std::mt19937&) {
    bool acted = false;
    for (VarBind& varBind : answer.message.varBinds) {
        if (varBind.value.tag != kInteger)
            continue;
        varBind.value.tag = kCounter;
        varBind.value.number &= UINT32_MAX;
        acted = true;
    }
    return acted;
}

// clang-format off
constexpr FaultKind kFaultKinds[] = {
    // name             argument              its name   least most    act               what happens
    {"silence",         Argument::kMayHave,  "COUNT",   1, 1000000,    DropAnswer,       "no answer, or none to the first COUNT requests"},
    {"loss",            Argument::kMustHave, "PERCENT", 0, 100,        LoseSome,         "this percentage of the answers is lost; --seed selects which"},
    {"delay",           Argument::kMustHave, "MS",      0, 600000,     Delay,            "the answer is delayed by this many milliseconds"},
    {"duplicate",       Argument::kNone,     "",        0, 0,          Duplicate,        "the answer is sent twice"},
    {"stale",           Argument::kMustHave, "COUNT",   1, 1000,       SendStaleFirst,   "this many answers with other request-ids are sent first"},
    {"wrong-community", Argument::kNone,     "",        0, 0,          ChangeCommunity,  "the answer has a different community"},
    {"wrong-source",    Argument::kNone,     "",        0, 0,          UseOtherPort,     "the answer comes from a different port"},
    {"wrong-address",   Argument::kNone,     "",        0, 0,          UseOtherAddress,  "the answer comes from a different loopback address"},
    {"truncated",       Argument::kMayHave,  "BYTES",  0, 65507,      Truncate,         "the answer is cut to this many bytes, or to half"},
    {"malformed",       Argument::kNone,     "",        0, 0,          MakeMalformed,    "a length in the answer points beyond its end"},
    {"error-status",    Argument::kMustHave, "N",       0, 2147483647, AnswerError,      "the answer has this error-status"},
    {"counter",         Argument::kNone,     "",        0, 0,          AnswerCounters,   "integers are sent as Counter"},
};
// clang-format on

// Sets the community's length to 127 and leaves at most 126 bytes after it. The length follows the header,
// the version (three bytes) and the community's tag.
void PointBeyondEnd(Bytes& bytes) {
    const size_t header = bytes[1] < 0x80 ? 2 : 2 + (bytes[1] & 0x7Fu);
    bytes[header + 4] = 0x7F;
    bytes.resize(header + 5 + std::min<size_t>(bytes.size() - header - 5, 0x7E));
}

Bytes Encode(const Answer& answer) {
    Bytes bytes = BuildMessage(answer.message);
    if (answer.isMalformed && bytes.size() > 8)
        PointBeyondEnd(bytes);
    if (answer.isTruncated)
        bytes.resize(std::min(bytes.size(),
                              answer.bytesLeft ? static_cast<size_t>(*answer.bytesLeft) : bytes.size() / 2));
    return bytes;
}

bool Concerns(const Fault& fault, const Message& request) {
    return fault.prefix.empty()
           || std::any_of(request.varBinds.begin(), request.varBinds.end(),
                          [&](const VarBind& varBind) { return StartsWith(varBind.name, fault.prefix); });
}

[[noreturn]] void Refuse(const std::string& text, const std::string& reason) {
    throw std::runtime_error("fault " + Quote(text) + ": " + reason);
}

const FaultKind& FindKind(const std::string& text, const std::string& name) {
    for (const FaultKind& kind : kFaultKinds)
        if (name == kind.name)
            return kind;
    Refuse(text, "unknown fault; " + Choices(kFaultKinds, [](const FaultKind& kind) { return kind.name; }));
}

std::string Usage(const FaultKind& kind) {
    const std::string argument = std::string("=") + kind.argumentName;
    return kind.name
           + (kind.argument == Argument::kNone      ? ""
              : kind.argument == Argument::kMayHave ? '[' + argument + ']'
                                                    : argument);
}

} // namespace

namespace {

// The identifier after the '@' at this position; empty without one.
Oid ParsePrefix(const std::string& text, size_t at) {
    if (at == std::string::npos)
        return {};
    const std::optional<Oid> prefix = OidFromText(text.substr(at + 1));
    if (!prefix)
        Refuse(text, "after '@' write an object identifier such as .1.3.6.1.2.1.43");
    return *prefix;
}

} // namespace

Fault ParseFault(const std::string& text) {
    if (text.find(' ') != std::string::npos)
        Refuse(text, "write one fault only, without blanks");
    const size_t at = text.find('@');
    const std::string action = text.substr(0, at);
    const size_t equals = action.find('=');
    const FaultKind& kind = FindKind(text, action.substr(0, equals));
    Fault fault{&kind, {}, {}};
    if (equals != std::string::npos) {
        const std::string value = action.substr(equals + 1);
        const std::optional<long> number = ParseWhole<long>(value);
        if (kind.argument == Argument::kNone)
            Refuse(text, std::string(kind.name) + " takes no value");
        if (!number || *number < kind.least || *number > kind.most)
            Refuse(text, std::string(kind.argumentName) + " must be a number from "
                             + std::to_string(kind.least) + " to " + std::to_string(kind.most));
        fault.argument = number;
    } else if (kind.argument == Argument::kMustHave) {
        Refuse(text, "write " + Usage(kind));
    }
    fault.prefix = ParsePrefix(text, at);
    return fault;
}

std::string FaultText(const Fault& fault) {
    return fault.kind->name + (fault.argument ? '=' + std::to_string(*fault.argument) : "")
           + (fault.prefix.empty() ? "" : '@' + OidText(fault.prefix));
}

void AddFault(FaultSet& set, const Fault& fault) {
    const auto isSame = [&](const Fault& other) {
        return other.kind == fault.kind && other.prefix == fault.prefix;
    };
    set.faults.erase(std::remove_if(set.faults.begin(), set.faults.end(), isSame), set.faults.end());
    set.faults.push_back(fault);
}

bool RemoveFaults(FaultSet& set, const std::string& text) {
    const size_t at = text.find('@');
    const std::string name = text.substr(0, at);
    const size_t equals = name.find('=');
    const FaultKind& kind = FindKind(text, name.substr(0, equals));
    const Oid prefix = ParsePrefix(text, at);
    if (equals != std::string::npos)
        Refuse(text, std::string("write clear ") + kind.name
                         + (at == std::string::npos ? "" : text.substr(at)) + ", without the value");
    const auto first = std::remove_if(set.faults.begin(), set.faults.end(), [&](const Fault& fault) {
        return fault.kind == &kind && (at == std::string::npos || fault.prefix == prefix);
    });
    const bool isAny = first != set.faults.end();
    set.faults.erase(first, set.faults.end());
    return isAny;
}

const char* FaultProblem(const Fault& fault, const std::string& address) {
    const bool isIpv6 = address.find(':') != std::string::npos;
    return fault.kind->act == UseOtherAddress && isIpv6
               ? "wrong-address needs an IPv4 printer: IPv6 has one loopback address"
               : nullptr;
}

std::string FaultHelp() {
    std::string help;
    for (const FaultKind& kind : kFaultKinds) {
        std::string usage = "  " + Usage(kind);
        usage.resize(std::max<size_t>(usage.size() + 2, 24), ' ');
        help += usage + kind.text + '\n';
    }
    return help;
}

std::vector<Datagram> ApplyFaults(FaultSet& set, const Message& request, const Message& reply,
                                  std::string& log) {
    Answer answer{request, reply};
    for (Fault& fault : set.faults) {
        if (!Concerns(fault, request) || !fault.kind->act(answer, fault, set.random))
            continue;
        ++fault.acted;
        log += std::string(" [") + fault.kind->name + ']';
    }
    std::vector<Datagram> datagrams;
    if (!answer.isSent)
        return datagrams;
    for (long i = answer.staleCount; i > 0; --i) {
        Message stale = answer.message;
        stale.requestId = stale.requestId > i ? stale.requestId - i : stale.requestId + i;
        datagrams.push_back({BuildMessage(stale), answer.delayMs, answer.source});
    }
    for (int i = 0; i < answer.copies; ++i)
        datagrams.push_back({Encode(answer), answer.delayMs, answer.source});
    return datagrams;
}
