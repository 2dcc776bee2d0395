// Comparison of two models: each difference is one line with entry, item, field and both values.
#include "engine_support.h"

#include "prmc/diff.h"

#include <gtest/gtest.h>

namespace {

TEST(Diff, EveryDifferenceIsNamed) {
    Lines messages;
    const Model first = FromYaml(R"(
Copies: {min: 1, max: 99, default: 1}
Country: {value: 1}
FeatureSetting: {Poster: Enable, Chapter: Enable, Trim: Enable}
MachineInfo: {items: [{name: M, details: {Engine: a, Scanner: s}}, {name: M}]}
MediaColor: {default: W, items: [{key: W, name: White, value: 3, text: T}, {key: X, name: X, value: 4},
                                 {key: Y, name: Y, value: 5}]}
PaperSize: {default: P, items: [{key: P, name: n, secondName: s, value: 9, width: 1, length: 1}]}
)",
                                 messages);
    const Model second = FromYaml(R"(
Copies: {min: 1, max: 999, default: 1}
FeatureSetting: {Chapter: Enable, Poster: Disable, Overlay: SoftOverlay}
MachineInfo: {items: [{name: M, details: {Engine: b c}}]}
MediaColor: {default: Y, items: [{key: Y, name: Y, value: 5, text: ""}, {key: w, name: White, value: 3},
                                 {key: Z, name: Z, value: 6}]}
Staple: {default: S, items: [{key: S, name: S, value: 0}]}
PaperSize: {default: P, items: [{key: P, name: n, secondName: s, value: 9, width: 1, length: 1,
                                 margins: [0, 0, 0, 0], values: [0, 0]}]}
)",
                                  messages);
    EXPECT_EQ(messages, Lines{});
    const Lines wanted = {
        "Copies/max: 99 -> 999",
        "Country: only in the first file",
        "FeatureSetting/Poster: Enable -> Disable",
        "FeatureSetting/Trim: only in the first file",
        "FeatureSetting/Overlay: only in the second file",
        "FeatureSetting: the rows are in a different order",
        "MachineInfo/M/details/Engine: a -> b c",
        "MachineInfo/M/details/Scanner: only in the first file",
        "MachineInfo/M: only in the first file",
        "MediaColor/default: W -> Y",
        "MediaColor/W/key: W -> w",
        "MediaColor/W/text: T -> (none)",
        "MediaColor/X: only in the first file",
        "MediaColor/Z: only in the second file",
        "MediaColor: the items are in a different order",
        "PaperSize/P/margins: (none) -> [0, 0, 0, 0]",
        "Staple: only in the second file",
    };
    EXPECT_EQ(DiffModels(first, second), wanted);
}

} // namespace
