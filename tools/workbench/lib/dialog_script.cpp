// Parses scripts of user actions and runs the actions on a dialog.
#include "workbench/lib/dialog_script.h"

#include "common/choices.h"
#include "workbench/lib/dialog_view.h"
#include "workbench/lib/files.h"
#include "workbench/lib/text.h"

#include <algorithm>
#include <cstring>
#include <sstream>

struct ScriptVerb {
    const char* name;
    const char* argument; // empty: the action takes none
    const char* effect;
    void (*run)(DialogScript& script, HWND dialog, const std::string& argument);
};

namespace {

constexpr const char* kBlanks = " \t\r";

constexpr struct {
    const char* name;
    WPARAM key;
} kKeys[] = {
    {"tab", VK_TAB},      {"space", VK_SPACE}, {"enter", VK_RETURN},  {"escape", VK_ESCAPE},
    {"up", VK_UP},        {"down", VK_DOWN},   {"left", VK_LEFT},     {"right", VK_RIGHT},
    {"home", VK_HOME},    {"end", VK_END},     {"page-up", VK_PRIOR}, {"page-down", VK_NEXT},
    {"drop-down", VK_F4}, {"f1", VK_F1},
};

// The line up to a '#' at its beginning or with a blank on either side.
std::string WithoutComment(const std::string& line) {
    const std::string padded = " " + line + " ";
    for (size_t at = padded.find('#'); at != std::string::npos; at = padded.find('#', at + 1))
        if (at == 1
            || (strchr(kBlanks, padded[at - 1]) != nullptr && strchr(kBlanks, padded[at + 1]) != nullptr))
            return Trimmed(padded.substr(0, at));
    return Trimmed(line);
}

// Removes the first word from the text and returns it.
std::string TakeWord(std::string& text) {
    const std::string word = text.substr(0, text.find_first_of(kBlanks));
    text = Trimmed(text.substr(word.size()));
    return word;
}

int Number(const std::string& text) {
    constexpr size_t kMaxDigits = 5;
    return ParseNumber(text, kMaxDigits);
}

[[noreturn]] void Refuse(const std::string& what, const std::string& choices) {
    throw Failure(kExitUsage, what + "; " + choices);
}

// The list, or else the button of any kind, with this identifier. Throws Failure unless a user could use it.
HWND FindControl(HWND dialog, const std::string& id, bool isList) {
    std::vector<std::string> possible;
    for (HWND control : ControlsOf(dialog)) {
        const ControlKind kind = KindOf(control);
        const bool hasEntries = kind == ControlKind::kList || kind == ControlKind::kRows;
        if (kind == ControlKind::kNone || hasEntries != isList)
            continue;
        if (GetDlgCtrlID(control) == Number(id)) {
            if (!IsWindowVisible(control) || !IsWindowEnabled(control))
                throw Failure(kExitUsage,
                              "control " + id + " is disabled or hidden, so a user cannot use it");
            return control;
        }
        possible.push_back(std::to_string(GetDlgCtrlID(control)));
    }
    Refuse("the dialog has no " + std::string(isList ? "list '" : "button '") + id + "'", Choices(possible));
}

// Position of "#INDEX", or of the first entry with this text.
WPARAM FindEntry(HWND list, const std::string& wanted) {
    const std::vector<std::string> entries = EntriesOf(list);
    const int index = wanted.substr(0, 1) == "#" ? Number(wanted.substr(1)) : -1;
    if (index >= 0 && static_cast<size_t>(index) < entries.size())
        return static_cast<WPARAM>(index);
    for (size_t i = 0; i < entries.size(); ++i)
        if (Trimmed(entries[i]) == wanted)
            return i;
    Refuse("list " + std::to_string(GetDlgCtrlID(list)) + " has no entry '" + wanted + "'", Choices(entries));
}

void Choose(DialogScript& /*script*/, HWND dialog, const std::string& argument) {
    std::string entry = argument;
    const HWND list = FindControl(dialog, TakeWord(entry), true);
    const WPARAM index = FindEntry(list, entry);
    SetFocus(list);
    SelectEntry(list, index);
}

void Click(DialogScript& /*script*/, HWND dialog, const std::string& argument) {
    const HWND button = FindControl(dialog, argument, false);
    SetFocus(button);
    SendMessageW(button, BM_CLICK, 0, 0);
}

void PressKey(DialogScript& /*script*/, HWND /*dialog*/, const std::string& argument) {
    const auto* row = std::find_if(std::begin(kKeys), std::end(kKeys),
                                   [&](const auto& key) { return argument == key.name; });
    if (row == std::end(kKeys))
        Refuse("there is no key '" + argument + "'",
               Choices(kKeys, [](const auto& key) { return key.name; }));
    const HWND focus = GetFocus();
    if (focus == nullptr)
        throw Failure(kExitFailed, "no control has the keyboard focus; keep the dialog in the foreground");
    const UINT scanCode = MapVirtualKeyW(static_cast<UINT>(row->key), MAPVK_VK_TO_VSC);
    constexpr UINT kHelpKey = 0x4D; // WM_KEYF1, which the system adds to a key of the keyboard
    PostMessageW(focus, WM_KEYDOWN, row->key, static_cast<LPARAM>(1 | scanCode << 16));
    if (row->key == VK_F1)
        PostMessageW(focus, kHelpKey, 0, 0);
    PostMessageW(focus, WM_KEYUP, row->key, static_cast<LPARAM>(0xC0000001 | scanCode << 16));
}

void TakeOnePicture(DialogScript& script, HWND dialog, const std::string& argument) {
    script.pictures.Add(TakePicture(dialog, argument));
}

void Refresh(DialogScript& /*script*/, HWND dialog, const std::string& /*argument*/) {
    SendMessageW(dialog, TELMAR_WM_REFRESH, 0, 0);
}

void SetTimeLimit(DialogScript& script, HWND /*dialog*/, const std::string& argument) {
    const int seconds = Number(argument);
    if (seconds < 1)
        Refuse("there is no time limit '" + argument + "'", "possible: a number of seconds from 1 on");
    script.timeLimit = seconds;
}

template <int kButton>
void Press(DialogScript& /*script*/, HWND dialog, const std::string& /*argument*/) {
    SendMessageW(FindControl(dialog, std::to_string(kButton), false), BM_CLICK, 0, 0);
}

constexpr ScriptVerb kVerbs[] = {
    {"choose", "LIST TEXT|#INDEX", "selects an entry or a row by its text or its position, from 0", Choose},
    {"click", "BUTTON", "clicks a button, check box or radio button", Click},
    {"key", "NAME", "presses a key, such as tab, space, down, enter", PressKey},
    {"picture", "FILE.png", "saves a picture of the dialog", TakeOnePicture},
    {"refresh", "", "notifies the dialog that the settings have changed", Refresh},
    {"limit", "SECONDS", "sets the time that each further action may take, 30 at first", SetTimeLimit},
    {"defaults", "", "clicks Defaults", Press<IDC_DEFAULTS>},
    {"ok", "", "clicks OK, which closes the dialog", Press<IDOK>},
    {"cancel", "", "clicks Cancel, which closes the dialog", Press<IDCANCEL>},
};

std::string Usage(const ScriptVerb& verb) {
    return verb.name + std::string(verb.argument[0] == 0 ? "" : " ") + verb.argument;
}

const ScriptVerb& FindVerb(const std::string& name) {
    for (const ScriptVerb& verb : kVerbs)
        if (name == verb.name)
            return verb;
    Refuse("there is no action '" + name + "'", Choices(kVerbs, Usage));
}

// Runs `act` and puts the place at the beginning of a failure's message.
template <typename Act>
void At(const std::string& place, const Act& act) {
    try {
        act();
    } catch (const Failure& failure) {
        throw Failure(failure.exitCode, place + ": " + failure.what());
    }
}

} // namespace

