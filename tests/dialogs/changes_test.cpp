// The ends of dialog 128: OK without selections, Cancel, and profiles that go while it is open.
#include "full_dialog.h"

namespace {

TEST_F(FullDialog, OkWithoutSelections) {
    Open();
    for (const FullControl& control : kFull)
        if (control.id != kBox)
            Send(control.id, CB_SETCURSEL, static_cast<WPARAM>(-1));
    RawBytes wanted = FullSettings();
    for (const size_t item : {2153u, 2154u, 2155u, 2157u, 2158u, 2159u, 2161u, 2162u, 2163u})
        wanted.U8(item, 255);
    for (const size_t none : {2514u, 2516u, 2518u, 3536u})
        wanted.U16(none, 0xFFFF);
    for (const size_t first : {3024u, 3026u, 3028u, 2166u})
        wanted.U16(first, 0);
    for (const size_t record : {2520u, 2688u, 2856u, 3030u, 3198u, 3366u, 2168u})
        PutRecord(wanted, record, kNone);
    Command(IDOK);
    ExpectSettings(wanted);
}

TEST_F(FullDialog, CancelBringsEveryByteBack) {
    Open();
    Choose(1504, 3);
    Choose(1599, 1);
    Check(kBox, false);
    Command(1032);
    for (size_t i = 0; i < kSettingsSize; ++i)
        settings.U8(i, settings.bytes[i] ^ 0xFFu); // others change them, too
    events.clear();
    EXPECT_EQ(Command(IDCANCEL), (Answer{1, 1}));
    ExpectSettings(FullSettings());
    EXPECT_EQ(Events({"EndDialog", "DoConstraints", "DispHintControl"}), "EndDialog 2\n");
}

// The printer's profiles may go while the lists still show them; what is behind a list's end isn't read.
TEST_F(FullDialog, ProfilesThatAreGoneAreNotRead) {
    const struct {
        int list, entry;
        size_t field, record;
    } cases[] = {{1504, 17, 2514, 2688}, {1599, 2, 3026, 3198}, {1592, 2, 3024, 3030}, {1524, 7, 2166, 2168}};
    Open();
    lists.rgbSources.count = lists.destinations.count = lists.simulations.count = 1;
    RawBytes wanted = settings;
    for (const auto& row : cases) {
        Choose(row.list, row.entry);
        const uint16_t value = NumberAt<uint16_t>(settings.bytes.data(), row.field);
        EXPECT_NE(value, 128) << "a profile, but none is remembered";
        PutRecord(wanted.U16(row.field, value), row.record, kNone);
    }
    ExpectSettings(wanted);
    context.profiles = nullptr;
    Choose(1509, 16);
    ExpectSettings(PutRecord(wanted.U16(2516, 256), 2520, kNone));
}

} // namespace
