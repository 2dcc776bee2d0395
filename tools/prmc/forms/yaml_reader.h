// YAML text to model. Reports every structural error: unknown names, wrong types, missing fields. The rules
// on the contents are in rules.h.
#ifndef PRMC_FORMS_YAML_READER_H
#define PRMC_FORMS_YAML_READER_H

#include "prmc/model.h"

#include <functional>
#include <string>

// Reads the model that another one builds on: `name` as written in `base: NAME`, at `place`. It has no
// entries when it can't be read, which is reported.
using BaseReader = std::function<Model(const std::string& name, Place place)>;

// Returns what could be read even when there are errors, so that the rules can report theirs too. Without a
// reader, a base is an error.
Model ReadYaml(const std::string& text, Findings& findings, const BaseReader& readBase = {});

#endif
