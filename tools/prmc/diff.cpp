// Compares two models. Entries, items and rows are matched by name; matched values are compared in their YAML
// form.
#include "prmc/diff.h"

#include "common/text.h"
#include "prmc/forms/yaml_writer.h"

#include <map>

namespace {

using Lines = std::vector<std::string>;

std::string NameOf(const Entry& entry) {
    return entry.name;
}
std::string NameOf(const Record& record) {
    return ItemLabel(record);
}
std::string NameOf(const Pair& pair) {
    return pair.name;
}

void DiffText(const std::string& path, const std::string& a, const std::string& b, Lines& lines) {
    if (a != b)
        lines.push_back(path + ": " + (a.empty() ? "(none)" : a) + " -> " + (b.empty() ? "(none)" : b));
}

// Matches the elements of two sequences by name and calls `diff` for each pair. Where a name occurs more than
// once, as machines' may, the elements are matched in their order.
template <typename Element, typename Diff>
void DiffByName(const std::string& path, const char* what, const std::vector<Element>& a,
                const std::vector<Element>& b, Lines& lines, const Diff& diff) {
    const std::string prefix = path.empty() ? "" : path + "/";
    std::multimap<std::string, size_t> unmatched; // name to position in b
    for (size_t i = 0; i < b.size(); ++i)
        unmatched.emplace(FoldCase(NameOf(b[i])), i);
    size_t last = 0;
    bool isSameOrder = true;
    for (const Element& element : a) {
        const auto match = unmatched.find(FoldCase(NameOf(element)));
        if (match == unmatched.end()) {
            lines.push_back(prefix + NameOf(element) + ": only in the first file");
            continue;
        }
        isSameOrder = isSameOrder && match->second >= last;
        last = match->second;
        diff(prefix + NameOf(element), element, b[match->second]);
        unmatched.erase(match);
    }
    for (const Element& element : b) {
        const auto rest = unmatched.find(FoldCase(NameOf(element)));
        if (rest == unmatched.end())
            continue;
        lines.push_back(prefix + NameOf(element) + ": only in the second file");
        unmatched.erase(rest);
    }
    if (!isSameOrder)
        lines.push_back((path.empty() ? "" : path + ": ") + "the " + what + " are in a different order");
}

void DiffPairs(const std::string& path, const Value& a, const Value& b, Lines& lines) {
    DiffByName(path, "rows", a.pairs, b.pairs, lines,
               [&](const std::string& row, const Pair& x, const Pair& y) {
                   DiffText(row, FormatText(x.value), FormatText(y.value), lines);
               });
}

void DiffRecord(const std::string& path, const Kind& kind, const Record& a, const Record& b, Lines& lines) {
    for (size_t i = 0; i < kind.fields.count; ++i) {
        const Field& field = kind.fields[i];
        if (kind.form == Form::kTable)
            DiffPairs(path, a.values[i], b.values[i], lines);
        else if (field.type == FieldType::kPairs)
            DiffPairs(path + "/" + field.name, a.values[i], b.values[i], lines);
        else
            DiffText(path + "/" + field.name, FormatValue(field, a.values[i]),
                     FormatValue(field, b.values[i]), lines);
    }
}

std::string DefaultKey(const Entry& entry) {
    return entry.defaultItem ? FormatText(ItemLabel(entry.records[*entry.defaultItem])) : "";
}

void DiffEntry(const std::string& path, const Entry& a, const Entry& b, Lines& lines) {
    const Kind& kind = *a.row->kind;
    if (kind.form != Form::kList)
        return DiffRecord(path, kind, a.records.front(), b.records.front(), lines);
    DiffText(path + "/default", DefaultKey(a), DefaultKey(b), lines);
    DiffByName(path, "items", a.records, b.records, lines,
               [&](const std::string& item, const Record& x, const Record& y) {
                   DiffRecord(item, kind, x, y, lines);
               });
}

} // namespace

std::vector<std::string> DiffModels(const Model& a, const Model& b) {
    Lines lines;
    DiffByName(
        "", "entries", a.entries, b.entries, lines,
        [&](const std::string& name, const Entry& x, const Entry& y) { DiffEntry(name, x, y, lines); });
    return lines;
}
