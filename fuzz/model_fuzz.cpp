// Fuzz target: any bytes as a printer model, in YAML and as a parameter data file. A model without errors reads back
// the same from either form.
#include "require.h"

#include "prmc/checks/rules.h"
#include "prmc/checks/warnings.h"
#include "prmc/diff.h"
#include "prmc/forms/prm_parser.h"
#include "prmc/forms/prm_writer.h"
#include "prmc/forms/yaml_reader.h"
#include "prmc/forms/yaml_writer.h"

namespace {

void CheckFormsOf(const Model& model, Findings findings) {
    CheckRules(model, findings);
    findings.Sort();
    Findings warned = findings;
    FindWarnings(model, warned);
    if (!findings.list.empty())
        return;
    const std::vector<uint8_t> bytes = WritePrm(model);
    Findings none;
    const Model read = ParsePrm({reinterpret_cast<const char*>(bytes.data()), bytes.size()}, none);
    Require(DiffModels(model, read).empty(), "another model from its binary file");
    Require(DiffModels(model, ReadYaml(WriteYaml(model), none)).empty(), "another model from its YAML");
    Require(none.list.empty(), "a written model has findings");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    const std::string text(octets, octets + count);
    Findings ofYaml, ofBinary;
    const Model fromYaml = ReadYaml(text, ofYaml);
    CheckFormsOf(fromYaml, ofYaml);
    const Model fromBinary = ParsePrm(text, ofBinary);
    WriteYaml(fromBinary); // is dumped whatever its findings
    CheckFormsOf(fromBinary, ofBinary);
    return 0;
}
