// What a comparison names: entry, item and field, and both values.
#include "engine_support.h"

#include "prmc/diff.h"

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string>;

Lines Diff(const std::string& a, const std::string& b) {
    Lines messages;
    const Model first = FromYaml(a, messages);
    const Model second = FromYaml(b, messages);
    EXPECT_EQ(messages, Lines{});
    return DiffModels(first, second);
}

TEST(Diff, NamesEveryDifference) {
    const Lines lines = Diff(R"(
Copies: {min: 1, max: 99, default: 1}
Country: {value: 1}
FeatureSetting: {Poster: Enable, Chapter: Enable, Trim: Enable}
MachineInfo:
  items:
    - {name: M, details: {Engine: a, Scanner: s}}
    - {name: M}
MediaColor:
  default: W
  items:
    - {key: W, name: White, value: 3, text: T}
    - {key: X, name: X, value: 4}
    - {key: Y, name: Y, value: 5}
)",
                             R"(
Copies: {min: 1, max: 999, default: 1}
FeatureSetting: {Chapter: Enable, Poster: Disable, Overlay: SoftOverlay}
MachineInfo:
  items:
    - {name: M, details: {Engine: b c}}
MediaColor:
  default: Y
  items:
    - {key: Y, name: Y, value: 5, text: ""}
    - {key: w, name: White, value: 3}
    - {key: Z, name: Z, value: 6}
Staple: {default: S, items: [{key: S, name: S, value: 0}]}
)");
    const Lines wanted = {
        "Copies/max: 99 -> 999",
        "Country: only in the first",
        "FeatureSetting/Poster: Enable -> Disable",
        "FeatureSetting/Trim: only in the first",
        "FeatureSetting/Overlay: only in the second",
        "FeatureSetting: the rows are in another order",
        "MachineInfo/M/details/Engine: a -> b c",
        "MachineInfo/M/details/Scanner: only in the first",
        "MachineInfo/M: only in the first",
        "MediaColor/default: W -> Y",
        "MediaColor/W/key: W -> w",
        "MediaColor/W/text: T -> (none)",
        "MediaColor/X: only in the first",
        "MediaColor/Z: only in the second",
        "MediaColor: the items are in another order",
        "Staple: only in the second",
    };
    EXPECT_EQ(lines, wanted);
}

TEST(Diff, FindsSetsThatAreGivenAsZeros) {
    const std::string paper =
        "PaperSize: {default: P, items: [{key: P, name: n, secondName: s, value: 9, width: 1, length: 1";
    EXPECT_EQ(Diff(paper + "}]}", paper + ", margins: [0, 0, 0, 0], values: [0, 0]}]}"),
              Lines{"PaperSize/P/margins: (none) -> [0, 0, 0, 0]"});
}

} // namespace
