// Selects the language and reads the string tables of the program.
#include "workbench/lib/localized_text.h"

#include "workbench/lib/text.h"

namespace {

constexpr UINT kTextsPerTable = 16; // fixed by the resource format

LANGID chosenLanguage = LANG_NEUTRAL; // the user's language

// The text's place in the resource: not terminated; empty when it does not exist.
std::wstring_view FindText(LANGID language, UINT id) {
    const HMODULE program = GetModuleHandleW(nullptr);
    const HRSRC table =
        FindResourceExW(program, RT_STRING, MAKEINTRESOURCEW(id / kTextsPerTable + 1), language);
    const HGLOBAL loaded = table != nullptr ? LoadResource(program, table) : nullptr;
    if (loaded == nullptr)
        return {};
    const auto* at = static_cast<const wchar_t*>(LockResource(loaded)); // length and text of each
    for (UINT skipped = id % kTextsPerTable; skipped > 0; --skipped)
        at += 1 + *at;
    return {at + 1, *at};
}

} // namespace

void UseLanguage(const std::string& name) {
    if (name.empty())
        return;
    chosenLanguage = name == "de" ? kGerman : kEnglish;
    SetThreadLocale(MAKELCID(chosenLanguage, SORT_DEFAULT));
    SetThreadUILanguage(chosenLanguage);
}

std::string TextIn(LANGID language, UINT id, const std::vector<std::string>& arguments) {
    const std::string pattern = Utf8(FindText(language, id));
    std::string text;
    for (size_t at = 0; at < pattern.size(); ++at) {
        const bool isPlace = pattern[at] == '{' && at + 2 < pattern.size() && pattern[at + 2] == '}';
        const size_t argument = isPlace ? static_cast<size_t>(pattern[at + 1] - '1') : arguments.size();
        if (argument < arguments.size()) {
            text += arguments[argument];
            at += 2;
        } else {
            text += pattern[at];
        }
    }
    return text;
}

LANGID UserLanguage() {
    return chosenLanguage;
}

std::string LocalizedText(UINT id, const std::vector<std::string>& arguments) {
    return TextIn(chosenLanguage, id, arguments);
}
