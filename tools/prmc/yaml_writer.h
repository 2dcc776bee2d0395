// Model to YAML text, in the form that the reader takes.
#ifndef PRMC_YAML_WRITER_H
#define PRMC_YAML_WRITER_H

#include "prmc/model.h"

#include <string>

// Each item on one line, fields in columns.
std::string WriteYaml(const Model& model);

// A field's value as YAML writes it; empty when it is left out, that is not given or optional and 0.
std::string FormatValue(const Field& field, const Value& value);

// Plain when YAML takes it as it is, else in double quotes.
std::string FormatText(const std::string& text);

#endif
