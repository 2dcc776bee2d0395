// Model to YAML text that yaml_reader.h reads back.
#ifndef PRMC_FORMS_YAML_WRITER_H
#define PRMC_FORMS_YAML_WRITER_H

#include "prmc/model.h"

#include <string>

// One line for each item, with aligned columns.
std::string WriteYaml(const Model& model);

// A field's value in YAML; empty when the field is left out: not given, or optional and 0.
std::string FormatValue(const Field& field, const Value& value);

// In double quotes unless YAML reads the plain text as it is.
std::string FormatText(const std::string& text);

#endif
