// Values and objects of a recording, for the readers of both formats.
#ifndef SIMPRINTER_RECORDED_VALUES_H
#define SIMPRINTER_RECORDED_VALUES_H

#include "common/findings.h"
#include "common/lines.h"
#include "simprinter/snmp/snmp_values.h"

// The objects and findings so far.
struct Recording {
    explicit Recording(Findings& where) : findings(where) {}

    void Add(Place place, const Oid& name, const Value& value);
    void Warn(Place place, const std::string& why); // after kMaxListed warnings they are only counted
    void CountUnlistedWarnings();                   // call after the last line

    ObjectMap objects;
    Findings& findings;

private:
    static constexpr size_t kMaxListed = 50;
    size_t warnings = 0;
    Place lastPlace;
};

// The name of this type and what its values look like.
std::string TypeText(Tag tag);

// Reads a value of this tag as a format writes it; nothing when it is invalid.
using ParseValue = std::optional<Value> (*)(Tag tag, std::string_view text);

std::optional<Value> ParseNumber(Tag tag, std::string_view text); // decimal; within the tag's 32 or 64 bits
std::optional<Value> ParseHex(Tag tag, std::string_view text);    // pairs of digits, with or without blanks
std::optional<Value> ParseOid(Tag tag, std::string_view text);    // numbers only
std::optional<Value> ParseIpAddress(Tag tag, std::string_view text); // dotted

#endif
