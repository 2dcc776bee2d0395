// Which messages and commands the module answers, and how; dialogs that it doesn't know, callers who give
// less than all.
#include "full_dialog.h"

namespace {

constexpr Answer kNotHandled = {0, kUntouched}, kActed0 = {0, 1}, kActed1 = {1, 1};

TEST_F(FullDialog, OtherDialogsAreNotHandled) {
    Open();
    events.clear();
    for (const uint32_t other : {0u, 126u, 127u, 129u, 155u, 157u, 0x10080u, 0xFFFFFFFFu})
        for (const auto& [message, wParam] : {std::pair(UINT{WM_INITDIALOG}, WPARAM{0}),
                                              {WM_COMMAND, IDOK},
                                              {WM_COMMAND, 1847},
                                              {WM_DESTROY, 0}}) {
            int32_t handled = kUntouched;
            EXPECT_EQ(Ask(other, window, message, wParam, 0, &handled), kNotHandled) << other;
            EXPECT_EQ(Ask(other, window, message, wParam, 0, nullptr).result, 0) << other;
        }
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(uiFrees, 0);
}

TEST_F(FullDialog, Commands) {
    struct {
        WPARAM command;
        Answer answer;
    } const cases[] = {
        {IDOK, kActed1},
        {IDCANCEL, kActed1},
        {9, kActed0},
        {1032, kActed0},
        {kBox, kActed0},
        {1393, {1, kUntouched}},
        {1528, {1, kUntouched}},
        {0, kNotHandled},
        {1504, kNotHandled},
        {1477, kNotHandled},
        {Chosen(1525), kNotHandled},
        {Chosen(kBox), kNotHandled},
        {Chosen(0), kNotHandled}, // no control has the identifier of a missing second one
        {MAKEWPARAM(IDOK, 1), kNotHandled},
        {MAKEWPARAM(kBox, 1), kNotHandled},
        {MAKEWPARAM(1528, 1), kNotHandled},
        {MAKEWPARAM(1504, CBN_SELCHANGE), kNotHandled},
        {Chosen(1354) | 1ull << 32, kNotHandled},
        {IDOK | 1ull << 32, kNotHandled},
    };
    for (const bool withContext : {true, false}) {
        settings = FullSettings();
        Open(withContext);
        const RawBytes stored = settings;
        for (const auto& row : cases) {
            SCOPED_TRACE(testing::Message() << std::hex << "command " << row.command);
            events.clear();
            EXPECT_EQ(Command(row.command), row.answer);
            EXPECT_EQ(Ask(128, window, WM_COMMAND, row.command, 0, nullptr).result, row.answer.result);
            EXPECT_TRUE(events.empty() || row.answer.handled == 1);
        }
        for (const FullControl& control : kFull)
            EXPECT_EQ(Command(control.id == kBox ? kBox : Chosen(control.id)), (Answer{control.result, 1}))
                << control.id;
        if (!withContext)
            ExpectSettings(stored);
        Close();
    }
}

TEST_F(FullDialog, Messages) {
    for (const bool withContext : {true, false}) {
        Open(withContext);
        EXPECT_EQ(initAnswer, kActed0);
        EXPECT_EQ(Entries(1524), withContext ? kSimulations : kSimuItems);
        HELPINFO help = {};
        help.hItemHandle = Control(1504);
        const LPARAM helpPointer = reinterpret_cast<LPARAM>(&help);
        struct {
            UINT message;
            WPARAM wParam;
            LPARAM lParam;
            Answer answer;
        } const cases[] = {
            {WM_USER + 100, 0, 0, kActed1},
            {WM_ACTIVATE, WA_ACTIVE, 0, withContext ? kActed0 : kNotHandled},
            {WM_ACTIVATE, WA_INACTIVE, 0, kNotHandled},
            {WM_HELP, 0, helpPointer, kActed0},
            {WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window), 0, kActed0},
            {WM_USER + 101, 0, 0, kNotHandled},
            {WM_CLOSE, 0, 0, kNotHandled},
            {WM_DESTROY, 0, 0, kActed0},
            {WM_DESTROY, 0, 0, kActed0},
        };
        for (const auto& row : cases) {
            SCOPED_TRACE(testing::Message() << "message " << row.message);
            EXPECT_EQ(Tell(row.message, row.wParam, row.lParam), row.answer);
            EXPECT_EQ(Ask(128, window, row.message, row.wParam, row.lParam, nullptr).result,
                      row.answer.result);
        }
        EXPECT_EQ(uiFrees, 1) << "a module that is gone is not freed again";
        uiFrees = 0;
        Close();
    }
}

} // namespace
