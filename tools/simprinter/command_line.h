// The command line of simprinter, and the options of one printer, which the lines of a list have, too.
#ifndef SIMPRINTER_COMMAND_LINE_H
#define SIMPRINTER_COMMAND_LINE_H

#include "simprinter/printer.h"
#include "simprinter/recordings/record.h"

#include <stdexcept>

struct WrongUsage : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct CommandLine {
    std::string address = "127.0.0.1";
    uint16_t port = 161; // of all printers
    bool logs = false;
    std::string listFile; // in place of the address and the options
    PrinterOptions printer;
    std::optional<RecordOptions> record; // the subcommand, in place of all others
};

// False after --help and --version, which are printed. Throws WrongUsage.
bool ReadCommandLine(int argc, char** argv, CommandLine& line);

// Options of a printer as a line of a list has them. Throws WrongUsage.
PrinterOptions ReadPrinterOptions(const std::string& text);

#endif
