// The two formats of recordings: their readers, and the writer of .snmprec files.
#ifndef SIMPRINTER_RECORDING_FORMATS_H
#define SIMPRINTER_RECORDING_FORMATS_H

#include "simprinter/recordings/recorded_values.h"

void ReadSnmprec(const Lines& lines, Recording& recording);
void ReadWalk(const Lines& lines, Recording& recording);

// One line of an .snmprec file, with its line end.
std::string SnmprecLine(const Oid& name, const Value& value);

// The position of the first line that starts an object in this format; lines.size() when there is none.
size_t FindSnmprecLine(const Lines& lines);
size_t FindWalkLine(const Lines& lines);

// The text, with blanks in place of all no-break spaces when they hide an object's name, equals sign or type:
// mail programs and web pages make them of blanks.
std::string WithoutNoBreakSpaces(const std::string& text);

// The position of the first line "NAME =3D ...", as a mail has it that was saved in quoted-printable;
// lines.size() when there is none.
size_t FindSavedMailLine(const Lines& lines);

// Where an object begins behind something else, such as a line number; line 0 when nowhere.
Place FindObjectBehindOther(const Lines& lines);

#endif
