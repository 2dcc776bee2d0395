// Writes a model as YAML.
#include "prmc/forms/yaml_writer.h"

#include "common/text.h"

#include <algorithm>
#include <cstring>

namespace {

bool IsPlain(const std::string& text) {
    const auto isAlnum = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    };
    const auto fits = [&](char c) { return isAlnum(c) || std::strchr("_.-+/() ", c); };
    return !text.empty() && (isAlnum(text.front()) || text.front() == '_') && text.back() != ' '
           && text.find('\0') == std::string::npos && std::all_of(text.begin(), text.end(), fits)
           && !EqualNoCase(text, "null");
}

std::string FormatPairs(const std::vector<Pair>& pairs) {
    std::string line;
    for (const Pair& pair : pairs)
        line += (line.empty() ? "{" : ", ") + FormatText(pair.name) + ": " + FormatText(pair.value);
    return line.empty() ? "{}" : line + "}";
}

std::string FormatNumbers(const std::vector<int64_t>& numbers) {
    std::string line;
    for (const int64_t number : numbers)
        line += (line.empty() ? "" : ", ") + std::to_string(number);
    return numbers.size() == 1 ? line : "[" + line + "]";
}

size_t CountCharacters(const std::string& text) {
    return static_cast<size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

// "FIELD: VALUE" for each field; empty for a field that is left out.
std::vector<std::string> Cells(const Kind& kind, const Record& record) {
    std::vector<std::string> cells;
    for (size_t i = 0; i < kind.fields.count; ++i) {
        const std::string value = FormatValue(kind.fields[i], record.values[i]);
        cells.push_back(value.empty() ? "" : std::string(kind.fields[i].name) + ": " + value);
    }
    return cells;
}

// "{...}", with every cell but the last padded to its column's width.
std::string FormatRow(const std::vector<std::string>& cells, const std::vector<size_t>& widths) {
    std::string row;
    size_t due = 0; // spaces before the next cell
    for (size_t i = 0; i < cells.size(); ++i) {
        const size_t length = CountCharacters(cells[i]);
        if (cells[i].empty()) {
            due += widths[i] ? widths[i] + 2 : 0;
            continue;
        }
        if (!row.empty())
            row += ", ";
        row += std::string(due, ' ') + cells[i];
        due = widths[i] - length;
    }
    return "{" + row + "}";
}

// One row for each record, with aligned columns.
std::vector<std::string> FormatRows(const Kind& kind, const std::vector<Record>& records) {
    std::vector<std::vector<std::string>> cells;
    std::vector<size_t> widths(kind.fields.count);
    for (const Record& record : records) {
        cells.push_back(Cells(kind, record));
        for (size_t i = 0; i < widths.size(); ++i)
            widths[i] = std::max(widths[i], CountCharacters(cells.back()[i]));
    }
    std::vector<std::string> rows(cells.size());
    std::transform(cells.begin(), cells.end(), rows.begin(),
                   [&](const std::vector<std::string>& row) { return FormatRow(row, widths); });
    return rows;
}

std::string FormatEntry(const Entry& entry) {
    const Kind& kind = *entry.row->kind;
    std::string text = FormatText(entry.name) + ":";
    if (kind.form == Form::kTable) {
        const std::vector<Pair>& pairs = entry.records.front().values[0].pairs;
        text += pairs.empty() ? " {}\n" : "\n";
        for (const Pair& pair : pairs)
            text += "  " + FormatText(pair.name) + ": " + FormatText(pair.value) + "\n";
        return text;
    }
    const std::vector<std::string> rows = FormatRows(kind, entry.records);
    if (kind.form != Form::kList)
        return text + " " + rows.front() + "\n";
    text += "\n";
    if (entry.defaultItem)
        text += "  default: " + FormatText(ItemLabel(entry.records[*entry.defaultItem])) + "\n";
    text += rows.empty() ? "  items: []\n" : "  items:\n";
    for (const std::string& row : rows)
        text += "    - " + row + "\n";
    return text;
}

} // namespace

std::string FormatText(const std::string& text) {
    if (IsPlain(text))
        return text;
    std::string quoted = "\"";
    for (const char c : text) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
            quoted += HexEscape(c);
        else
            quoted += c == '"' || c == '\\' ? std::string{'\\', c} : std::string{c};
    }
    return quoted + "\"";
}

std::string FormatValue(const Field& field, const Value& value) {
    if (!value.given)
        return "";
    const bool mayBeLeftOut = !field.required && !(field.type == FieldType::kNumbers && field.link != 0);
    switch (field.type) {
    case FieldType::kNumbers: {
        const bool isZero =
            std::all_of(value.numbers.begin(), value.numbers.end(), [](int64_t n) { return n == 0; });
        return mayBeLeftOut && isZero ? "" : FormatNumbers(value.numbers);
    }
    case FieldType::kPairs:
        return mayBeLeftOut && value.pairs.empty() ? "" : FormatPairs(value.pairs);
    case FieldType::kText:
        return mayBeLeftOut && value.text.empty() ? "" : FormatText(value.text);
    default: // a key or a display name: empty is not the same as missing
        return FormatText(value.text);
    }
}

std::string WriteYaml(const Model& model) {
    std::string text;
    for (const Entry& entry : model.entries)
        text += (text.empty() ? "" : "\n") + FormatEntry(entry);
    return text;
}
