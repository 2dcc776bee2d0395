// Fuzz target: any text as a recording of a device, in both formats.
#include "objects.h"

#include "simprinter/recording.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    Findings findings;
    const ObjectMap objects = ReadRecording({octets, octets + count}, findings);
    CheckObjects(objects, findings);
    return 0;
}
