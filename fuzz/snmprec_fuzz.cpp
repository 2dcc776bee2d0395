// Fuzz target: any text as an .snmprec file. What is read is served, and is read again from what is written of it.
#include "served_walk.h"

#include "simprinter/recordings/formats.h"
#include "simprinter/recordings/recording.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    Findings findings, again;
    const std::string text = "1.3.6.1|2|1\n" + std::string(octets, octets + count); // the format is not in question
    const ObjectMap objects = ReadRecording(text, findings);
    Require(objects.count({1, 3, 6, 1}) == 1 && !findings.HasErrors(), "the first line is lost");
    RequireSameWalk(objects);
    std::string written;
    for (const auto& [name, value] : objects)
        written += SnmprecLine(name, value);
    Require(ReadRecording(written, again) == objects && again.list.empty(), "what is written is not what was read");
    return 0;
}
