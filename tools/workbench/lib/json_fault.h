// What is wrong with a text that is no JSON, in the words of a person who writes such files.
#ifndef WORKBENCH_LIB_JSON_FAULT_H
#define WORKBENCH_LIB_JSON_FAULT_H

#include <string>
#include <string_view>

// "LINE:COLUMN: MESSAGE" of the first fault. `byte` is where the JSON library found an error, from 0; it
// counts for faults inside texts and numbers.
std::string ExplainJsonError(std::string_view text, size_t byte);

#endif
