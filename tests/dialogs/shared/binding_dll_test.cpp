// How the full colour dialog loads the user-interface module and calls back into it.
#include "dialogs/color/color_driver.h"

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
TEST_F(FullDialog, SkipsMissingCallbacksAndKeepsTheOrder) {
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
        wanted += Fills() + Shows();
        const bool isAsked = has("IsInstalledDLManager"), isDisabled = isAsked && downloadManager == 0;
        wanted += std::string(isAsked ? "IsInstalledDLManager\n" : "") + (isDisabled ? "disable 1393\n" : "");
        settings = OfferedSettings(dialog);
        events.clear();
        Open();
        EXPECT_EQ(initAnswer, (Answer{0, 1}));
        std::set<std::string> kinds = {"fill", "show", "disable"};
        kinds.insert(kCallbacks.begin(), kCallbacks.end());
        EXPECT_EQ(Events(kinds), wanted);
        EXPECT_EQ(!IsWindowEnabled(Control(1393)), isDisabled);

        // Icon controls are drawn from the table even if StoreStopIconRect is missing.
        events.clear();
        DRAWITEMSTRUCT item = {ODT_STATIC, 1503, 0, ODA_DRAWENTIRE, 0, Control(1503), nullptr, {}, 0};
        Deliver(WM_DRAWITEM, 1503, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(Events(kCallbacks), has("ReqDrawStopInfoIcon") ? "ReqDrawStopInfoIcon 1503\n" : "");

        // Entry points of an earlier opening are not used again.
        constraints = [](uint32_t control) { return control == 0 ? 0 : 100; };
        const bool isRefusable = has("DoConstraints");
        Choose(1354, 2);
        EXPECT_EQ(Shown(1354), isRefusable ? 1 : 2);
        EXPECT_EQ(Events(kCallbacks), std::string(isRefusable ? "DoConstraints 1354\n" : "")
                                          + (has("DispHintControl") ? "DispHintControl 128\n" : ""));
        Close();
    }
}

// The icon and the control of each record are next to each other in the dialog.
TEST_F(FullDialog, StopIconTablePairsNeighbours) {
    Open();
    const auto* record = static_cast<const uint8_t*>(stopIcons) + 16; // after the header
    int pairs = 0;
    for (; NumberAt<uint32_t>(record, 0) != 0; record += 8232) {
        const HWND icon = Control(NumberAt<int32_t>(record, 0)), control = Control(NumberAt<uint16_t>(record, 4));
        EXPECT_EQ(icon == nullptr, control == nullptr);
        RECT place = {}, at = {}, shared = {};
        GetWindowRect(icon, &at);
        GetWindowRect(control, &place);
        InflateRect(&at, 8, 4);
        EXPECT_TRUE(icon == nullptr || IntersectRect(&shared, &at, &place)) << GetDlgCtrlID(icon);
        pairs += icon != nullptr;
    }
    EXPECT_EQ(pairs, 20);
}

// The save area has what the first constraint call changes, but not what the fallbacks change.
TEST_F(FullDialog, SavesTheSettingsBetweenConstraintsAndFallbacks) {
    settings.U16(2514, 300).U16(2166, 77);
    RawBytes saved = settings;
    saved.U8(2153, 3).U8(0, 200).U8(7807, 201);
    constraints = [this](uint32_t) {
        settings.U8(2153, 3).U8(0, 200).U8(7807, 201);
        return 100; // a check of all controls refuses nothing
    };
    Open();
    EXPECT_EQ(Differences(saveArea.bytes.data(), saved), "");
}

// Each initialisation loads the library once more; the end frees it once.
TEST_F(FullDialog, LoadsTheUiModuleAtEveryInitialisation) {
    Open();
    missing = {"DoConstraints"};
    Deliver(WM_INITDIALOG, 0, reinterpret_cast<LPARAM>(&context));
    EXPECT_EQ(uiLoads, 2);
    EXPECT_EQ(uiFrees, 0);
    Choose(1354, 0);
    EXPECT_EQ(Events({"DoConstraints"}), "");
    Close();
    EXPECT_EQ(uiFrees, 1);
    FreeLibrary(GetModuleHandleW(L"TELMAR_U.DLL"));
}

} // namespace
