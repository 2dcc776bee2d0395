// Reads the default settings of the print queue, or adapts the built-in ones to the user's region.
#include "dialogs/color/default_devmode.h"

#include "base/keyed_list.h"
#include "base/scope_guard.h"
#include "paramdata/default_settings.h"

#include <cstring>
#include <winspool.h>

namespace {

constexpr uint32_t kLetter = 1; // values of paper sizes
constexpr uint32_t kA4 = 9;
constexpr uint32_t kLetterCountries[] = {1, 2}; // country codes of LOCALE_ICOUNTRY

// A locale setting as text; empty when it cannot be read.
using LocaleText = wchar_t[16];
void ReadLocale(LCTYPE type, LocaleText& text) {
    if (GetLocaleInfoW(LOCALE_USER_DEFAULT, type, text, sizeof(text) / sizeof(text[0])) == 0)
        text[0] = 0;
}

uint32_t CountryCode() {
    LocaleText text;
    ReadLocale(LOCALE_ICOUNTRY, text);
    uint32_t code = 0;
    for (const wchar_t* at = text; *at >= L'0' && *at <= L'9'; ++at)
        code = code * 10 + static_cast<uint32_t>(*at - L'0');
    return code;
}

uint32_t RegionalPaper() {
    const uint32_t country = CountryCode();
    for (const uint32_t code : kLetterCountries)
        if (country == code)
            return kLetter;
    return kA4;
}

// The first paper size with the same key as the one with this value; null when there is none.
const PaperSizeRecord* FindPaper(const DeviceTable* table, uint32_t value) {
    const PaperSizeRecord* papers = table != nullptr ? table->paperSizes : nullptr;
    const PaperSizeRecord* paper = FindByValue(papers, value);
    return paper != nullptr ? FindByKey(papers, paper->head.key) : nullptr;
}

void LocalizePaper(const DeviceTable* table) {
    const PaperSizeRecord* paper = FindPaper(table, RegionalPaper());
    if (paper == nullptr)
        return;
    defaultSettings.paper = defaultSettings.outputPaper = static_cast<uint16_t>(paper->head.value);
    defaultSettings.paperWidth = static_cast<int16_t>(paper->width);
    defaultSettings.paperLength = static_cast<int16_t>(paper->length);
    for (size_t i = 0; i < 4; ++i)
        defaultSettings.paperMargins[i] = static_cast<uint16_t>(paper->margins[i]);
}

void LocalizeUnits() {
    LocaleText text;
    ReadLocale(LOCALE_IMEASURE, text);
    const bool isUs = text[0] == L'1' && text[1] == 0;
    for (uint8_t& flag : defaultSettings.unitFlags)
        flag = isUs ? 1 : 0;
}

// Reads the record that is stored with the queue. False unless it has its full size.
bool ReadStoredDefaults(HANDLE printer, OemDevmode& settings) {
    wchar_t name[] = L"DefaultOEMDEV";
    DWORD type = 0;
    DWORD size = 0;
    return GetPrinterDataW(printer, name, &type, reinterpret_cast<BYTE*>(&settings), sizeof(settings), &size)
               == ERROR_SUCCESS
           && size == sizeof(settings);
}

bool EndsInMono(const wchar_t* driver) {
    constexpr wchar_t kMono[] = L"Mono";
    constexpr size_t kMonoLength = 4;
    const size_t length = driver != nullptr ? TextLength(driver) : 0;
    return length >= kMonoLength
           && memcmp(driver + length - kMonoLength, kMono, kMonoLength * sizeof(wchar_t)) == 0;
}

bool HasMonoDriver(HANDLE printer) {
    DWORD size = 0;
    GetPrinterW(printer, 2, nullptr, 0, &size);
    auto* info = static_cast<PRINTER_INFO_2W*>(size != 0 ? LocalAlloc(LPTR, size) : nullptr);
    if (info == nullptr)
        return false;
    const ScopeGuard freeInfo{[info] { LocalFree(info); }};
    return GetPrinterW(printer, 2, reinterpret_cast<BYTE*>(info), size, &size)
           && EndsInMono(info->pDriverName);
}

} // namespace

const OemDevmode* GetDefaultOemDevmode(const DeviceTable* table, const DialogContext* context) {
    if (context == nullptr || context->scratch == nullptr)
        return nullptr;
    OemDevmode& settings = *context->scratch;
    if (ReadStoredDefaults(context->printer, settings))
        return &settings;
    LocalizeDefaultOemDevmode(table);
    settings = defaultSettings;
    if (IsMonoDriver(context->printer, nullptr))
        settings.mono = 1;
    return &settings;
}

void LocalizeDefaultOemDevmode(const DeviceTable* table) {
    LocalizePaper(table);
    LocalizeUnits();
}

bool IsMonoDriver(HANDLE printer, const wchar_t* name) {
    if (printer != nullptr)
        return HasMonoDriver(printer);
    HANDLE opened = nullptr;
    if (name == nullptr || !OpenPrinterW(const_cast<wchar_t*>(name), &opened, nullptr))
        return false;
    const ScopeGuard closePrinter{[opened] { ClosePrinter(opened); }};
    return HasMonoDriver(opened);
}
