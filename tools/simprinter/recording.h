// Recorded walks of real devices: the text that `snmpwalk -On` prints, and .snmprec files (OID|TAG|VALUE
// lines).
#ifndef SIMPRINTER_RECORDING_H
#define SIMPRINTER_RECORDING_H

#include "common/findings.h"
#include "simprinter/snmp_values.h"

// Detects the format. Bad lines are errors; objects that SNMPv1 can't carry or that occur again are noted and
// left out.
ObjectMap ReadRecording(const std::string& text, Findings& findings);

// The objects and findings so far, shared by the formats' readers.
struct Recording {
    explicit Recording(Findings& where) : findings(where) {}

    void Add(Place place, std::string_view name, const std::optional<Value>& value, std::string_view text);
    void LeaveOutCounter64(Place place);
    void NoteWhatIsLeftOut(); // call after the last line

    ObjectMap objects;
    Findings& findings;

private:
    size_t counter64s = 0; // left out
    Place firstCounter64;
};

// Reads a value of this tag as a format writes it; nothing when it is invalid.
using ParseValue = std::optional<Value> (*)(Tag tag, std::string_view text);

std::optional<Value> ParseNumber(Tag tag, std::string_view text); // decimal; within the tag's 32 bits
std::optional<Value> ParseHex(Tag tag, std::string_view text);    // pairs of digits, with or without spaces
std::optional<Value> ParseOid(Tag tag, std::string_view text);
std::optional<Value> ParseIpAddress(Tag tag, std::string_view text); // dotted

// The lines of a file. CR before LF is removed if every line has it.
std::vector<std::string_view> SplitLines(std::string_view text);

void ReadSnmprec(const std::vector<std::string_view>& lines, Recording& recording);
void ReadWalk(const std::vector<std::string_view>& lines, Recording& recording);

// Whether a line starts an object in this format.
bool IsSnmprecLine(std::string_view line);
bool IsWalkLine(std::string_view line);

#endif
