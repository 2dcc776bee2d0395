// The table of refused combinations of settings, and its checks.
#include "uimodule/constraints.h"

#include "base/dialog_ids.h"
#include "base/text.h"

namespace {

constexpr uint16_t kNoSimulation = 0;
constexpr uint16_t kFourColorGray = 0; // the treatment that leaves colours unchanged

bool IsPaperMatchedAlone(const OemDevmode& settings) {
    return settings.matchPaperColor != 0 && settings.simulation == kNoSimulation;
}

bool IsGrayTreatedAlone(const OemDevmode& settings) {
    return settings.simulationGray != kFourColorGray && settings.simulation == kNoSimulation;
}

bool IsSimulatedInBlack(const OemDevmode& settings) {
    return settings.mono != 0 && settings.simulation != kNoSimulation;
}

// A combination is refused at either of its controls: at the choice that needs the other, and at the one that
// is needed. The first row of a control that is broken counts.
// clang-format off
constexpr Constraint kConstraints[] = {
    {IDC_MATCH_PAPER_COLOR, TELMAR_CHANGE_REFUSED,      IsPaperMatchedAlone, L"The colour of the paper can be matched only while a press is simulated."},
    {IDC_SIMULATION_GRAY,   TELMAR_CHANGE_REFUSED,      IsGrayTreatedAlone,  L"Blacks and greys of a press can be chosen only while a press is simulated."},
    {IDC_SIMULATION,        TELMAR_CHANGE_REFUSED,      IsSimulatedInBlack,  L"This printer prints black only. No press can be simulated."},
    {IDC_SIMULATION,        TELMAR_CHANGE_REFUSED_ALSO, IsPaperMatchedAlone, L"A press is needed while the colour of the paper is matched."},
    {IDC_SIMULATION,        TELMAR_CHANGE_REFUSED_ALSO, IsGrayTreatedAlone,  L"A press is needed while its blacks and greys are not printed in four colours."},
};
// clang-format on

bool IsFirstOfItsKind(const Constraint& constraint, HWND dialog) {
    for (const Constraint* before = kConstraints; before != &constraint; ++before)
        if (before->isBroken == constraint.isBroken && GetDlgItem(dialog, before->control) != nullptr)
            return false;
    return true;
}

} // namespace

const Constraint* FindBroken(const OemDevmode& settings, uint32_t control) {
    for (const Constraint& constraint : kConstraints)
        if (constraint.control == control && constraint.isBroken(settings))
            return &constraint;
    return nullptr;
}

void DescribeConflicts(HintText& text, const OemDevmode& settings, HWND dialog) {
    for (const Constraint& constraint : kConstraints) {
        if (GetDlgItem(dialog, constraint.control) == nullptr || !constraint.isBroken(settings)
            || !IsFirstOfItsKind(constraint, dialog))
            continue;
        if (text[0] != 0)
            AppendText(text, L"\r\n");
        AppendText(text, constraint.hint);
    }
}
