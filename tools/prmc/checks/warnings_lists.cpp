// Warnings about items that the driver does not know, or can't tell from others.
#include "common/choices.h"
#include "common/text.h"
#include "prmc/checks/model_query.h"
#include "prmc/checks/warning_checks.h"
#include "prmc/schema/record_kinds.h"

#include <algorithm>
#include <map>

namespace {

// The driver takes an option with other items for one that is not installed.
void CheckOptionItems(const Model& model, Findings& findings) {
    for (const EntryRow& row : kOptionEntries) {
        const Entry& entry = EntryOf(model, row.name);
        const auto isKnown = [&](const Record& item) {
            return std::any_of(row.specialKeys.begin(), row.specialKeys.end(),
                               [&](const char* key) { return EqualNoCase(key, ItemLabel(item)); });
        };
        if (row.specialKeys.count > 0 && !entry.records.empty()
            && std::none_of(entry.records.begin(), entry.records.end(), isKnown))
            findings.Warning(entry.place, "the driver knows no item of " + Quote(entry.name)
                                              + ", so that whatever is chosen has no effect; "
                                              + Choices(row.specialKeys));
    }
}

// Lists of which the settings store an item's value.
void CheckSameValues(const Model& model, Findings& findings) {
    for (const char* name : {"InTray", "PaperSize", "MediaType", "MediaWeight", "MediaColor", "OutputTray"}) {
        const Entry& entry = EntryOf(model, name);
        std::map<int64_t, std::string> seen;
        for (const Record& item : entry.records) {
            const Value* value = FindValue(entry, item, "value");
            if (value == nullptr)
                continue;
            const auto [first, isNew] = seen.emplace(value->numbers[0], ItemLabel(item));
            if (!isNew)
                findings.Warning(value->place, Quote(ItemLabel(item)) + " has the same value as "
                                                   + Quote(first->second) + ", which is chosen in its place");
        }
    }
}

} // namespace

void CheckLists(const Model& model, bool /*isWhole*/, Findings& findings) {
    CheckOptionItems(model, findings);
    CheckSameValues(model, findings);
}
