// Computes a 64-bit FNV-1a hash for each item of the model's lists and adds them up.
#include "workbench/property_sheet/model_digest.h"

#include "workbench/commands/commands.h"

namespace {

constexpr uint64_t kFnvStart = 0xcbf29ce484222325;
constexpr uint64_t kFnvPrime = 0x100000001b3;

uint64_t HashOf(const std::string& text) {
    uint64_t hash = kFnvStart;
    for (const char c : text)
        hash = (hash ^ static_cast<uint8_t>(c)) * kFnvPrime;
    return hash;
}

uint64_t SumOf(const Document& lists) {
    uint64_t sum = 0;
    for (const Document::Field& list : lists.Fields())
        for (const Document& item : list.value.Elements())
            sum += HashOf(list.name + '\n' + item["key"].Text() + '\n'
                          + std::to_string(item["value"].Integer()));
    return sum;
}

} // namespace

std::string ModelDigest(const FamilyFiles& family) {
    const Document texts = ShowTexts(family);
    const uint64_t sum = SumOf(Describe(family)["lists"]) + SumOf(texts["colorLists"])
                         + SumOf(texts["destinations"]) + SumOf(texts["mediaTypeLists"]);
    char digits[17];
    snprintf(digits, sizeof(digits), "%016llx", static_cast<unsigned long long>(sum));
    return digits;
}
