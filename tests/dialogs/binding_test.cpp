// How dialog 128 finds the user-interface module and calls it, at its opening and later; what is left behind.
#include "full_dialog.h"

namespace {

const std::vector<std::string> kBinding = {
    "ReplaceDlgDispStringCmnItem Printer view 0",
    "ReplaceDlgDispString Colour Settings",
    "CreateToolWnd",
    "StoreStopIconRect",
    "DoConstraints 0",
    "DispHintControl 128",
};
// clang-format off
const std::set<std::string> kCallbacks = {
    "ReplaceDlgDispStringCmnItem", "ReplaceDlgDispString", "CreateToolWnd", "StoreStopIconRect",
    "DoConstraints", "DispHintControl", "IsInstalledDLManager", "ReqDrawStopInfoIcon",
};
// clang-format on
std::set<std::string> With(std::set<std::string> kinds, std::initializer_list<std::string> more) {
    kinds.insert(more);
    return kinds;
}

TEST_F(FullDialog, CallsBackInOrderWithoutWhatIsMissing) {
    std::vector<std::string> lacks(kCallbacks.begin(), kCallbacks.end());
    lacks.insert(lacks.end(), {"TELMAR_U.DLL", "nothing"});
    for (const std::string& lacking : lacks) {
        SCOPED_TRACE("without " + lacking);
        missing = {lacking};
        hasUiModule = lacking != "TELMAR_U.DLL";
        const auto has = [&](const std::string& callback) { return hasUiModule && callback != lacking; };
        downloadManager = lacking == "nothing" ? 256 : 0; // any but 0: installed
        std::string wanted;
        for (const std::string& call : kBinding)
            wanted += has(call.substr(0, call.find(' '))) ? call + "\n" : "";
        wanted += InOrder("fill", false) + InOrder("show", true);
        const bool isAsked = has("IsInstalledDLManager"), isDisabled = isAsked && downloadManager == 0;
        wanted += std::string(isAsked ? "IsInstalledDLManager\n" : "") + (isDisabled ? "disable 1393\n" : "");
        settings = FullSettings();
        events.clear();
        Open();
        EXPECT_EQ(initAnswer, (Answer{0, 1}));
        EXPECT_EQ(Events(With(kCallbacks, {"fill", "show", "disable"})), wanted);
        EXPECT_EQ(!IsWindowEnabled(Control(1393)), isDisabled);

        // The icon controls are drawn from the table, whoever has been told of it.
        events.clear();
        DRAWITEMSTRUCT item = {ODT_STATIC, 1503, 0, ODA_DRAWENTIRE, 0, Control(1503), nullptr, {}, 0};
        Tell(WM_DRAWITEM, 1503, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(Events(kCallbacks), has("ReqDrawStopInfoIcon") ? "ReqDrawStopInfoIcon 1503\n" : "");

        // What an earlier opening had is not used again.
        constraints = [](uint32_t control) { return control == 0 ? 0 : 100; };
        const bool isRefusable = has("DoConstraints");
        Choose(1354, 2);
        EXPECT_EQ(Selection(1354), isRefusable ? 1 : 2);
        EXPECT_EQ(Events(kCallbacks), std::string(isRefusable ? "DoConstraints 1354\n" : "")
                                          + (has("DispHintControl") ? "DispHintControl 128\n" : ""));
        Close();
    }
}

// The table's pairs of icon and control stand side by side.
TEST_F(FullDialog, StopIconsStandBesideTheirControls) {
    Open();
    const auto* record = static_cast<const uint8_t*>(stopIcons) + 16;
    int pairs = 0;
    for (; NumberAt<uint32_t>(record, 0) != 0; record += 8232) {
        const HWND icon = Control(NumberAt<int32_t>(record, 0)),
                   control = Control(NumberAt<uint16_t>(record, 4));
        EXPECT_EQ(icon == nullptr, control == nullptr);
        RECT beside = {}, at = {}, shared = {};
        GetWindowRect(icon, &at);
        GetWindowRect(control, &beside);
        InflateRect(&at, 8, 4);
        EXPECT_TRUE(icon == nullptr || IntersectRect(&shared, &at, &beside)) << GetDlgCtrlID(icon);
        pairs += icon != nullptr;
    }
    EXPECT_EQ(pairs, 20);
}

// Of the save area what the first constraint call has left, but not what the fallbacks change.
TEST_F(FullDialog, SavesTheSettingsBetweenConstraintsAndFallbacks) {
    settings.U16(2514, 300).U16(2166, 77);
    RawBytes saved = settings;
    saved.U8(2153, 3).U8(0, 200).U8(7807, 201);
    constraints = [this](uint32_t) {
        settings.U8(2153, 3).U8(0, 200).U8(7807, 201);
        return 100; // to all controls at once nothing can be refused
    };
    Open();
    ExpectSaved(saved);
}

// Each initialisation takes the module anew; the end gives back what was taken last.
TEST_F(FullDialog, TakesTheModuleAtEveryInitialisation) {
    Open();
    missing = {"DoConstraints"};
    Tell(WM_INITDIALOG, 0, reinterpret_cast<LPARAM>(&context));
    EXPECT_EQ(uiLoads, 2);
    EXPECT_EQ(uiFrees, 0);
    Choose(1354, 0);
    EXPECT_EQ(Events({"DoConstraints"}), "");
    Close();
    EXPECT_EQ(uiFrees, 1);
    FreeLibrary(GetModuleHandleW(L"TELMAR_U.DLL"));
}

} // namespace
