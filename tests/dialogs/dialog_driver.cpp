// Drives a dialog through DDProc_DlgProc and replaces what it imports from the system.
#include "dialogs/dialog_driver.h"

#include <map>
#include <winspool.h>

namespace {

DialogDriver* current;
const HANDLE kPrinter = reinterpret_cast<HANDLE>(0x5150);
const HWND kHintWindow = reinterpret_cast<HWND>(0x4711);

void Note(const std::string& event, bool isAsExpected = true) {
    current->events.push_back(event + (isAsExpected ? "" : " WRONG"));
}
void Note(const std::string& event, int64_t number, bool isAsExpected = true) {
    Note(event + " " + std::to_string(number), isAsExpected);
}

// The text of a control text table's first row.
std::string FirstText(const uint8_t* table) {
    return Narrow(reinterpret_cast<const wchar_t*>(table + 20));
}

bool IsContextOf(HWND dialog, const DialogContext* context) {
    return context == reinterpret_cast<void*>(GetWindowLongPtrW(dialog, DWLP_USER));
}

template <typename Function>
FARPROC Address(Function* function) {
    return reinterpret_cast<FARPROC>(reinterpret_cast<void (*)()>(function));
}

// --- The user-interface module -----------------------------------------------------------------------------

int32_t Constrain(const void* none, HWND dialog, HWND hints, uint32_t control, int32_t all, const void* alsoNone) {
    // When a tray dialog checks all settings, it passes the hint window of the colour dialogs.
    const bool hasOwn = current->missing.count("CreateToolWnd") == 0 && (control != 0 || !current->isTray);
    Note("DoConstraints", control,
         none == nullptr && IsWindow(dialog) && hints == (hasOwn ? kHintWindow : nullptr) && all == -1
             && alsoNone == nullptr);
    return current->constraints(control);
}

void DrawIcon(HWND dialog, uint32_t control, const DRAWITEMSTRUCT* item, const void* table) {
    Note("ReqDrawStopInfoIcon", control,
         IsWindow(dialog) && item->CtlID == control && NumberAt<uint32_t>(table, 16) != 0
             && (current->missing.count("StoreStopIconRect") != 0 || table == current->stopIcons));
}

// Opens a dialog of the module's own: a tray dialog.
INT_PTR RunModally(HINSTANCE resources, HWND owner, uint32_t id, DLGPROC procedure, LPARAM parameter) {
    Note("MyDialogBox", id,
         resources == GetModuleHandleW(L"TELMAR_S.DLL") && owner == current->page
             && parameter == GetWindowLongPtrW(owner, DWLP_USER));
    current->procedure = procedure;
    const DLGPROC relay = [](HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) -> INT_PTR {
        current->window = dialog;
        return current->procedure(dialog, message, wParam, lParam);
    };
    CreateDialogParamW(resources, MAKEINTRESOURCEW(id), nullptr, relay, parameter);
    return current->endCode;
}

const std::map<std::string, FARPROC> kUiCallbacks = {
    {"ReplaceDlgDispStringCmnItem",
     Address(+[](HWND dialog, const uint8_t* texts, uint32_t id, const DialogContext* context) {
         Note("ReplaceDlgDispStringCmnItem " + FirstText(texts), id, IsContextOf(dialog, context));
     })},
    {"ReplaceDlgDispString",
     Address(+[](HWND, const uint8_t* texts) { Note("ReplaceDlgDispString " + FirstText(texts)); })},
    {"CreateToolWnd", Address(+[](HWND) { return Note("CreateToolWnd"), kHintWindow; })},
    {"StoreStopIconRect", Address(+[](HWND, const uint8_t* table) {
         current->stopIcons = table;
         Note("StoreStopIconRect", NumberAt<uint64_t>(table, 0) == 0 && NumberAt<uint64_t>(table, 8) == 0);
     })},
    {"DoConstraints", Address(Constrain)},
    {"DispHintControl", Address(+[](HWND dialog, const DialogContext* context, uint16_t id) {
         Note("DispHintControl", id, IsContextOf(dialog, context));
     })},
    {"IsInstalledDLManager", Address(+[] { return Note("IsInstalledDLManager"), current->downloadManager; })},
    {"ReqDrawStopInfoIcon", Address(DrawIcon)},
    {"MyDialogBox", Address(RunModally)},
};

FARPROC FindProcedure(HMODULE library, const char* name) {
    if (current->missing.count(name) != 0)
        return nullptr;
    const auto found = kUiCallbacks.find(name);
    const bool isOwn = current->usesOwnCallbacks && found != kUiCallbacks.end() && found->first != "MyDialogBox";
    return isOwn || found == kUiCallbacks.end() ? GetProcAddress(library, name) : found->second;
}

HMODULE Load(const wchar_t* path) {
    ++current->uiLoads;
    EXPECT_TRUE(std::filesystem::equivalent(path, current->folder / L"TELMAR_U.DLL"));
    return current->hasUiModule ? LoadLibraryW(path) : nullptr;
}
BOOL Free(HMODULE library) {
    ++current->uiFrees;
    EXPECT_EQ(library, GetModuleHandleW(L"TELMAR_U.DLL"));
    return FreeLibrary(library);
}

// --- The system --------------------------------------------------------------------------------------------

BOOL Help(HWND window, const wchar_t* file, UINT command, ULONG_PTR data) {
    const int asked = window == current->window ? 0 : GetDlgCtrlID(window);
    const bool isTopic = command == HELP_CONTEXT;
    Note("WinHelp " + std::to_string(asked) + " " + std::to_string(command)
             + (isTopic ? " " + std::to_string(data) : ""),
         file == (current->folder / L"TELMAR__.HLP").wstring());
    const auto* const table = reinterpret_cast<const uint32_t*>(data);
    size_t size = 0;
    while (!isTopic && (size == 0 || table[size - 2] != 0))
        size += 2;
    current->helpTable.assign(table, table + size);
    return TRUE;
}

DWORD ReadPrinterData(HANDLE printer, wchar_t* name, DWORD* type, BYTE* data, DWORD size, DWORD* needed) {
    EXPECT_EQ(printer, kPrinter);
    EXPECT_STREQ(name, L"DefaultOEMDEV");
    EXPECT_EQ(size, kSettingsSize);
    if (!current->storedDefaults)
        return ERROR_FILE_NOT_FOUND;
    *needed = static_cast<DWORD>(current->storedDefaults->size());
    *type = REG_BINARY;
    memcpy(data, current->storedDefaults->data(), std::min(*needed, size));
    return *needed > size ? ERROR_MORE_DATA : ERROR_SUCCESS;
}

BOOL DescribePrinter(HANDLE printer, DWORD level, BYTE* data, DWORD size, DWORD* needed) {
    EXPECT_EQ(std::pair(printer, level), std::pair(kPrinter, DWORD{2}));
    const std::wstring& driver = current->printerDriver;
    *needed = static_cast<DWORD>(sizeof(PRINTER_INFO_2W) + 2 * (driver.size() + 1));
    if (size < *needed)
        return FALSE;
    auto* info = reinterpret_cast<PRINTER_INFO_2W*>(data);
    info->pDriverName = reinterpret_cast<wchar_t*>(info + 1);
    memcpy(info->pDriverName, driver.c_str(), 2 * (driver.size() + 1));
    return TRUE;
}

int ReadLocale(LCID locale, LCTYPE type, wchar_t* text, int capacity) {
    EXPECT_EQ(locale, LCID{LOCALE_USER_DEFAULT});
    const std::wstring& value = type == LOCALE_ICOUNTRY ? current->country : current->measure;
    EXPECT_TRUE(type == LOCALE_ICOUNTRY || type == LOCALE_IMEASURE);
    if (value.empty() || capacity <= static_cast<int>(value.size()))
        return 0;
    memcpy(text, value.c_str(), 2 * (value.size() + 1));
    return static_cast<int>(value.size()) + 1;
}

// --- Controls and windows ----------------------------------------------------------------------------------

LRESULT SendNoted(HWND dialog, int control, UINT message, WPARAM wParam, LPARAM lParam) {
    static const std::map<UINT, std::string> kKinds = {{CB_RESETCONTENT, "fill"},
                                                       {CB_SETCURSEL, "show"},
                                                       {BM_SETCHECK, "show"},
                                                       {CB_GETCURSEL, "read"},
                                                       {BM_GETCHECK, "read"}};
    const auto kind = kKinds.find(message);
    if (kind != kKinds.end())
        Note(kind->second, control, dialog == current->window);
    const bool isFull = message == CB_INSERTSTRING && current->failingEntry-- == 1;
    return isFull ? CB_ERRSPACE : SendDlgItemMessageW(dialog, control, message, wParam, lParam);
}
LRESULT SendToWindow(HWND target, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NEXTDLGCTL)
        Note("focus", GetDlgCtrlID(reinterpret_cast<HWND>(wParam)), target == current->window && lParam == 1);
    if (message == WM_USER + 104)
        Note("trays-changed",
             target == GetParent(current->page) && wParam == reinterpret_cast<WPARAM>(current->page) && lParam == 0);
    return SendMessageW(target, message, wParam, lParam);
}
} // namespace

