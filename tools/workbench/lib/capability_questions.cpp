// Asks the module for capabilities as applications do: the count first, then the elements.
#include "workbench/lib/capability_questions.h"

#include "workbench/lib/text.h"

#include <array>

namespace {

using BinName = std::array<wchar_t, TELMAR_BIN_NAME_LENGTH>;

// Empty when the module does not answer.
template <typename Element>
std::vector<Element> AskList(const CapabilityQuestions& questions, WORD capability) {
    DWORD count = 0;
    if (!questions.Ask(capability, nullptr, count))
        return {};
    std::vector<Element> elements(count);
    questions.Ask(capability, elements.data(), count);
    return elements;
}

} // namespace

CapabilityQuestions::CapabilityQuestions(const FamilyFiles& family, const OptionFeatures& optionFeatures)
    : ask(EXPORT(family, DDProc_DeviceCapabilities)), table(family.table.get()), options(optionFeatures) {}

bool CapabilityQuestions::Ask(WORD capability, void* output, DWORD& answer) const {
    return ask(table, options.features.data(), nullptr, options.settings.data(), capability, output, &answer)
           != FALSE;
}

bool CapabilityQuestions::Has(WORD capability) const {
    DWORD answer = 0;
    return Ask(capability, nullptr, answer) && answer != 0;
}

std::vector<PaperSource> CapabilityQuestions::PaperSources() const {
    const auto bins = AskList<uint16_t>(*this, DC_BINS);
    const auto names = AskList<BinName>(*this, DC_BINNAMES);
    std::vector<PaperSource> sources;
    for (size_t i = 0; i < bins.size() && i < names.size(); ++i)
        sources.push_back({bins[i], Utf8(names[i].data())});
    return sources;
}
