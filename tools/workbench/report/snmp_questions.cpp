// Lists the objects, and the answers that the module derives from their values.
#include "workbench/report/snmp_questions.h"

#include "workbench/lib/text.h"

#include <iterator>

namespace {

// By TELMAR_COMPARE_ and TELMAR_SUPPLY_ constants.
constexpr const char* kComparisons[] = {"exists", "number is", "text is", "object identifier is"};
constexpr const char* kEvaluations[] = {"none", "percentage", "level", "fixed"};

template <size_t N>
std::string NameOf(const char* const (&names)[N], int32_t value) {
    return value >= 0 && static_cast<size_t>(value) < N ? names[value] : std::to_string(value);
}

// Null for an answer that needs no object.
Document ObjectText(const std::string& oid) {
    return oid.empty() ? Document() : Document(oid);
}

Document ModelCheck(const FamilyFiles& family) {
    const ModelCheckInfo& check = *EXPORT(family, MIB_ModelCheckInfo)();
    return {{"enabled", check.enabled != 0},
            {"object", FieldText(check.oid)},
            {"comparison", NameOf(kComparisons, check.comparison)},
            {"expected", FieldText(check.expected)}};
}

// The answers of each option in the order in which they are tried. Without an object it needs no request.
Document OptionQuestions(const FamilyFiles& family) {
    const OptionReqInfo& table = *EXPORT(family, MIB_OptionReqInfo)();
    Document rows = Document::MakeList();
    for (int32_t i = 0; i < table.count; ++i)
        for (int32_t j = 0; j < table.options[i].valueCount; ++j) {
            const OptionValueRecord& value = table.options[i].values[j];
            const std::string oid = FieldText(value.oid) + FieldText(value.suffix);
            rows.Add(
                {{"option", FieldText(table.options[i].key)},
                 {"answer", FieldText(value.name)},
                 {"object", ObjectText(oid)},
                 {"comparison", oid.empty() ? Document() : Document(NameOf(kComparisons, value.comparison))},
                 {"expected", FieldText(value.expected)}});
        }
    return rows;
}

Document SupplyQuestions(const FamilyFiles& family) {
    const MrkSupReqInfo& table = *EXPORT(family, MIB_MrkSupReqInfo)();
    Document rows = Document::MakeList();
    for (int32_t i = 0; i + 1 < table.count; ++i) { // the last record closes the list
        const MrkSupItem& item = table.items[i];
        const std::string suffix = FieldText(item.suffix);
        const auto object = [&](const std::string& oid) {
            return suffix.empty() ? Document() : Document(oid + suffix);
        };
        rows.Add({{"supply", FieldText(item.name)},
                  {"evaluation", NameOf(kEvaluations, item.kind)},
                  {"levelObject", object(FieldText(table.levelOid))},
                  {"capacityObject", object(FieldText(table.capacityOid))}});
    }
    return rows;
}

// The lists of stored overlays or profiles: an object belongs to a list when its selector has one of the
// values.
constexpr const char* kOverlayListNames[] = {"Overlays 0", "Overlays 1"};
constexpr const char* kProfileListNames[] = {"RGB sources", "Simulations", "Destinations"};

template <typename Table, size_t N>
void AddStoredLists(const Table& table, const char* const (&names)[N], Document& rows) {
    static_assert(N == std::extent_v<decltype(Table::selectors)>);
    for (size_t i = 0; i < N; ++i) {
        const SelectorRecord& selector = table.selectors[i];
        Document values = Document::MakeList();
        for (int32_t j = 0; j < selector.valueCount; ++j)
            values.Add(selector.values[j]);
        rows.Add({{"list", names[i]},
                  {"selector", FieldText(selector.oid)},
                  {"values", std::move(values)},
                  {"firstObject", FieldText(table.firstOid)},
                  {"secondObject", FieldText(table.secondOid)},
                  {"storageObject", FieldText(table.storageCodeOid)},
                  {"defaultStorage", FieldText(table.defaultStorage)}});
    }
}

Document StoredQuestions(const FamilyFiles& family) {
    Document rows = Document::MakeList();
    AddStoredLists(*EXPORT(family, MIB_OvlReqInfo)(), kOverlayListNames, rows);
    AddStoredLists(*EXPORT(family, MIB_CMProfReqInfo)(), kProfileListNames, rows);
    return rows;
}

} // namespace

Document SnmpQuestions(const FamilyFiles& family) {
    return {{"modelCheck", ModelCheck(family)},
            {"optionQuestions", OptionQuestions(family)},
            {"supplyQuestions", SupplyQuestions(family)},
            {"storedOverlaysAndProfiles", StoredQuestions(family)}};
}
