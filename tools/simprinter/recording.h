// Recorded walks of real devices: the text that `snmpwalk -On` prints, and .snmprec files (OID|TAG|VALUE
// lines).
#ifndef SIMPRINTER_RECORDING_H
#define SIMPRINTER_RECORDING_H

#include "common/findings.h"
#include "simprinter/snmp_values.h"

// Tells the format by its contents. Bad lines are findings; what SNMPv1 can't carry or is there twice is
// noted and left out.
ObjectMap ReadRecording(const std::string& text, Findings& findings);

// What the formats' readers share: the objects so far, and what was noticed.
struct Recording {
    explicit Recording(Findings& where) : findings(where) {}

    void Add(Place place, std::string_view name, const std::optional<Value>& value, std::string_view text);
    void LeaveOutCounter64(Place place);
    void NoteWhatIsLeftOut(); // once all is read

    ObjectMap objects;
    Findings& findings;

private:
    size_t counter64s = 0; // left out
    Place firstCounter64;
};

// How a value is written in a format: reads it as one of this tag; nothing when it is not well written.
using ParseValue = std::optional<Value> (*)(Tag tag, std::string_view text);

std::optional<Value> ParseNumber(Tag tag, std::string_view text); // decimal; within the tag's 32 bits
std::optional<Value> ParseHex(Tag tag, std::string_view text);    // pairs of digits, with or without blanks
std::optional<Value> ParseOid(Tag tag, std::string_view text);
std::optional<Value> ParseIpAddress(Tag tag, std::string_view text); // dotted

// A file's lines, the first has number 1. An end of line of CR and LF counts if all lines have it.
std::vector<std::string_view> SplitLines(std::string_view text);

void ReadSnmprec(const std::vector<std::string_view>& lines, Recording& recording);
void ReadWalk(const std::vector<std::string_view>& lines, Recording& recording);

// Whether a line is the beginning of an object in this format.
bool IsSnmprecLine(std::string_view line);
bool IsWalkLine(std::string_view line);

#endif
