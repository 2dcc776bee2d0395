// What a fleet's printers have answered as a document, as a page for people and as CSV.
#ifndef WORKBENCH_FLEET_FLEET_FORMS_H
#define WORKBENCH_FLEET_FLEET_FORMS_H

#include "workbench/fleet/printer_check.h"

// The addresses of a scan that are only counted.
struct UnusedAddresses {
    size_t silent = 0;
    size_t refused = 0; // there is a device, without SNMP
    size_t notSent = 0; // no request could be sent

    size_t Count() const { return silent + refused + notSent; }
};

struct FleetAnswers {
    std::string list; // as the command line gives it
    bool isScan = false;
    size_t listed = 0;
    std::vector<PrinterState> states; // in any order
    uint32_t milliseconds = 0;
    UnusedAddresses unused;
};

// The order of the output: by attention, otherwise as listed.
void SortByAttention(std::vector<PrinterState>& states);

// In a scan, drops the addresses at which nothing answers, and counts them.
void DropUnused(FleetAnswers& answers);

// Facts about the run, and a row for each printer.
Document FleetDocument(const FleetAnswers& answers);

// The page: a section for each level of attention.
std::string FleetPage(const FleetAnswers& answers);

// A line for each printer after one with the names of the columns (RFC 4180, UTF-8 with a
// byte order mark, by which spreadsheets recognise it).
std::string FleetCsv(const FleetAnswers& answers);

// A field of CSV, in quotation marks where it needs them.
std::string CsvField(const std::string& text);

#endif
