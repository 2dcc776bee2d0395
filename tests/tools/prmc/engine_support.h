// Helpers that run prmc's readers and writers, and a small model with a known binary layout.
#ifndef TESTS_PRMC_ENGINE_SUPPORT_H
#define TESTS_PRMC_ENGINE_SUPPORT_H

#include "prmc/model.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

using Lines = std::vector<std::string>;

// One entry of each form, as prmc dumps it. layout_test.cpp has its bytes.
extern const char* const kSmallModel;

// Reads a model and applies the rules. Appends each finding as "LINE:COLUMN: MESSAGE", warnings with "warning: ".
Model FromYaml(const std::string& text, Lines& messages);

// The same for a binary file, without the places.
Model FromPrm(const std::string& bytes, Lines& messages);

// The binary file of a model without errors.
std::string Build(const std::string& yaml);

// 32-bit numbers, little-endian.
std::string Words(std::initializer_list<uint32_t> words);

#endif
