// Questions to the module's DDProc_DeviceCapabilities, with the options as they are set.
#ifndef WORKBENCH_LIB_CAPABILITY_QUESTIONS_H
#define WORKBENCH_LIB_CAPABILITY_QUESTIONS_H

#include "base/records.h"
#include "workbench/lib/option_features.h"

#include <vector>

struct PaperSource {
    uint16_t bin;
    std::string name; // UTF-8
};

class CapabilityQuestions {
public:
    // Both outlive the questions.
    CapabilityQuestions(const FamilyFiles& family, const OptionFeatures& optionFeatures);

    // False when the module declines.
    bool Ask(WORD capability, void* output, DWORD& answer) const;

    // Whether the module answers with anything but 0.
    bool Has(WORD capability) const;

    // DC_BINS with the names of DC_BINNAMES.
    std::vector<PaperSource> PaperSources() const;

private:
    const decltype(&DDProc_DeviceCapabilities) ask;
    const DeviceTable* const table;
    const OptionFeatures& options;
};

#endif
