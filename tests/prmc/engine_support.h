// Short ways through prmc's engines for its tests, and the small model whose file layout is known byte by
// byte.
#ifndef TESTS_PRMC_ENGINE_SUPPORT_H
#define TESTS_PRMC_ENGINE_SUPPORT_H

#include "prmc/model.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

// One entry of each form. Where its blocks lie in the file is worked out in layout_test.cpp.
extern const char* const kSmallModel;

// Reads and applies the rules; every finding as "LINE:COLUMN: MESSAGE", notes with "note: ".
Model FromYaml(const std::string& text, std::vector<std::string>& messages);

// The same for a binary file; findings without their places.
Model FromPrm(const std::string& bytes, std::vector<std::string>& messages);

// Binary file of a model that must have no faults.
std::string Build(const std::string& yaml);

// Numbers of the file, 32 bits each.
std::string Words(std::initializer_list<uint32_t> words);

#endif
