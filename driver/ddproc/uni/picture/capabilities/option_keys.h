// The options that the printer's picture shows, and the keys of their items. The module and the compiler of
// parameter data files both take them from here.
#ifndef PICTURE_CAPABILITIES_OPTION_KEYS_H
#define PICTURE_CAPABILITIES_OPTION_KEYS_H

#include <cstddef>
#include <cstdint>

// Each field is the number of the selected unit, counted from 1; 0 when there is none.
struct OptionSummary {
    int32_t bodyPrinter;
    int32_t inputUnit;
    int32_t outputUnit;
    int32_t hardDisk;
    int32_t mailbinKit;
    int32_t saddleKit;
};

// The field that a feature determines, and the feature's items in the order of their numbers.
constexpr size_t kMaxOptionItems = 4;
struct SummarizedOption {
    const char* feature;
    int32_t OptionSummary::*field;
    const char* items[kMaxOptionItems];
};
inline constexpr SummarizedOption kSummarizedOptions[] = {
    // clang-format off
    {"OpBody",        &OptionSummary::bodyPrinter, {"OpBodyPrinter"}},
    {"OpInTrayUnit",  &OptionSummary::inputUnit,   {"OpInTrayUnit1"}},
    {"OpOutTrayUnit", &OptionSummary::outputUnit,  {"OpOutTrayUnit1", "OpOutTrayUnit2", "OpOutTrayUnit3", "OpOutTrayUnit4"}},
    {"OpHDD",         &OptionSummary::hardDisk,    {"EnaOpHDD"}},
    {"OpMailBinKit",  &OptionSummary::mailbinKit,  {"EnaOpMailBinKit"}},
    {"OpSaddleKit",   &OptionSummary::saddleKit,   {"EnaSaddleKit"}},
    // clang-format on
};

#endif