std::string Narrow(const wchar_t* text) {
    return std::string(text, text + wcslen(text));
}

RawBytes Profile(const wchar_t* qualifier, const wchar_t* name, uint32_t location) {
    return RawBytes(kProfileSize).Wide(0, qualifier).Wide(82, name).U32(164, location);
}

RawBytes Pattern(unsigned seed) {
    RawBytes record(kSettingsSize);
    for (size_t i = 0; i < kSettingsSize; ++i)
        record.U8(i, static_cast<unsigned>((i * 89 + seed) % 255 + 1));
    return record;
}

// Copies of the product's files with another model; null for the model as built.
std::unique_ptr<TemporaryFolder> MakeFolder(const std::wstring& model) {
    if (model.empty())
        return nullptr;
    const std::vector<std::string> files = {"TELMAR_D.DLL", "TELMAR_S.DLL", "TELMAR_U.DLL",
                                            "TELMAR_D.PRM=models/" + Narrow(model.c_str()) + ".prm"};
    return std::make_unique<TemporaryFolder>(L"lumora_" + model, files);
}

DialogDriver::DialogDriver(uint32_t identifier, const std::wstring& model)
    : otherModel(MakeFolder(model)), folder(otherModel != nullptr ? otherModel->path : ProductFolder()), module(folder),
      dialogId(identifier), context{nullptr, nullptr, nullptr, &lists, kPrinter, 1, 0, nullptr},
      resources(LoadLibraryW((folder / L"TELMAR_S.DLL").c_str())) {
    current = this;
    const auto patch = [this](auto* system, auto* other) { patches.emplace_back(module.handle, system, other); };
    patch(LoadLibraryW, Load);
    patch(FreeLibrary, Free);
    patch(GetProcAddress, FindProcedure);
    patch(SendDlgItemMessageW, SendNoted);
    patch(SendMessageW, SendToWindow);
    patch(
        EnableWindow, +[](HWND control, BOOL isEnabled) {
            Note("disable", GetDlgCtrlID(control), !isEnabled);
            return EnableWindow(control, isEnabled);
        });
    patch(
        EndDialog, +[](HWND, INT_PTR code) -> BOOL { return Note("EndDialog", code), TRUE; });
    patch(WinHelpW, Help);
    patch(GetProcAddress(GetModuleHandleW(L"winspool.drv"), "GetPrinterDataW"), Address(ReadPrinterData));
    patch(GetProcAddress(GetModuleHandleW(L"winspool.drv"), "GetPrinterW"), Address(DescribePrinter));
    patch(GetLocaleInfoW, ReadLocale);
    patch(
        LocalAlloc, +[](UINT flags, SIZE_T size) -> HLOCAL {
            void* block = current->failingAllocation-- == 1 ? nullptr : LocalAlloc(flags, size);
            current->ownedBlocks.insert(block);
            return block;
        });
    patch(
        LocalFree, +[](HLOCAL block) {
            EXPECT_EQ(current->ownedBlocks.erase(block), 1u);
            return LocalFree(block);
        });
    patch(
        LoadIconW, +[](HINSTANCE library, const wchar_t* name) {
            Note("LoadIcon", reinterpret_cast<intptr_t>(name), library == nullptr);
            return LoadIconW(library, name);
        });
    patch(
        DestroyIcon, +[](HICON icon) { return Note("DestroyIcon"), DestroyIcon(icon); });
}

