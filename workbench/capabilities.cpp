// `workbench capabilities`: asks the module's DDProc_DeviceCapabilities with the option features set as
// wanted.
#include "commands.h"
#include "option_features.h"
#include "output.h"

#include <array>

namespace {

using BinName = std::array<wchar_t, 24>;

// Puts questions to the export, with one set of tables.
struct Questioner {
    decltype(&DDProc_DeviceCapabilities) ask;
    const DeviceTable* table;
    const OptionFeatures& options;

    bool Ask(WORD capability, void* output, DWORD& answer) const {
        return ask(table, options.features.data(), nullptr, options.settings.data(), capability, output,
                   &answer)
               != FALSE;
    }

    // As applications do: the count first, then the elements. Empty when the module declines.
    template <typename Element>
    std::vector<Element> AskList(WORD capability) const {
        DWORD count = 0;
        if (!Ask(capability, nullptr, count))
            return {};
        std::vector<Element> elements(count);
        Ask(capability, elements.data(), count);
        return elements;
    }
};

constexpr struct {
    const char* name;
    WORD capability;
} kQuestions[] = {
    {"DC_BINS", DC_BINS},
    {"DC_BINNAMES", DC_BINNAMES},
    {"DC_DUPLEX", DC_DUPLEX},
    {"DC_STAPLE", DC_STAPLE},
};

Document Answers(const Questioner& questioner) {
    Document rows = Document::array();
    for (const auto& question : kQuestions) {
        DWORD answer = 0;
        const bool answered = questioner.Ask(question.capability, nullptr, answer);
        rows.push_back({
            {"question", question.name},
            {"index", question.capability},
            {"answered", answered},
            {"answer", answered ? Document(answer) : Document()},
        });
    }
    return rows;
}

Document PaperSources(const Questioner& questioner) {
    const auto bins = questioner.AskList<uint16_t>(DC_BINS);
    const auto names = questioner.AskList<BinName>(DC_BINNAMES);
    Document rows = Document::array();
    for (size_t i = 0; i < bins.size() && i < names.size(); ++i)
        rows.push_back({
            {"bin", bins[i]},
            {"name", Utf8(names[i].data())},
        });
    return rows;
}

Document Capabilities(const FamilyFiles& family, const std::vector<std::string>& assignments) {
    OptionFeatures options = ReadOptionFeatures(family);
    for (const std::string& assignment : assignments)
        SetOption(options, assignment);
    const Questioner questioner = {
        ModuleExport<decltype(&DDProc_DeviceCapabilities)>(family, "DDProc_DeviceCapabilities"),
        family.table.get(), options};
    return {
        {"files", FamilyDocument(family)},
        {"options", OptionsDocument(options)},
        {"answers", Answers(questioner)},
        {"paperSources", PaperSources(questioner)},
    };
}

} // namespace

Run SetUpCapabilities(CLI::App& command) {
    const auto assignments = AddSetOption(command);
    return [assignments](const FamilyFiles& family) { return Capabilities(family, *assignments); };
}
