// The options of a printer in words: their names, and what is installed.
#ifndef WORKBENCH_LIB_OPTION_WORDS_H
#define WORKBENCH_LIB_OPTION_WORDS_H

#include "workbench/lib/localized_text.h"
#include "workbench/lib/option_features.h"
#include "workbench/lib/printer_queries.h"

// What an option is called for the user; the key itself when it has no other name.
std::string OptionName(const char* key, LANGID language = kEnglish);

// What a printer's answer to the query for an option means, in English: the model's name of the item, or
// whether the option is installed, or the answer itself. An empty answer: the option is not reported.
std::string OptionSetting(const OptionFeatures& options, const OptionRequestItem& answer);

// The answers row by row, as OptionAnswersDocument has them, with the name of the option and its setting.
Document OptionsInWords(const OptionFeatures& options, const OptionAnswers& answers);

// Name and setting of such rows only, for people.
Document OptionRows(const Document& answers);

#endif