DialogDriver::~DialogDriver() {
    Close();
    FreeLibrary(resources);
    ownedBlocks.erase(nullptr);
    EXPECT_TRUE(ownedBlocks.empty());
}

void DialogDriver::Open(bool withContext) {
    const auto area = [](RawBytes& record) { return reinterpret_cast<OemDevmode*>(record.bytes.data()); };
    context.settings = area(settings);
    context.saveArea = area(saveArea);
    context.scratch = area(scratch);
    const auto list = [](const RawBytes& profiles) {
        return ProfileList{reinterpret_cast<const ProfileEntry*>(profiles.bytes.data()),
                           static_cast<uint32_t>(profiles.bytes.size() / kProfileSize)};
    };
    lists.rgbSources = list(rgbSources);
    lists.simulations = list(simulations);
    lists.destinations = list(destinations);
    const DLGPROC deliver = [](HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) -> INT_PTR {
        current->window = dialog;
        const Answer answer = current->Deliver(message, wParam, lParam);
        if (message == WM_INITDIALOG)
            current->initAnswer = answer;
        return answer.first;
    };
    CreateDialogParamW(resources, MAKEINTRESOURCEW(dialogId), nullptr, deliver,
                       withContext ? reinterpret_cast<LPARAM>(&context) : 0);
    ASSERT_NE(window, nullptr);
}

