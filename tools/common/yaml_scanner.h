// Finds brackets and quotes that are not closed, and tabs, in YAML.
#ifndef COMMON_YAML_SCANNER_H
#define COMMON_YAML_SCANNER_H

#include "common/findings.h"

#include <optional>
#include <string_view>

// The first fault; nothing when brackets and quotes pair and no line is indented with a tab.
std::optional<Finding> ScanYaml(std::string_view text);

#endif
