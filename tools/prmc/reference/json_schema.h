// A JSON Schema of the model file, for editors and other programs that check or complete YAML.
#ifndef PRMC_REFERENCE_JSON_SCHEMA_H
#define PRMC_REFERENCE_JSON_SCHEMA_H

#include <string>

// Draft 7. Takes names, keys and words in the spelling of the reference only, though prmc ignores their case.
std::string ModelJsonSchema();

#endif
