// Scripts of user actions on a dialog, one action a line; '#' begins a comment. dialog_script.cpp has the
// table of actions.
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
    std::string place; // "FILE:LINE", for messages
};

struct DialogScript {
    std::vector<ScriptAction> actions;
    size_t next = 0;                          // the first action that has not run yet
    Document done = Document::MakeList();     // a row for each action that has run
    Document pictures = Document::MakeList(); // that the actions have taken
    int timeLimit = 30;                       // seconds that an action may take
};

// Parses the lines of a script; `name` names it in messages. Throws Failure with the line and what is
// possible.
DialogScript ParseDialogScript(const std::string& lines, const std::string& name);

// Reads and parses the script at this path (UTF-8).
DialogScript ReadDialogScript(const std::string& path);

// Runs the next action on the dialog, which must be visible. Keys are posted: they take effect when the
// dialog's message loop runs again. Throws Failure with the line when the dialog does not allow the action.
void RunNextAction(DialogScript& script, HWND dialog);

// The list of actions, for --help.
std::string ScriptHelp();

#endif
