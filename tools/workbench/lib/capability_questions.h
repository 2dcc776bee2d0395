// Calls of the module's DDProc_DeviceCapabilities with the options that are set.
#ifndef WORKBENCH_LIB_CAPABILITY_QUESTIONS_H
#define WORKBENCH_LIB_CAPABILITY_QUESTIONS_H

#include "workbench/lib/option_features.h"

#include <vector>

struct PaperSource {
    uint16_t bin;
    std::string name; // UTF-8
};

class CapabilityQuestions {
public:
    // Both arguments must outlive the object.
    CapabilityQuestions(const FamilyFiles& family, const OptionFeatures& optionFeatures);

    // False when the module does not answer this capability.
    bool Ask(WORD capability, void* output, DWORD& answer) const;

    // Whether the module answers, and with anything but 0.
    bool Has(WORD capability) const;

    // DC_BINS with the names of DC_BINNAMES.
    std::vector<PaperSource> PaperSources() const;

private:
    const decltype(&DDProc_DeviceCapabilities) ask;
    const DeviceTable* const table;
    const OptionFeatures& options;
};

#endif
