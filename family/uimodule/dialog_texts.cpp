// Replaces the texts of a dialog.
#include "uimodule/dialog_texts.h"

#include "base/keyed_list.h"
#include "uimodule/window_parts.h"

namespace {

constexpr size_t kAccessKeyLength = 5; // " (&X)"
using Text = wchar_t[sizeof(ControlTextRecord::display) / sizeof(wchar_t) + 1 + kAccessKeyLength];

wchar_t UpperCase(wchar_t c) {
    return static_cast<wchar_t>(
        reinterpret_cast<ULONG_PTR>(CharUpperW(reinterpret_cast<wchar_t*>(ULONG_PTR{c}))));
}

// The letter after a single '&'; 0 when there is none.
wchar_t AccessKeyOf(const wchar_t* text) {
    for (; *text != 0; ++text) {
        if (*text != L'&')
            continue;
        ++text;
        if (*text != L'&')
            return *text;
    }
    return 0;
}

// Position of the letter, in either case; the text's length when the text lacks it.
size_t FindLetter(const Text& text, wchar_t letter) {
    size_t at = 0;
    while (text[at] != 0 && UpperCase(text[at]) != UpperCase(letter))
        ++at;
    return at;
}

void Insert(Text& text, size_t at, const wchar_t* what) {
    Text rest;
    CopyText(rest, text + at);
    text[at] = 0;
    AppendText(text, what);
    AppendText(text, rest);
}

// End of the words, before a closing colon or dots.
size_t WordsEnd(const Text& text) {
    size_t end = TextLength(text);
    while (end > 0 && (text[end - 1] == L':' || text[end - 1] == L'.'))
        --end;
    return end;
}

bool HasAccessKeys(HWND control) {
    return !IsKind(control, L"Static", SS_NOPREFIX, SS_NOPREFIX);
}

bool IsGroupBox(HWND control) {
    return IsKind(control, L"Button", BS_TYPEMASK, BS_GROUPBOX);
}

// Gives the text the access key of the control's present text, unless it has an '&' of its own.
void KeepAccessKey(Text& text, HWND control) {
    wchar_t present[128] = L"";
    GetWindowTextW(control, present, sizeof(present) / sizeof(present[0]));
    const wchar_t key = AccessKeyOf(present);
    if (key == 0 || text[FindLetter(text, L'&')] != 0)
        return;
    const size_t at = FindLetter(text, key);
    if (text[at] != 0) {
        Insert(text, at, L"&");
    } else if (!IsGroupBox(control)) {
        const wchar_t behind[] = {L' ', L'(', L'&', UpperCase(key), L')', 0};
        Insert(text, WordsEnd(text), behind);
    }
}

bool IsTitle(HWND dialog, const ControlTextRecord& row) {
    return row.identifiers[1] != 0 || GetDlgItem(dialog, row.identifiers[0]) == nullptr;
}

} // namespace

void ReplaceTexts(HWND dialog, const ControlTextRecord* texts, bool isModel) {
    if (dialog == nullptr)
        return;
    for (const ControlTextRecord& row : Listed(texts)) {
        Text text = L"";
        CopyText(text, row.display);
        // -1 is a list column; it would also match labels without an identifier.
        if (text[0] == 0 || row.identifiers[0] <= 0)
            continue;
        if (isModel && &row == texts && IsTitle(dialog, row)) {
            SetWindowTextW(dialog, text);
            continue;
        }
        HWND control = GetDlgItem(dialog, row.identifiers[0]);
        if (control == nullptr)
            continue;
        if (HasAccessKeys(control))
            KeepAccessKey(text, control);
        SetWindowTextW(control, text);
    }
}
