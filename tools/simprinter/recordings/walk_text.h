// Parts of the reader of net-snmp's output: names of objects and values.
#ifndef SIMPRINTER_WALK_TEXT_H
#define SIMPRINTER_WALK_TEXT_H

#include "simprinter/snmp/snmp_values.h"

// An object's name at the start of a line.
struct WalkName {
    Oid oid;             // empty when the name is not known
    size_t length = 0;   // characters of the line; 0 when there is no name
    bool isSure = false; // no other text looks so
};

// Reads a name in any form that net-snmp prints: ".1.3.6.1", "iso.3.6.1", ".iso.org.dod...",
// "MODULE::name.1", "name.1"; an index also as ".\"text\"", ".'text'" and "[1]".
WalkName ReadWalkName(std::string_view line);

std::string UnknownNameFault(std::string_view name);

// Whether the text starts with a type, such as "INTEGER: ".
bool StartsWithType(std::string_view text);

// Whether a text begins with what other programs make of its quote: a typographic one, or "&quot;".
bool HasChangedQuote(std::string_view text);

// The position of the quote that a value begins with, behind its type; npos when there is none.
size_t FindOpeningQuote(std::string_view text);

// The position of the first quote that is not escaped; npos when there is none.
size_t FindQuote(std::string_view text);

// What may follow in further lines.
enum class Continuation { kNone, kText, kHex };

// Of a value that is not in quotes and begins with this text.
Continuation ContinuationOf(const Oid& name, std::string_view text, bool hasTypes);

bool IsHexLine(std::string_view line);

struct WalkValue {
    std::optional<Value> value;
    bool isGuessed = false; // its type
    std::string fault = {}; // why there is no value
};

// Reads "INTEGER: idle(3)" or, without a type, "idle". An object's type and words are taken from the table of
// standard objects when the text does not show them.
WalkValue ReadWalkValue(const Oid& name, std::string_view text, bool hasTypes);

#endif
