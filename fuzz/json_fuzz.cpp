// Fuzz target: any text as a JSON file of the workbench: the property sheet's state or colour profiles. What is read
// is written and read again.
#include "require.h"

#include "workbench/lib/document.h"
#include "workbench/lib/json_form.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    std::string written;
    try {
        written = JsonForm(ParseJson({octets, octets + count}, "fuzz"));
    } catch (const Failure& failure) {
        Require(std::string(failure.what()).rfind("fuzz:", 0) == 0, "an error without the file's name");
        return 0;
    }
    Require(JsonForm(ParseJson(written, "written")) == written, "what is written reads as another document");
    return 0;
}
