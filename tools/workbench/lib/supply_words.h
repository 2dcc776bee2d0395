// The supplies of a printer in words: names, levels, and which of them need attention.
#ifndef WORKBENCH_LIB_SUPPLY_WORDS_H
#define WORKBENCH_LIB_SUPPLY_WORDS_H

#include "workbench/lib/localized_text.h"
#include "workbench/lib/printer_queries.h"

constexpr int kLowPercent = 10; // below this a supply or a tray is low

enum class Need { kNow, kSoon, kLater, kUnknown };

// What a supply is called for the user. Empty for those of the module's list that no printer is asked about.
std::string SupplyName(const char* key, LANGID language = kEnglish);

// The level of a supply, such as "71 %" or "nearly full".
std::string SupplyLevel(const MrkSupRequestItem& supply, LANGID language = kEnglish);

struct ShownSupply {
    std::string name;
    std::string level;
    Need need;
    MrkSupRequestItem answer;
};

// Those that have a name, the most urgent first. What has changed since `before`, which may be empty, is
// marked with its previous level.
std::vector<ShownSupply> ShownSupplies(const Supplies& supplies, const Supplies& before,
                                       LANGID language = UserLanguage());

#endif