DialogScript ParseDialogScript(const std::string& lines, const std::string& name) {
    DialogScript script;
    std::istringstream file(lines);
    size_t number = 0;
    for (std::string line; std::getline(file, line);) {
        const std::string place = name + ":" + std::to_string(++number);
        const std::string text = WithoutComment(line);
        if (text.empty())
            continue;
        std::string argument = text;
        At(place, [&] {
            const ScriptVerb& verb = FindVerb(TakeWord(argument));
            if (argument.empty() != (verb.argument[0] == 0))
                Refuse("'" + text + "' has too few or too many words", "possible: " + Usage(verb));
            script.actions.push_back({&verb, argument, number, place});
        });
    }
    return script;
}

DialogScript ReadDialogScript(const std::string& path) {
    return ParseDialogScript(ReadTextFile(path, "--script"), path);
}

void RunNextAction(DialogScript& script, HWND dialog) {
    const ScriptAction& action = script.actions[script.next++];
    script.done.Add(
        {{"line", action.line}, {"action", action.verb->name}, {"on", action.argument}, {"hint", nullptr}});
    At(action.place, [&] { action.verb->run(script, dialog, action.argument); });
}

std::string ScriptHelp() {
    std::string help = "Actions of a script, one a line (a '#' begins a comment):\n";
    for (const ScriptVerb& verb : kVerbs) {
        const std::string usage = Usage(verb);
        help += "  " + usage + std::string(28 - usage.size(), ' ') + verb.effect + "\n";
    }
    return help;
}
