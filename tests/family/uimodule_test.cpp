// The built TELMAR_U.DLL on the dialog of uimodule_test.rc, called as the model's dialogs call it.
#include "uimodule/exports.h"

#include "base/dialog_ids.h"
#include "base/records.h"
#include "support/canvas.h"

#include <map>
#include <memory>
#include <string>

namespace {

constexpr uint16_t kRgbList = 1504, kSimulation = 1524, kPaper = 1526, kSimulationGray = 1627;
constexpr uint16_t kIcons[][2] = {{1482, kSimulation}, {1527, kPaper}, {1629, kSimulationGray}};

#define FUNCTION(name) Function<decltype(&(name))>(#name)

HMODULE freedWithDialog;

INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM /*wParam*/, LPARAM lParam) {
    if (message == WM_INITDIALOG && lParam == 0)
        EndDialog(dialog, 17);
    if (message == WM_DESTROY && freedWithDialog != nullptr)
        FreeLibrary(freedWithDialog);
    return FALSE;
}

void Pump(DWORD milliseconds) {
    for (const DWORD start = GetTickCount(); GetTickCount() - start < milliseconds; Sleep(5))
        for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);)
            DispatchMessageW(&message);
}

std::wstring TextOf(HWND window) {
    wchar_t text[512] = L"";
    GetWindowTextW(window, text, 512);
    return text;
}

// The dialog, bound to the library.
struct UiModule : testing::Test {
    UiModule() : library(LoadLibraryW(L"TELMAR_U.DLL")) {
        context.settings = settings.get();
        dialog = CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(155), nullptr, DialogProcedure,
                                    reinterpret_cast<LPARAM>(&context));
        SetWindowLongPtrW(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(&context));
        for (size_t i = 0; i < std::size(kIcons); ++i) {
            icons->records[i].iconControl = kIcons[i][0];
            icons->records[i].control = kIcons[i][1];
        }
        hintWindow = FUNCTION(CreateToolWnd)(dialog);
        FUNCTION(StoreStopIconRect)(dialog, icons.get());
    }
    ~UiModule() override {
        DestroyWindow(dialog);
        if (std::exchange(freedWithDialog, nullptr) == nullptr)
            FreeLibrary(library);
    }

    template <typename Pointer>
    Pointer Function(const char* name) const {
        return reinterpret_cast<Pointer>(reinterpret_cast<void (*)()>(GetProcAddress(library, name)));
    }

    HWND Control(int id) const { return GetDlgItem(dialog, id); }

    // The hint that is shown after a choice, which is already in the settings; "-" for none.
    std::wstring HintAfter(uint32_t control, int32_t expectedAnswer = 0) {
        EXPECT_EQ(FUNCTION(DoConstraints)(nullptr, dialog, hintWindow, control, -1, nullptr), expectedAnswer);
        FUNCTION(DispHintControl)(dialog, &context, 128);
        return IsWindowVisible(hintWindow) ? TextOf(hintWindow) : L"-";
    }

    // The controls that have a stop sign next to them.
    std::string Stops() const {
        std::string controls;
        for (const auto& icon : kIcons)
            controls += IsStopDrawn(icon[0]) ? " " + std::to_string(icon[1]) : "";
        return controls;
    }

    // Draws an icon into a square of a larger bitmap: outside nothing changes, inside it is red or not.
    bool IsStopDrawn(uint32_t icon) const {
        constexpr int margin = 3, size = 24, side = size + 2 * margin;
        const Canvas canvas(side, side, 0);
        DRAWITEMSTRUCT item = {};
        item.hDC = canvas.dc;
        item.rcItem = {margin, margin, margin + size, margin + size};
        FUNCTION(ReqDrawStopInfoIcon)(dialog, icon, &item, icons.get());
        std::map<uint32_t, int> count;
        for (const uint32_t pixel : canvas.Content().pixels)
            ++count[pixel];
        EXPECT_EQ(count[0], side * side - size * size);
        return count[0xCC0000] > 0;
    }

    HMODULE library;
    HWND dialog = nullptr;
    HWND hintWindow = nullptr;
    std::unique_ptr<OemDevmode> settings = std::make_unique<OemDevmode>();
    std::unique_ptr<StopIconTable> icons = std::make_unique<StopIconTable>();
    DialogContext context = {};
};

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
        {1, 0, 0,   0, kSimulation,     101}, {0, 0, 0,   1, kSimulation,   101},
        {0, 1, 128, 0, kSimulation,     100}, {0, 1, 0,   0, kSimulation,     0}, {1, 1, 0, 1, kRgbList, 0},
        {1, 0, 0,   1, /*all*/ 0,         0},
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
    settings->simulationGray = 1;
    const std::wstring hint = HintAfter(0);
    EXPECT_EQ(std::count(hint.begin(), hint.end(), L'\n'), 1) << "two conflicts, a line each";
    EXPECT_EQ(Stops(), " 1524 1526 1627");
    settings->simulation = 1;
    ValidateRect(Control(kIcons[0][0]), nullptr);
    EXPECT_EQ(HintAfter(kSimulation), L"-");
    EXPECT_TRUE(GetUpdateRect(Control(kIcons[0][0]), nullptr, FALSE)) << "icons must be redrawn";
    EXPECT_EQ(Stops(), "");
}

TEST_F(UiModule, KeepsTheHintBelowItsDialogUntilItEnds) {
    settings->matchPaperColor = 1;
    HintAfter(kPaper, 100);
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

} // namespace
