// `workbench capabilities`: calls the module's DDProc_DeviceCapabilities with the option features as
// assigned.
#include "workbench/commands/commands.h"
#include "workbench/lib/capability_questions.h"

namespace {

constexpr struct {
    const char* name;
    WORD capability;
} kQuestions[] = {
    {"DC_BINS", DC_BINS},
    {"DC_BINNAMES", DC_BINNAMES},
    {"DC_DUPLEX", DC_DUPLEX},
    {"DC_STAPLE", DC_STAPLE},
};

Document Answers(const CapabilityQuestions& questions) {
    Document rows = Document::MakeList();
    for (const auto& question : kQuestions) {
        DWORD answer = 0;
        const bool answered = questions.Ask(question.capability, nullptr, answer);
        rows.Add({
            {"question", question.name},
            {"index", question.capability},
            {"answered", answered},
            {"answer", answered ? Document(answer) : Document()},
        });
    }
    return rows;
}

Document PaperSources(const CapabilityQuestions& questions) {
    Document rows = Document::MakeList();
    for (const PaperSource& source : questions.PaperSources())
        rows.Add({{"bin", source.bin}, {"name", source.name}});
    return rows;
}

} // namespace

Document AskCapabilities(const FamilyFiles& family, const std::vector<std::string>& assignments) {
    OptionFeatures options = ReadOptionFeatures(family);
    for (const std::string& assignment : assignments)
        SetOption(options, assignment);
    const CapabilityQuestions questions(family, options);
    return {
        {"files", FamilyDocument(family)},
        {"options", OptionsDocument(options)},
        {"answers", Answers(questions)},
        {"paperSources", PaperSources(questions)},
    };
}
