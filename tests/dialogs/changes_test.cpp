// Changes of the controls of dialog 128, kept and refused, and the dialog's ends.
#include "full_dialog.h"

#include <algorithm>

namespace {

// An entry that the user chooses, and the settings that it stands for.
struct Change {
    int control;
    int entry; // of the box: checked
    uint16_t field, size, value;
    uint16_t recordAt; // 0: no record
    RawBytes record = kNone;
};

RawBytes Text(const wchar_t* text) {
    return Profile(text, L"", 0);
}

// clang-format off
const Change kChanges[] = {
    {1504, 3,  2514, 2, 129, 2688, Text(L"Apple RGB")},        {1504, 17, 2514, 2, 257, 2688, kScanner},
    {1504, 16, 2514, 2, 256, 2688, kCamera},                   {1509, 0,  2516, 2, 0,   2520, Text(L"Device RGB")},
    {1509, 16, 2516, 2, 256, 2520, kCamera},                   {1513, 15, 2518, 2, 141, 2856, Text(L"sRGB (blue adjusted)")},
    {1513, 17, 2518, 2, 257, 2856, kScanner},                  {1524, 0,  2166, 2, 0,   2168},
    {1524, 5,  2166, 2, 5,   2168},                            {1524, 6,  2166, 2, 128, 2168, kSimA},
    {1524, 7,  2166, 2, 128, 2168, kSimB},                     {1599, 1,  3026, 2, 128, 3198, kPressA},
    {1599, 2,  3026, 2, 128, 3198, kPressB},                   {1592, 0,  3024, 2, 0,   3030},
    {1592, 1,  3024, 2, 128, 3030, kPressA},                   {1584, 0,  3028, 2, 0,   3366},
    {1584, 2,  3028, 2, 128, 3366, kPressB},
    {1354, 3, 2153, 1, 3, 0}, {1335, 2, 2155, 1, 2, 0}, {1332, 0, 2154, 1, 0, 0}, {1353, 0, 2157, 1, 0, 0},
    {1334, 1, 2159, 1, 1, 0}, {1330, 2, 2158, 1, 2, 0}, {1516, 0, 2161, 1, 0, 0}, {1519, 2, 2163, 1, 2, 0},
    {1522, 0, 2162, 1, 3, 0}, {1522, 4, 2162, 1, 2, 0}, {1526, 0, 3534, 1, 0, 0}, {1627, 1, 3536, 2, 1, 0},
};
// clang-format on

RawBytes& Put(RawBytes& settings, const Change& change) {
    if (change.size == 1)
        settings.U8(change.field, change.value);
    else
        settings.U16(change.field, change.value);
    return change.recordAt != 0 ? PutRecord(settings, change.recordAt, change.record) : settings;
}

struct Changes : FullDialog {
    Answer Make(const Change& change) {
        return change.control == kBox ? Check(kBox, change.entry != 0) : Choose(change.control, change.entry);
    }
};

TEST_F(Changes, AreKeptOrRefused) {
    Open();
    for (const Change& change : kChanges)
        for (const int32_t answer : {0, 99, 102, -1, 356, 100, 101}) {
            SCOPED_TRACE(testing::Message()
                         << change.control << ", entry " << change.entry << ", " << answer);
            const bool isRefused = answer == 100 || answer == 101;
            std::copy_n(FullSettings().bytes.begin(), kSettingsSize, settings.bytes.begin()); // in place
            RawBytes wanted = settings;
            Put(wanted, change);
            constraints = [&](uint32_t) {
                ExpectSettings(wanted); // the constraints see the new choice
                return answer;
            };
            const FullControl& control = *std::find_if(
                std::begin(kFull), std::end(kFull), [&](const auto& of) { return of.id == change.control; });
            std::vector<int> shown = ShownAtFirst();
            if (!isRefused)
                shown[static_cast<size_t>(&control - kFull)] = change.entry;
            EXPECT_EQ(Make(change), (Answer{control.result, 1}));
            const std::string id = std::to_string(change.control) + "\n";
            EXPECT_EQ(Events({"DoConstraints", "DispHintControl", "show", "fill"}),
                      "DoConstraints " + id + (isRefused ? "show " + id : "") + "DispHintControl 128\n");
            ExpectSettings(isRefused ? FullSettings() : wanted);
            EXPECT_EQ(Shown(), shown);
            const int first = ShownAtFirst()[static_cast<size_t>(&control - kFull)];
            Send(control.id, control.id == kBox ? UINT{BM_SETCHECK} : CB_SETCURSEL,
                 static_cast<WPARAM>(first));
        }
}

// A list may change while it is told of: OK takes what it shows by then, and asks nobody.
TEST_F(Changes, OkStoresWhatIsShown) {
    Open();
    Command(IDOK);
    RawBytes wanted = FullSettings();
    PutRecord(PutRecord(PutRecord(wanted, 2688, Text(L"Adobe RGB (1998)")), 2520, kScanner), 2856,
              Text(L"sRGB"));
    PutRecord(PutRecord(PutRecord(wanted, 3198, kNone), 3030, kPressB), 3366, kPressA);
    ExpectSettings(PutRecord(wanted, 2168, kSimB));
    for (const Change& change : kChanges) {
        if (change.control == kBox)
            Send(kBox, BM_SETCHECK, BST_UNCHECKED);
        Send(change.control, CB_SETCURSEL, static_cast<WPARAM>(change.entry));
        Put(wanted, change);
    }
    events.clear();
    EXPECT_EQ(Command(IDOK), (Answer{1, 1}));
    ExpectSettings(wanted);
    ExpectSaved(FullSettings());
    EXPECT_EQ(Events({"DoConstraints", "DispHintControl", "EndDialog"}), "EndDialog 1\n");
    std::string order;
    uint16_t last = 0;
    for (const std::string& event : events)
        if (event.rfind("read ", 0) == 0 && last != std::stoi(event.substr(5))) {
            last = static_cast<uint16_t>(std::stoi(event.substr(5)));
            order += event + "\n";
        }
    EXPECT_EQ(order, InOrder("read", true));
    EXPECT_EQ(events.back(), "EndDialog 1");
}

TEST_F(Changes, OkWithoutSelections) {
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

TEST_F(Changes, CancelBringsEveryByteBack) {
    Open();
    for (const Change& change : kChanges)
        Make(change);
    Command(1032);
    for (size_t i = 0; i < kSettingsSize; ++i)
        settings.U8(i, settings.bytes[i] ^ 0xFFu); // others change them, too
    events.clear();
    EXPECT_EQ(Command(IDCANCEL), (Answer{1, 1}));
    ExpectSettings(FullSettings());
    EXPECT_EQ(Events({"EndDialog", "DoConstraints", "DispHintControl"}), "EndDialog 2\n");
}

// The printer's profiles may go while the lists still show them; what is behind a list's end isn't read.
TEST_F(Changes, ProfilesThatAreGoneAreNotRead) {
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
