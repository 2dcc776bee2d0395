// Fuzz target: any text as the description of a printer.
#include "objects.h"

#include "simprinter/device_reader.h"
#include "simprinter/objects.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    Findings findings;
    const Device device = ReadDevice({octets, octets + count}, findings);
    CheckObjects(findings.list.empty() ? ObjectsOf(device) : ObjectMap(), findings);
    return 0;
}
