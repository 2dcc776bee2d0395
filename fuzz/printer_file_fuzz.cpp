// Fuzz target: any text as a file for the simulated printer, a recording in either format or a description. Every
// object can be sent and is received as it was.
#include "require.h"

#include "simprinter/device_reader.h"
#include "simprinter/message.h"
#include "simprinter/objects.h"
#include "simprinter/recording.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    const std::string text(octets, octets + count);
    Findings ofRecording, ofDescription;
    ObjectMap objects = ReadRecording(text, ofRecording);
    if (objects.empty()) {
        const Device device = ReadDevice(text, ofDescription);
        objects = ofDescription.list.empty() ? ObjectsOf(device) : objects;
    }
    for (const auto& [name, value] : objects) {
        Message message;
        message.type = PduType::kSet;
        message.varBinds = {{name, value}};
        const std::optional<Message> received = ParseRequest(BuildMessage(message));
        Require(received && received->varBinds.at(0).name == name, "an object can't be sent");
        Require(received->varBinds.at(0).value == value || value.tag == kOpaque, // of which the decoder knows some
                "another value arrives");
    }
    return 0;
}
