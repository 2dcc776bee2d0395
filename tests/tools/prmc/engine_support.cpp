// Runs prmc's readers and writers for its tests.
#include "engine_support.h"

#include "prmc/checks/rules.h"
#include "prmc/forms/prm_parser.h"
#include "prmc/forms/prm_writer.h"
#include "prmc/forms/yaml_reader.h"

#include <gtest/gtest.h>

const char* const kSmallModel = R"(Copies: {min: 1, max: 999, default: 5}

OpInTrayUnit:
  default: B
  items:
    - {key: A, name: "é"}
    - {key: B, name: ""}

Country: {value: 7}

DevInfo:
  PDLType: PCL6 PS3

MediaColor:
  default: W
  items:
    - {key: W, name: White, value: 3, text: T}
)";

Model FromYaml(const std::string& text, Lines& messages) {
    Findings findings;
    Model model = ReadYaml(text, findings);
    CheckRules(model, findings);
    for (const Finding& finding : findings.list)
        messages.push_back(FindingText(finding));
    return model;
}

Model FromPrm(const std::string& bytes, Lines& messages) {
    Findings findings;
    Model model = ParsePrm(bytes, findings);
    CheckRules(model, findings);
    for (const Finding& finding : findings.list)
        messages.push_back(WarningMark(finding) + finding.message);
    return model;
}

std::string Build(const std::string& yaml) {
    Lines messages;
    const std::vector<uint8_t> bytes = WritePrm(FromYaml(yaml, messages));
    EXPECT_EQ(messages, Lines{});
    return {bytes.begin(), bytes.end()};
}

std::string Words(std::initializer_list<uint32_t> words) {
    std::string bytes;
    for (const uint32_t word : words)
        for (int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<char>(static_cast<uint8_t>(word >> shift)));
    return bytes;
}
