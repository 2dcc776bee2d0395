// Fuzz target: any text as a JSON file of the workbench: the property sheet's state or colour profiles. What is read
// and written again has the same contents, as the JSON library compares them.
#include "require.h"

#include "workbench/lib/document.h"
#include "workbench/lib/json_form.h"

#include <nlohmann/json.hpp>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    std::string written;
    try {
        written = JsonForm(ParseJson({octets, octets + count}, "fuzz"));
    } catch (const Failure& failure) {
        Require(std::string(failure.what()).rfind("fuzz:", 0) == 0, "an error without the file's name");
        return 0;
    }
    using Json = nlohmann::ordered_json;
    Require(Json::parse(octets, octets + count) == Json::parse(written), "another document is written");
    return 0;
}
