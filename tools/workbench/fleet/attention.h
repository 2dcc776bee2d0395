// How much attention a printer of a fleet needs, and what to do: the words of the table that `workbench query
// --list` writes.
#ifndef WORKBENCH_FLEET_ATTENTION_H
#define WORKBENCH_FLEET_ATTENTION_H

#include "workbench/lib/printer_outcomes.h"

// In the order of the table: what needs attention comes first.
enum class Attention {
    kNoAnswer,
    kOtherDevice,
    kStopped, // it does not print, as its critical alerts say
    kEmpty,
    kLow,
    kIncomplete, // something was not read, so it may need any of these
    kFine,
};
constexpr Attention kAttentions[] = {Attention::kNoAnswer, Attention::kOtherDevice, Attention::kStopped,
                                     Attention::kEmpty,    Attention::kLow,         Attention::kIncomplete,
                                     Attention::kFine};

// The word of a level in the output for programs, and the title of its section.
const char* AttentionWord(Attention attention);
const char* AttentionTitle(Attention attention);

// What the failure of a query means for the fleet.
struct FailureWords {
    Attention attention;
    const char* state;
    const char* advice; // what to do, in short
};
FailureWords WordsOf(Outcome outcome);

#endif
