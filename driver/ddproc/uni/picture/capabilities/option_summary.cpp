// Reduces the option features to the numbers that the printer's picture needs.
#include "picture/capabilities/option_summary.h"

#include "base/keyed_list.h"

namespace {

constexpr size_t kMaxItems = 4;

// The field that a feature determines, and its items in the order of their numbers.
constexpr struct {
    const char* feature;
    int32_t OptionSummary::*field;
    const char* items[kMaxItems];
} kOptions[] = {
    {"OpBody", &OptionSummary::bodyPrinter, {"OpBodyPrinter"}},
    {"OpInTrayUnit", &OptionSummary::inputUnit, {"OpInTrayUnit1"}},
    {"OpOutTrayUnit",
     &OptionSummary::outputUnit,
     {"OpOutTrayUnit1", "OpOutTrayUnit2", "OpOutTrayUnit3", "OpOutTrayUnit4"}},
    {"OpHDD", &OptionSummary::hardDisk, {"EnaOpHDD"}},
    {"OpMailBinKit", &OptionSummary::mailbinKit, {"EnaOpMailBinKit"}},
    {"OpSaddleKit", &OptionSummary::saddleKit, {"EnaSaddleKit"}},
};

int32_t NumberOf(const ItemRecord* item, const char* const (&items)[kMaxItems]) {
    if (item == nullptr)
        return 0;
    for (size_t i = 0; i < kMaxItems && items[i] != nullptr; ++i)
        if (SameText(item->head.key, items[i]))
            return static_cast<int32_t>(i + 1);
    return 0;
}

} // namespace

OptionSummary SummarizeOptions(const FeatureRecord* features, const FeatureSettings* settings) {
    OptionSummary summary = {};
    int32_t position = 0;
    for (const FeatureRecord& feature : Listed(features)) {
        for (const auto& option : kOptions)
            if (SameText(feature.feature.head.key, option.feature))
                summary.*option.field = NumberOf(SelectedItem(features, settings, position), option.items);
        ++position;
    }
    return summary;
}
