// Enabling and showing controls, and the question for a black printer: what the dialogs' own messages don't
// reach.
#include "dialogs/default_devmode.h"
#include "dialogs/dialog_controls.h"

#include <gtest/gtest.h>

namespace {

struct Controls : testing::Test {
    Controls() {
        dialog = CreateWindowW(L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 90, 90, nullptr, nullptr, nullptr,
                               nullptr);
        control = CreateWindowW(L"Button", L"", WS_CHILD, 0, 0, 20, 20, dialog, reinterpret_cast<HMENU>(7),
                                nullptr, nullptr);
    }
    ~Controls() override { DestroyWindow(dialog); }

    // "v" visible, "e" enabled.
    std::string State() const {
        return std::string(IsWindowVisible(control) ? "v" : "") + (IsWindowEnabled(control) ? "e" : "");
    }

    HWND dialog, control;
};

TEST_F(Controls, AreShownAndEnabledTogether) {
    ShowDlgControl(dialog, 7, true);
    EXPECT_EQ(State(), "ve");
    ShowDlgControl(dialog, 7, false);
    EXPECT_EQ(State(), "");
    ShowDlgControl(dialog, 8, true); // there is none
    EXPECT_EQ(State(), "");
}

TEST_F(Controls, AreEnabledOnlyWhereTheyAreVisible) {
    EnableDlgControl(dialog, 7, true);
    EXPECT_EQ(State(), "");
    ShowDlgControl(dialog, 7, true);
    EnableDlgControl(dialog, 7, false);
    EXPECT_EQ(State(), "v");
    EnableDlgControl(dialog, 7, true);
    EXPECT_EQ(State(), "ve");
}

TEST(BlackPrinter, IsNoneThatCantBeOpened) {
    EXPECT_FALSE(IsMonoDriver(nullptr, nullptr));
    EXPECT_FALSE(IsMonoDriver(nullptr, L"no such Mono"));
}

} // namespace