void DialogDriver::Close() {
    if (IsWindow(window))
        DestroyWindow(window);
    window = nullptr;
}

Answer DialogDriver::DeliverTo(uint32_t otherId, HWND dialog, UINT message, WPARAM wParam, LPARAM lParam,
                               bool hasHandledFlag) const {
    using Function = int32_t WINAPI(uint32_t, HWND, UINT, WPARAM, LPARAM, int32_t*);
    int32_t handled = kUntouched;
    const int32_t result = module.Export<Function>("DDProc_DlgProc")(otherId, dialog, message, wParam, lParam,
                                                                     hasHandledFlag ? &handled : nullptr);
    return {result, handled};
}

Answer DialogDriver::Choose(int control, int entry) {
    Send(control, IsButton(control) ? UINT{BM_SETCHECK} : CB_SETCURSEL, static_cast<WPARAM>(entry));
    events.clear();
    const auto id = static_cast<WPARAM>(control);
    return Command(IsButton(control) ? id : Chosen(id));
}

int DialogDriver::Shown(int control) const {
    return static_cast<int>(Send(control, IsButton(control) ? UINT{BM_GETCHECK} : CB_GETCURSEL));
}

std::string DialogDriver::Entries(int list) const {
    std::string entries;
    const int count = static_cast<int>(Send(list, CB_GETCOUNT));
    for (int i = 0; i < count; ++i) {
        wchar_t text[300] = L"";
        Send(list, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        entries += (i == 0 ? "" : "|") + Narrow(text) + "="
                   + std::to_string(Send(list, CB_GETITEMDATA, static_cast<WPARAM>(i)));
    }
    return entries;
}

std::string DialogDriver::Events(const std::set<std::string>& kinds) const {
    std::string text;
    for (const std::string& event : events)
        if (kinds.count(event.substr(0, event.find(' '))) != 0)
            text += event + "\n";
    return text;
}

uint8_t* DialogDriver::FindItem(const std::string& key) const {
    uint8_t* const base = reinterpret_cast<uint8_t*>(module.handle);
    const auto* head =
        reinterpret_cast<IMAGE_NT_HEADERS*>(base + reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const auto* section = reinterpret_cast<const IMAGE_SECTION_HEADER*>(head + 1);
    for (WORD i = 0; i < head->FileHeader.NumberOfSections; ++i, ++section) {
        if ((section->Characteristics & IMAGE_SCN_MEM_WRITE) == 0)
            continue;
        uint8_t* const data = base + section->VirtualAddress;
        for (size_t at = 0; at + 144 <= section->Misc.VirtualSize; ++at)
            if (memcmp(data + at + 4, key.c_str(), key.size() + 1) == 0 && NumberAt<uint32_t>(data, at) == 144)
                return data + at;
    }
    ADD_FAILURE() << "no item " << key;
    return nullptr;
}
