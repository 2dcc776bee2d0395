// What a printer tells by SNMP besides its options: how full it is and what it stores.
#ifndef WORKBENCH_LIB_DEVICE_RESOURCES_H
#define WORKBENCH_LIB_DEVICE_RESOURCES_H

#include "base/records.h"
#include "workbench/lib/family_files.h"

#include <array>
#include <vector>

using Supplies = std::vector<MrkSupRequestItem>; // in the order of the module's list
using StoredResources = std::vector<StoredResourceEntry>;
using StoredProfiles =
    std::array<StoredResources, TELMAR_PROFILE_SELECTORS>; // RGB sources, simulations, destinations

// All throw Failure when the printer can't be asked. Storages are 0 and 1.
Supplies AskSupplies(const FamilyFiles& family, const std::string& agent);
StoredResources AskOverlays(const FamilyFiles& family, const std::string& agent, int32_t storage);
StoredProfiles AskProfiles(const FamilyFiles& family, const std::string& agent);

#endif
