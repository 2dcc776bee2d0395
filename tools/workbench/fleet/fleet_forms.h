// What a fleet's printers have answered as a document, as a page for people and as CSV.
#ifndef WORKBENCH_FLEET_FLEET_FORMS_H
#define WORKBENCH_FLEET_FLEET_FORMS_H

#include "workbench/fleet/printer_check.h"

struct FleetAnswers {
    std::string list; // as the command line gives it
    bool isScan = false;
    size_t listed = 0;
    std::vector<PrinterState> states; // in any order
    uint32_t milliseconds = 0;
};

// The order of the output: by attention, otherwise as listed.
void SortByAttention(std::vector<PrinterState>& states);

// In a scan, drops the addresses at which nothing answers, which are only counted. Returns their number.
size_t DropUnused(FleetAnswers& answers);

// Facts about the run, and a row for each printer. `unused` as DropUnused returns it.
Document FleetDocument(const FleetAnswers& answers, size_t unused);

// The page: a section for each level of attention.
std::string FleetPage(const FleetAnswers& answers, size_t unused);

// A line for each printer after one with the names of the columns (RFC 4180, UTF-8).
std::string FleetCsv(const FleetAnswers& answers);

// A field of CSV, in quotation marks where it needs them.
std::string CsvField(const std::string& text);

#endif
