// Fuzz target: any text as the description of a device. One without errors is served.
#include "served_walk.h"

#include "simprinter/device/device_reader.h"
#include "simprinter/device/objects.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    Findings findings;
    const Device device = ReadDevice(std::string(octets, octets + count), findings);
    if (!findings.HasErrors())
        RequireSameWalk(ObjectsOf(device));
    for (const Finding& finding : findings.list)
        Require(finding.place.line > 0 && !finding.message.empty(), "an error without a place");
    return 0;
}
