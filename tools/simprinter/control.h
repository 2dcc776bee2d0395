// Control lines, by which a person changes the printers while they run.
#ifndef SIMPRINTER_CONTROL_H
#define SIMPRINTER_CONTROL_H

#include "simprinter/printer.h"

struct ControlReply {
    bool isDone;        // otherwise nothing has changed
    std::string text;   // what was done, or what is wrong and what is possible; without a line end
    bool stops = false; // the program
};

// Runs a line: a command of the table, for the printer whose address is in front, or for all.
ControlReply RunControlLine(std::vector<Printer>& printers, const std::string& line, UpTime upTime);

#endif
