// What is wrong with a text that yaml-cpp refuses, in the words of a person who writes such files.
#ifndef COMMON_YAML_FAULTS_H
#define COMMON_YAML_FAULTS_H

#include "common/findings.h"

#include <string>
#include <string_view>
#include <yaml-cpp/exceptions.h>

// The error to report for this one of the library. A bracket or a quote that is not closed is reported where
// it opens; the library notices it only later.
Finding ExplainYamlError(std::string_view text, const YAML::Exception& error);

// What to do about a text that starts with a character that YAML gives a meaning.
std::string NeedsQuotes(char first);

Place PlaceOf(const YAML::Mark& mark);

#endif
