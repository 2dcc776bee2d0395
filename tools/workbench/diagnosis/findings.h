// What is wrong with a printer or the way to it: the one table of the findings of a diagnosis.
#ifndef WORKBENCH_DIAGNOSIS_FINDINGS_H
#define WORKBENCH_DIAGNOSIS_FINDINGS_H

#include "workbench/diagnosis/observations.h"

struct DiagnosisFinding {
    const char* kind;     // a word for programs
    bool isNote;          // nothing is wrong for the driver
    std::string sentence; // what is wrong
    const char* effect;   // what the driver makes of it
    const char* action;   // what to do
};

// The most important first, notes last. Empty: nothing is wrong.
std::vector<DiagnosisFinding> FindingsOf(const Observations& seen);

// Whether one of them is more than a note.
bool HasFault(const std::vector<DiagnosisFinding>& findings);

#endif
