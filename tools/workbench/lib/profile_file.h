// Colour profiles as a printer would hold them, from a JSON file that a person has written.
#ifndef WORKBENCH_LIB_PROFILE_FILE_H
#define WORKBENCH_LIB_PROFILE_FILE_H

#include "dialogs/shared/dialog_context.h"

#include <string>
#include <vector>

struct PrinterProfiles {
    std::vector<ProfileEntry> rgbSources;
    std::vector<ProfileEntry> simulations;
    std::vector<ProfileEntry> destinations;
};

// Reads {"rgbSources": [{"name": TEXT, "qualifier": TEXT, "location": NUMBER}...], "simulations": ...,
// "destinations": ...}; lists, qualifiers and locations may be missing. Throws Failure that says what is
// wrong where.
PrinterProfiles ReadPrinterProfiles(const std::string& path);

// The profiles as a dialog is given them; they refer to these.
ProfileLists ListsOf(const PrinterProfiles& profiles);

#endif
