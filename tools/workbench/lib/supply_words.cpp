// Names the supplies, words their levels and sorts them.
#include "workbench/lib/supply_words.h"

#include "workbench/lib/printer_text_ids.h"
#include "workbench/lib/text.h"

#include <algorithm>

namespace {

constexpr struct {
    const char* key;
    UINT name;
} kSupplyNames[] = {
    {"Consumable2", PRINTER_TEXT_CYAN},       {"Consumable3", PRINTER_TEXT_MAGENTA},
    {"Consumable4", PRINTER_TEXT_YELLOW},     {"Consumable5", PRINTER_TEXT_BLACK},
    {"Consumable11", PRINTER_TEXT_WASTE_BOX},
};

constexpr struct {
    int32_t level;
    UINT text;
    Need need;
} kLevels[] = {
    {TELMAR_LEVEL_EMPTY, PRINTER_TEXT_LEVEL_EMPTY, Need::kNow},
    {TELMAR_LEVEL_FULL, PRINTER_TEXT_LEVEL_FULL, Need::kNow},
    {TELMAR_LEVEL_NEARLY_EMPTY, PRINTER_TEXT_LEVEL_NEARLY_EMPTY, Need::kSoon},
    {TELMAR_LEVEL_NEARLY_FULL, PRINTER_TEXT_LEVEL_NEARLY_FULL, Need::kSoon},
    {TELMAR_LEVEL_IN_ORDER, PRINTER_TEXT_LEVEL_IN_ORDER, Need::kLater},
};

struct Level {
    std::string text;
    Need need;
};

Level LevelOf(const MrkSupRequestItem& supply, LANGID language) {
    const std::string number = std::to_string(supply.value);
    if (supply.state == TELMAR_STATE_PERCENT) {
        if (supply.value == 0)
            return {TextIn(language, PRINTER_TEXT_PERCENT_EMPTY, {number}), Need::kNow};
        return supply.value < kLowPercent
                   ? Level{TextIn(language, PRINTER_TEXT_PERCENT_LOW, {number}), Need::kSoon}
                   : Level{TextIn(language, PRINTER_TEXT_PERCENT, {number}), Need::kLater};
    }
    for (const auto& row : kLevels)
        if (supply.state == TELMAR_STATE_LEVEL && supply.value == row.level)
            return {TextIn(language, row.text), row.need};
    const bool isReported = supply.state != TELMAR_STATE_UNKNOWN;
    return {TextIn(language, isReported ? PRINTER_TEXT_LEVEL_UNKNOWN : PRINTER_TEXT_LEVEL_NOT_REPORTED),
            Need::kUnknown};
}

const MrkSupRequestItem* FindSupply(const Supplies& supplies, const char* key) {
    for (const MrkSupRequestItem& supply : supplies)
        if (SameText(supply.name, key))
            return &supply;
    return nullptr;
}

// Sorts supplies of the same need: low ones by level, those in words last, all others as they come.
int Urgency(const ShownSupply& supply) {
    if (supply.need > Need::kSoon)
        return 0;
    return supply.answer.state == TELMAR_STATE_PERCENT ? supply.answer.value : kLowPercent;
}

} // namespace

std::string SupplyName(const char* key, LANGID language) {
    for (const auto& row : kSupplyNames)
        if (SameText(row.key, key))
            return TextIn(language, row.name);
    return {};
}

std::string SupplyLevel(const MrkSupRequestItem& supply, LANGID language) {
    return LevelOf(supply, language).text;
}

std::vector<ShownSupply> ShownSupplies(const Supplies& supplies, const Supplies& before, LANGID language) {
    std::vector<ShownSupply> shown;
    for (const auto& row : kSupplyNames) {
        const MrkSupRequestItem* supply = FindSupply(supplies, row.key);
        if (supply == nullptr)
            continue;
        Level level = LevelOf(*supply, language);
        const MrkSupRequestItem* previous = FindSupply(before, row.key);
        if (previous != nullptr && LevelOf(*previous, language).text != level.text)
            level.text = TextIn(language, PRINTER_TEXT_WAS, {level.text, LevelOf(*previous, language).text});
        shown.push_back({TextIn(language, row.name), level.text, level.need, *supply});
    }
    std::stable_sort(shown.begin(), shown.end(), [](const ShownSupply& a, const ShownSupply& b) {
        return std::pair(a.need, Urgency(a)) < std::pair(b.need, Urgency(b));
    });
    return shown;
}
