// A list of printers: lines `ADDRESS[-LAST] simprinter OPTIONS`.
#ifndef SIMPRINTER_PRINTER_LIST_H
#define SIMPRINTER_PRINTER_LIST_H

#include "simprinter/printer.h"

// Starts all printers of the file. Throws std::runtime_error with file and line for the first error.
std::vector<Printer> StartListedPrinters(const std::string& path);

#endif
