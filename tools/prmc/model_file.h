// Reads a model from its file, YAML or binary, with the models that it builds on, and applies the rules.
#ifndef PRMC_MODEL_FILE_H
#define PRMC_MODEL_FILE_H

#include "prmc/model.h"

#include <string>
#include <vector>

// By the file's extension. Throws std::runtime_error for one that is neither .yaml nor .PRM.
bool IsYaml(const std::string& path);

struct ModelFile {
    Model model;
    Findings findings;              // sorted
    std::vector<std::string> files; // the model's and its bases'; a finding's place has the position in it
};

// Throws std::runtime_error when the file can't be read; a base that can't be read is a finding.
ModelFile ReadModelFile(const std::string& path);

#endif
