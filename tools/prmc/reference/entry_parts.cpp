// Derives the parts of an entry's description from the schema and the driver's tables.
#include "prmc/reference/entry_parts.h"

#include "common/color_dialogs.h"
#include "common/text.h"
#include "paramdata/feature_switches.h"

#include <algorithm>
#include <iterator>

namespace {

// The example of an item, with a key that the driver knows.
std::string ExampleItem(const EntryRow& row) {
    std::string item = row.example ? row.example : row.kind->example;
    constexpr std::string_view kBeforeKey = "{key: ";
    if (!row.example && row.keys.count > 0)
        item.replace(kBeforeKey.size(), item.find(',') - kBeforeKey.size(), row.keys[0]);
    return item;
}

std::string KeyIn(const std::string& item) {
    const size_t at = item.find(' ') + 1;
    return item.substr(at, item.find(',') - at);
}

// Each line with this before it.
std::string Indented(const std::string& indent, const std::string& lines) {
    std::string text;
    for (size_t at = 0; at < lines.size();) {
        const size_t end = std::min(lines.find('\n', at), lines.size());
        text += indent + lines.substr(at, end - at) + "\n";
        at = end + 1;
    }
    return text;
}

// Which colour dialog opens, by the switch's type.
std::string ColorDialogUse() {
    std::string use = " The user-interface module opens one of the colour dialogs:";
    for (size_t type = 1; type < std::size(kColorDialogsByType); ++type)
        use += " TYPE" + std::to_string(type) + ": " + std::to_string(kColorDialogsByType[type].id) + " ("
               + kColorDialogsByType[type].contents + ");";
    return use + " another type, or none: " + std::to_string(kColorDialogsByType[0].id) + " ("
           + kColorDialogsByType[0].contents + ").";
}

std::vector<TableRow> SwitchRows() {
    std::vector<TableRow> rows;
    for (const FeatureSwitchRow& feature : kFeatureSwitches) {
        const auto isSame = [&](const TableRow& row) { return row.name == feature.name; };
        if (std::any_of(rows.begin(), rows.end(), isSame))
            continue;
        TableRow row{feature.name, {}, ""};
        if (feature.enablingValue)
            row.value.words = {feature.enablingValue, "Disable"};
        else
            row.value.maxType = kMaxSwitchType;
        for (const SwitchUse& use : UsedSwitches())
            if (use.position == static_cast<size_t>(&feature - kFeatureSwitches))
                row.meaning = use.use + (use.position == kSwitchColorSetting ? ColorDialogUse() : "");
        rows.push_back(row);
    }
    return rows;
}

} // namespace

std::string SummaryOf(const EntryRow& row) {
    const std::string use = row.use;
    const size_t end = use.find(". ");
    return end == std::string::npos ? use : use.substr(0, end + 1);
}

std::string UseOf(const EntryRow& row) {
    for (const EntryGroup& group : EntryGroups())
        for (const EntryRow& member : group.entries)
            if (std::string_view(member.name) == row.name && group.note[0] != 0)
                return std::string(row.use) + " " + group.note;
    return row.use;
}

std::string AbsenceOf(const EntryRow& row) {
    std::string text = row.absence;
    for (const PaperSourceRow& source : row.bins)
        text += (&source == row.bins.begin() ? std::string(" These are ") : std::string(", ")) + source.key
                + " " + std::to_string(source.bin);
    if (row.bins.count > 0)
        text += ".";
    return text;
}

std::string ExampleOf(const EntryRow& row) {
    const std::string name = row.name;
    const std::string body = ExampleItem(row);
    switch (row.kind->form) {
    case Form::kList:
        return name + ":\n" + (row.defaultNeeded ? "  default: " + KeyIn(body) + "\n" : "") + "  items:\n"
               + Indented("    - ", body);
    case Form::kTable:
        return name + ":\n" + Indented("  ", body);
    default:
        return name + ": " + body + "\n";
    }
}

std::vector<TableRow> TableRowsOf(const EntryRow& row) {
    if (row.kind->form != Form::kTable)
        return {};
    if (row.facts.count == 0)
        return SwitchRows();
    std::vector<TableRow> rows;
    for (const FactRow& fact : row.facts)
        rows.push_back({fact.name, {Texts(fact.words), 0, fact.numbers}, row.rowMeanings[rows.size()]});
    return rows;
}

size_t MaxCharacters(const EntryRow& row, const Field& field) {
    switch (field.type) {
    case FieldType::kKey:
        return kMaxKeyChars;
    case FieldType::kName:
        return field.count > 1 ? field.count : row.nameChars;
    default:
        return field.count - 1; // and the terminator
    }
}

std::vector<std::string> Texts(Rows<const char*> rows) {
    return {rows.begin(), rows.end()};
}
