// Scripts of user actions on a dialog: one action a line, a '#' begins a comment. The table of actions is in
// dialog_script.cpp.
#ifndef WORKBENCH_LIB_DIALOG_SCRIPT_H
#define WORKBENCH_LIB_DIALOG_SCRIPT_H

#include "workbench/lib/document.h"

#include <vector>
#include <windows.h>

struct ScriptVerb;

struct ScriptAction {
    const ScriptVerb* verb;
    std::string argument;
    size_t line;       // of the script
    std::string place; // for messages: "FILE:LINE"
};

struct DialogScript {
    std::vector<ScriptAction> actions;
    size_t next = 0;                          // the first that has not been run
    Document done = Document::MakeList();     // a row for each that has
    Document pictures = Document::MakeList(); // that they have taken
};

// A script from its lines; messages call it by this name. Throws Failure that names the line and what is
// possible.
DialogScript ParseDialogScript(const std::string& lines, const std::string& name);

// Reads the script at this path (UTF-8). Throws Failure that names the line and what is possible.
DialogScript ReadDialogScript(const std::string& path);

// Runs the next action on the dialog, which must be visible. Keys are posted: they act once the dialog's
// message loop runs again. Throws Failure that names the line when the dialog doesn't allow it.
void RunNextAction(DialogScript& script, HWND dialog);

// Presses a button, as a user can when it is there and enabled.
void PressButton(HWND dialog, int button);

// What a script can say, for --help.
std::string ScriptHelp();

#endif
