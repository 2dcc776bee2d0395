// The objects that the module requests of a printer, from the tables that it exports.
#ifndef WORKBENCH_LIB_MODULE_OBJECTS_H
#define WORKBENCH_LIB_MODULE_OBJECTS_H

#include "workbench/lib/family_files.h"
#include "workbench/lib/snmp_text.h"

// What the module makes of an object's value.
enum class Wanted : uint8_t {
    kExistence,
    kNumber,
    kText,
    kObjectId,
};

struct ModuleObject {
    ObjectId oid;
    Wanted wanted;
    std::string use;     // "option OpHDD": the query that needs it, as the module names it
    std::string usedFor; // "Hard disk": the same for people
};

// In the order of the tables, each object once. Of stored overlays and profiles only the first one's objects.
std::vector<ModuleObject> ModuleObjects(const FamilyFiles& family);

#endif
