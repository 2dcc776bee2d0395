// Colour profiles as a printer would store them, from a JSON file written by hand.
#ifndef WORKBENCH_LIB_PROFILE_FILE_H
#define WORKBENCH_LIB_PROFILE_FILE_H

#include "workbench/lib/module_parts.h"

#include <string>
#include <vector>

struct PrinterProfiles {
    std::vector<ProfileEntry> rgbSources;
    std::vector<ProfileEntry> simulations;
    std::vector<ProfileEntry> destinations;
};

// Reads {"rgbSources": [{"name": TEXT, "qualifier": TEXT, "location": NUMBER}...], "simulations": ...,
// "destinations": ...}; lists, qualifiers and locations are optional. Throws Failure that says what is wrong
// and where.
PrinterProfiles ReadPrinterProfiles(const std::string& path);

// The profiles in the form that a dialog takes. The result points to them.
ProfileLists ListsOf(const PrinterProfiles& profiles);

#endif
