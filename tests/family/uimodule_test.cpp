// The built TELMAR_U.DLL on the dialog of uimodule_test.rc and on the templates of TELMAR_S.DLL, called as the
// model's dialogs call it.
#include "family/uimodule_support.h"

#include <commctrl.h>
#include <cstring>
#include <functional>

namespace {

constexpr uint16_t kRgbList = 1504, kSimulation = 1524, kPaper = 1526, kSimulationGray = 1627;

TEST_F(UiModule, PutsTextsIntoTitleAndControls) {
    const ControlTextRecord model[] = {
        {{122, 123, 124, 125, 128}, L"Title", "Title"},
        {{1501}, L"Images", "GroupBox"},     // without the access key T
        {{1502}, L"Origin:", "Label"},       // access key R
        {{1469}, L"Greys:", "NoSuchLetter"}, // without the access key X
        {{1526}, L"Match && so on", "OwnAmpersand"},
        {{-1}, L"Column", "Column"},
        {{1032}, L"", "Nothing"},
        {},
    };
    FUNCTION(ReplaceDlgDispString)(dialog, model);
    EXPECT_EQ(TextOf(dialog), L"Title");
    for (const auto& [control, text] : {std::pair(1501, L"Images"),
                                        {1502, L"O&rigin:"},
                                        {1469, L"Greys (&X):"},
                                        {1526, L"Match && so on"},
                                        {-1, L"Keep"},
                                        {1032, L"&Defaults"}})
        EXPECT_EQ(TextOf(Control(control)), text);

    ControlTextRecord trays[] = {{{155}, L"Trays", "Title"}, {{1}, {}, "Full"}, {}};
    std::fill(std::begin(trays[1].display), std::end(trays[1].display), L'w');
    FUNCTION(ReplaceDlgDispString)(dialog, trays);
    EXPECT_EQ(TextOf(Control(1)), std::wstring(48, L'w'));

    const ControlTextRecord common[] = {{{1130}, L"No title", "NoControl"}, {{1}, L"Yes", "OK"}, {}};
    FUNCTION(ReplaceDlgDispStringCmnItem)(dialog, common, 0, &context);
    EXPECT_EQ(TextOf(dialog), L"Trays");
    EXPECT_EQ(TextOf(Control(1)), L"Yes");
}

TEST_F(UiModule, RefusesWhatNeedsASimulation) {
    const uint16_t cases[][6] = {
        // match paper, mono, simulation, its greys; the control, the answer
        // clang-format off
        {1, 0, 0,   0, kPaper,          100}, {1, 0, 1,   0, kPaper,          0}, {0, 0, 0, 0, kPaper, 0},
        {0, 0, 0,   2, kSimulationGray, 100}, {0, 0, 128, 2, kSimulationGray, 0}, {0, 0, 0, 2, kPaper, 0},
        {1, 0, 0,   0, kSimulation,     101}, {0, 0, 0,   2, kSimulation,   101},
        {0, 1, 128, 0, kSimulation,     100}, {0, 1, 0,   0, kSimulation,     0}, {1, 1, 0, 1, kRgbList, 0},
        {1, 0, 0,   2, /*all*/ 0,         0}, {0, 0, 0,   1, kSimulationGray, 0},
        // clang-format on
    };
    for (const auto& [paper, mono, simulation, gray, control, answer] : cases) {
        settings->matchPaperColor = static_cast<uint8_t>(paper);
        settings->mono = static_cast<uint8_t>(mono);
        settings->simulation = simulation;
        settings->simulationGray = gray;
        SCOPED_TRACE(testing::Message() << paper << mono << simulation << gray << ' ' << control);
        HintAfter(control, answer);
    }
    SetWindowLongPtrW(dialog, DWLP_USER, 0); // no context
    HintAfter(kPaper, 0);
    EXPECT_EQ(Stops(), "");
}

TEST_F(UiModule, ShowsARefusedChoiceUntilTheNextOne) {
    SetFocus(Control(kRgbList));
    EXPECT_EQ(HintAfter(0), L"-");
    settings->matchPaperColor = 1;
    EXPECT_NE(HintAfter(kPaper, 100).find(L"paper"), std::wstring::npos);
    settings->matchPaperColor = 0; // restored by the dialog
    EXPECT_EQ(Stops(), " 1526");
    EXPECT_EQ(GetFocus(), Control(kRgbList));
    EXPECT_EQ(GetActiveWindow(), dialog);
    EXPECT_EQ(HintAfter(kRgbList), L"-");
    EXPECT_EQ(Stops(), "");
}

TEST_F(UiModule, ShowsConflictsOfTheSettingsOnce) {
    settings->matchPaperColor = 1;
    settings->simulationGray = 2;
    const std::wstring hint = HintAfter(0);
    EXPECT_EQ(std::count(hint.begin(), hint.end(), L'\n'), 1) << "two conflicts, a line each";
    EXPECT_EQ(Stops(), " 1524 1526 1627");
    settings->simulation = 1;
    ValidateRect(Control(1482), nullptr);
    EXPECT_EQ(HintAfter(kSimulation), L"-");
    EXPECT_TRUE(GetUpdateRect(Control(1482), nullptr, FALSE)) << "icons must be redrawn";
    EXPECT_EQ(Stops(), "");
}

TEST_F(UiModule, KeepsTheHintBelowItsDialogUntilItEnds) {
    settings->matchPaperColor = 1;
    HintAfter(kPaper, 100);
    SendMessageW(dialog, WM_COMMAND, IDHELP, 0); // the library's window ends with the dialog, too
    SetWindowPos(dialog, nullptr, 150, 120, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    Pump(300);
    RECT hint = {}, frame = {};
    GetWindowRect(hintWindow, &hint);
    GetWindowRect(dialog, &frame);
    EXPECT_EQ(std::pair(hint.left, hint.top), std::pair(frame.left, frame.bottom));
    freedWithDialog = library;
    DestroyWindow(dialog);
    EXPECT_FALSE(IsWindow(hintWindow));
    EXPECT_EQ(GetModuleHandleW(L"TELMAR_U.DLL"), nullptr);
    Pump(150); // a late timer would call into the freed library
}

TEST_F(UiModule, StaysLoadedWhileItHandlesTheMessageThatEndsTheDialog) {
    static HWND ending; // the first window that another hook sees
    DestroyWindow(dialog);
    const auto watch = [](int code, WPARAM window, LPARAM) -> LRESULT {
        if (code == HCBT_DESTROYWND && ending == nullptr)
            ending = reinterpret_cast<HWND>(window);
        return 0;
    };
    const HHOOK earlier = SetWindowsHookExW(WH_CBT, watch, nullptr, GetCurrentThreadId());
    OpenModel(124);
    ending = nullptr;
    freedWithDialog = library;
    SendMessageW(dialog, WM_APP, 0, 0);
    UnhookWindowsHookEx(earlier);
    EXPECT_FALSE(IsWindow(dialog));
    EXPECT_EQ(ending, dialog);
    const HMODULE kept = GetModuleHandleW(L"TELMAR_U.DLL");
    ASSERT_NE(kept, nullptr);
    FreeLibrary(kept); // the one reference that it can't give back
    EXPECT_EQ(GetModuleHandleW(L"TELMAR_U.DLL"), nullptr);
}

TEST_F(UiModule, TitleBarHasTheSystemMenu) {
    OpenModel(124);
    ShowWindow(dialog, SW_SHOW);
    RECT frame = {};
    GetWindowRect(dialog, &frame);
    static int entries; // of the menu that opens
    for (const int below : {6, 60}) {
        entries = 0;
        SetTimer(dialog, 1, 200, [](HWND, UINT, UINT_PTR, DWORD) {
            const HWND window = FindWindowW(L"#32768", nullptr);
            entries = GetMenuItemCount(reinterpret_cast<HMENU>(SendMessageW(window, MN_GETHMENU, 0, 0)));
            EndMenu();
        });
        SendMessageW(dialog, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(dialog),
                     MAKELPARAM(frame.left + 60, frame.top + below));
        KillTimer(dialog, 1);
        EXPECT_EQ(entries == 1, below == 60) << entries << ": only the dialog itself offers the help alone";
    }
}

TEST_F(UiModule, RunsDialogsAndHasTheIcons) {
    EXPECT_EQ(FUNCTION(MyDialogBox)(GetModuleHandleW(nullptr), dialog, 155, DialogProcedure, 0), 17);
    EXPECT_LE(FUNCTION(MyDialogBox)(GetModuleHandleW(nullptr), dialog, 166, DialogProcedure, 0), 0);
    for (const int id : {IDI_PORTRAIT, IDI_LANDSCAPE}) {
        const Canvas canvas(16, 16);
        HANDLE icon = LoadImageW(FUNCTION(GetImgResInst)(), MAKEINTRESOURCEW(id), IMAGE_ICON, 16, 16, 0);
        DrawIconEx(canvas.dc, 0, 0, static_cast<HICON>(icon), 16, 16, 0, nullptr, DI_NORMAL);
        DestroyIcon(static_cast<HICON>(icon));
        const Picture picture = canvas.Content();
        int width = 0, height = 0; // of the page, across its middle
        for (size_t i = 0; i < 16; ++i) {
            width += picture.pixels[8 * 16 + i] != kGround;
            height += picture.pixels[16 * i + 7] != kGround;
        }
        EXPECT_EQ(std::pair(width, height), id == IDI_PORTRAIT ? std::pair(10, 14) : std::pair(14, 10));
    }
}

// --- On the model's templates --------------------------------------------------------------------------------

struct Refused {
    int dialog;
    std::function<void(OemDevmode&)> change; // of the defaults
    uint16_t controls[2];                    // a choice of either is refused; 0: none
    std::wstring hints[2];                   // how the choice of this control can be made
};

// clang-format off
#define SET(...) [](OemDevmode& s) { __VA_ARGS__; }
#define OBJECT(name, Name, matches, rgbs, halftones, grays, destinations, dialog) \
    {dialog, SET(s.name = {3, 1, 1, {}}, s.name##RgbSource = 0), {matches, rgbs}, \
     {Name L"To match", Name L"To use the RGB source"}}, \
    {dialog, SET(s.name = {3, 0, 1, {}}), {matches, halftones}, {Name L"To match", Name L"To use the halftone"}}, \
    {128, SET(s.name##Destination = 128, s.image.gray = 1, s.mono = 1), {destinations}, {Name L"This printer"}}, \
    {dialog, SET(s.image.gray = s.text.gray = s.graphics.gray = 2, s.name.gray = 0, s.mono = 1), {grays}, \
     {Name L"This printer prints"}}
const Refused kRefused[] = {
    OBJECT(image,    L"Images: ",   1354, 1504, 1332, 1335, 1599, 122),
    OBJECT(text,     L"Text: ",     1353, 1509, 1330, 1334, 1592, 123),
    OBJECT(graphics, L"Graphics: ", 1516, 1513, 1522, 1519, 1584, 128),
    {124, SET(s.image.gray = 2, s.text.gray = 0, s.mono = 1), {1334}, {L"Text: This printer prints"}},
    {125, SET(s.image = {3, 1, 1, {}}, s.rgbSource = 0), {1354, 1634}, {L"Images: To match", L"Images: To use the R"}},
    {125, SET(s.text = {3, 1, 1, {}}, s.rgbSource = 0),  {1353, 1634}, {L"Text: To match", L"Text: To use the RGB"}},
    {128, SET(s.imageDestination = 128, s.image.gray = 2), {1599, 1335}, {L"Images: To use an", L"Images: To use b"}},
    {128, SET(s.graphicsDestination = 3, s.graphics.gray = 2), {1584, 1519}, {L"Graphics: To use a", L"Graphics: To"}},
    {122, SET(s.destination = 128, s.image.gray = 2), {1525, 1335}, {L"Images: To use an", L"Images: To use b"}},
    {122, SET(s.destination = 128, s.mono = 1, s.image.gray = 1), {1525}, {L"This printer prints in black"}},
    {124, SET(s.matchPaperColor = 1), {1526, 1524}, {L"To match the colour", L"To simulate no press, clear"}},
    {124, SET(s.simulationGray = 2),  {1627, 1524}, {L"To print the blacks", L"To simulate no press, choose"}},
    {128, SET(s.simulation = 3, s.mono = 1, s.image.gray = 1), {1524}, {L"This printer prints in black"}},
};
// clang-format on

TEST_F(UiModule, RefusesCombinationsAtEitherChoice) {
    std::set<uint32_t> stopped;
    for (const Refused& row : kRefused) {
        SCOPED_TRACE(testing::Message() << row.dialog << ' ' << row.controls[0]);
        OpenModel(row.dialog);
        row.change(*settings);
        EXPECT_EQ(HintAfter(0).find(row.hints[0]), 0u) << testing::PrintToString(HintAfter(0));
        std::set<uint32_t> wanted(std::begin(row.controls), std::end(row.controls));
        wanted.erase(0);
        EXPECT_EQ(StoppedControls(), wanted);
        stopped.insert(wanted.begin(), wanted.end());
        for (const int i : {0, 1}) {
            const std::wstring hint = row.controls[i] != 0 ? HintAfter(row.controls[i], 100 + i) : row.hints[i];
            EXPECT_EQ(hint.find(row.hints[i]), 0u) << testing::PrintToString(hint);
        }
        HintAfter(1069, 0);
    }
    EXPECT_EQ(stopped.size(), 20) << "all but the two buttons for profiles";
    for (const int id : {122, 123, 124, 125, 128}) {
        OpenModel(id);
        EXPECT_EQ(HintAfter(0), L"-") << "the defaults, in dialog " << id;
        settings->imageRgbSource = 0; // dialog 125 has the page's source instead
        settings->image.colorMatch = 3;
        EXPECT_EQ(HintAfter(0) == L"-", id == 125);
    }
    OpenModel(128); // more conflicts than have room: whole lines of them
    *settings = {};
    settings->image.colorMatch = settings->text.colorMatch = settings->graphics.colorMatch = 3;
    settings->mono = 1;
    settings->imageDestination = settings->textDestination = settings->graphicsDestination = 1;
    settings->simulation = 1;
    const std::wstring all = HintAfter(0);
    EXPECT_GT(all.size(), 900);
    EXPECT_EQ(all.back(), L'.');
}

TEST_F(UiModule, RefusesPaperThatDoesNotExist) {
    OpenModel(155);
    std::map<int, ItemRecord> items;
    const auto choose = [&](int list, const char* key) {
        strcpy(items[list].head.key, key);
        SendDlgItemMessageW(dialog, list, CB_RESETCONTENT, 0, 0);
        SendDlgItemMessageW(dialog, list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"entry"));
        SendDlgItemMessageW(dialog, list, CB_SETITEMDATA, 0, reinterpret_cast<LPARAM>(&items[list]));
        SendDlgItemMessageW(dialog, list, CB_SETCURSEL, 0, 0);
    };
    const std::tuple<const char*, const char*, const char*, const wchar_t*> cases[] = {
        {"Envelope", "MW_60_90", "PP_On", L"Envelopes"}, {"OHP", "MW_60_90", "PP_On", L"Transparencies"},
        {"Thick1Plus", "MW_60_90", "PP_Off", L"Thick"},  {"Plain", "MW_60_90", "PP_On", L"-"},
        {"Thick4", "MW_257_300", "PP_On", L"-"},         {"Envelope", "MW_60_90", "PP_Off", L"-"},
    };
    for (const auto& [type, weight, holes, hint] : cases) {
        choose(1003, type);
        choose(1086, weight);
        choose(1094, holes);
        EXPECT_EQ(HintAfter(0).find(hint), 0u) << type << weight << holes;
        HintAfter(1003, hint[0] == L'-' ? 0 : 100);
    }
    HintAfter(1860, 0);

    choose(1094, "PP_On"); // as the module does when a tray is selected
    wchar_t name[] = L"Tray";
    LVITEMW item = {};
    item.mask = LVIF_TEXT | LVIF_STATE;
    item.pszText = name;
    SendDlgItemMessageW(dialog, 1844, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    item.state = item.stateMask = LVIS_SELECTED;
    SendDlgItemMessageW(dialog, 1844, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(TextOf(hintWindow).find(L"Envelopes"), 0u) << "of the tray that is selected now";
}

TEST_F(UiModule, ExplainsTheDialogAndStaysOutOfItsWay) {
    OpenModel(124);
    ShowWindow(dialog, SW_SHOW);
    messagesPassed = 0;
    SendMessageW(dialog, WM_COMMAND, IDHELP, 0);
    std::wstring help = WindowText();
    for (const wchar_t* part : {L"RGB source: ", L"Halftone: ", L"Press to simulate: ", L"Defaults: "})
        EXPECT_NE(help.find(part), std::wstring::npos) << testing::PrintToString(part);
    EXPECT_EQ(help.find(L"Output profile: "), std::wstring::npos) << "this dialog has none";
    EXPECT_TRUE(IsWindowEnabled(dialog));
    PostMessageW(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1);
    Pump(100);
    EXPECT_EQ(WindowText(), L"-");
    HELPINFO info = {sizeof(info), HELPINFO_WINDOW, 1502, Control(1502), 0, {}}; // the label of a list
    SendMessageW(dialog, WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
    help = WindowText();
    EXPECT_EQ(help.find(L"RGB source: "), 0u);
    EXPECT_EQ(help.find(L"\r\n"), std::wstring::npos) << "the text on this control only";
    HWND text = GetDlgItem(FindWindowW(L"#32770", (TextOf(dialog) + L" - Help").c_str()), IDC_TEXT);
    info.hItemHandle = text;
    SendMessageW(text, WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(WindowText(), help) << "F1 in the help keeps its text";
    ShowWindow(Control(1504), SW_HIDE); // the first of two lists with this help
    ShowWindow(Control(1332), SW_HIDE);
    ShowWindow(Control(1330), SW_HIDE);
    SendMessageW(dialog, WM_COMMAND, IDHELP, 0);
    EXPECT_EQ(WindowText().find(L"Halftone: "), std::wstring::npos) << "hidden";
    EXPECT_NE(WindowText().find(L"RGB source: "), std::wstring::npos);
    EXPECT_EQ(messagesPassed, 0);
    for (const int id : {122, 123, 124, 125, 128, 155, 165, 166}) { // every control has a text of its own
        OpenModel(id);
        for (HWND at = GetWindow(dialog, GW_CHILD); at != nullptr; at = GetWindow(at, GW_HWNDNEXT)) {
            if ((GetWindowLongW(at, GWL_STYLE) & WS_TABSTOP) == 0 || GetDlgCtrlID(at) == IDHELP)
                continue;
            info.hItemHandle = at;
            SendMessageW(dialog, WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
            EXPECT_EQ(WindowText().find(L"\r\n"), std::wstring::npos) << id << ' ' << GetDlgCtrlID(at);
        }
    }
}

TEST_F(UiModule, ShowsTheProfilesAndTheDownloadManager) {
    const ProfileEntry entries[] = {{
                                        L"coated",
                                        L"Offset",
                                        4,
                                    },
                                    {L"", L"Newspaper", 77}};
    ProfileLists lists = {};
    lists.simulations = {entries, 2};
    OpenModel(128);
    messagesPassed = 0;
    for (const bool hasLists : {true, false}) {
        context.profiles = hasLists ? &lists : nullptr;
        SendMessageW(dialog, WM_COMMAND, 1528, 0);
        EXPECT_EQ(WindowText(),
                  std::wstring(L"RGB sources\r\n    none\r\nPress simulations\r\n")
                      + (hasLists ? L"    Offset (coated): Hard disk\r\n    Newspaper: Unknown place" : L"    none")
                      + L"\r\nOutput profiles\r\n    none");
    }
    for (const wchar_t* value : {L"0", L"10", L"1"}) {
        SetEnvironmentVariableW(L"LUMORA_DOWNLOAD_MANAGER", value);
        EXPECT_EQ(FUNCTION(IsInstalledDLManager)(), value == std::wstring(L"1"));
    }
    SetEnvironmentVariableW(L"LUMORA_DOWNLOAD_MANAGER", nullptr);
    EXPECT_EQ(FUNCTION(IsInstalledDLManager)(), 0);
    SendMessageW(dialog, WM_COMMAND, 1393, 0);
    EXPECT_EQ(WindowText().find(L"The Download Manager is installed"), 0u);
    EXPECT_EQ(messagesPassed, 0);
}

TEST_F(UiModule, HasAllTextsInBothLanguages) {
    const auto texts = [this](size_t block, LANGID language) { // which of the block's 16 texts are there
        const HRSRC found = FindResourceExW(library, RT_STRING, MAKEINTRESOURCEW(block), language);
        const auto* at =
            found != nullptr ? static_cast<const wchar_t*>(LockResource(LoadResource(library, found))) : L"";
        std::string present;
        for (int i = 0; found != nullptr && i < 16; at += 1 + *at, ++i)
            present += *at != 0 ? 'x' : '.';
        return present;
    };
    for (size_t block = TEXT_IMAGES / 16 + 1; block <= DOWNLOAD_MANAGER_TEXT / 16 + 1; ++block)
        EXPECT_EQ(texts(block, 0x409), texts(block, 0x407)) << block;
    SetThreadLocale(MAKELCID(0x407, SORT_DEFAULT));
    SetThreadUILanguage(0x407);
    OpenModel(128);
    settings->matchPaperColor = 1;
    EXPECT_EQ(HintAfter(0), L"Wählen Sie ein simuliertes Verfahren, um die Papierfarbe nachzubilden.");
    SetThreadLocale(MAKELCID(0x411, SORT_DEFAULT)); // Japanese: neither
    SetThreadUILanguage(0x411);
    EXPECT_EQ(HintAfter(0), L"To match the colour of the paper, choose a press to simulate.");
    SetThreadLocale(MAKELCID(0x409, SORT_DEFAULT));
    SetThreadUILanguage(0x409);
}

} // namespace
