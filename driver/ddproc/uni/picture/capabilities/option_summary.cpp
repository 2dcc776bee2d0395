// Reduces the option features to the numbers that the printer's picture needs.
#include "picture/capabilities/option_summary.h"

#include "base/keyed_list.h"

namespace {

int32_t NumberOf(const ItemRecord* item, const char* const (&items)[kMaxOptionItems]) {
    if (item == nullptr)
        return 0;
    for (size_t i = 0; i < kMaxOptionItems && items[i] != nullptr; ++i)
        if (SameText(item->head.key, items[i]))
            return static_cast<int32_t>(i + 1);
    return 0;
}

} // namespace

OptionSummary SummarizeOptions(const FeatureRecord* features, const FeatureSettings* settings) {
    OptionSummary summary = {};
    int32_t position = 0;
    for (const FeatureRecord& feature : Listed(features)) {
        for (const auto& option : kSummarizedOptions)
            if (SameText(feature.feature.head.key, option.feature))
                summary.*option.field = NumberOf(SelectedItem(features, settings, position), option.items);
        ++position;
    }
    return summary;
}
