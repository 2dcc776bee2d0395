// Compares tables row by row. A row is found in the other table by the first text among its fields; the n-th
// row of the same text by the n-th there.
#include "workbench/report/differences.h"

#include "workbench/lib/json_form.h"
#include "workbench/lib/table_text.h"

#include <algorithm>
#include <map>

namespace {

bool IsSame(const Document& a, const Document& b) {
    return JsonForm(a) == JsonForm(b);
}

// --- Tables

const Document::Field& KeyField(const Document& row) {
    const Document::Object& fields = row.Fields();
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [](const Document::Field& field) { return field.value.IsText(); });
    return found != fields.end() ? *found : fields.front();
}

struct KeyedRow {
    std::string key;
    const Document* row;
};

std::vector<KeyedRow> KeyedRows(const Document& rows) {
    std::map<std::string, int> counts;
    std::vector<KeyedRow> keyed;
    for (const Document& row : rows.Elements()) {
        if (row.Fields().empty())
            continue;
        std::string key = CellText(KeyField(row).value);
        const int number = ++counts[key];
        if (number > 1)
            key += " (" + std::to_string(number) + ")";
        keyed.push_back({key, &row});
    }
    return keyed;
}

const Document* FindRow(const std::vector<KeyedRow>& rows, const std::string& key) {
    for (const KeyedRow& candidate : rows)
        if (candidate.key == key)
            return candidate.row;
    return nullptr;
}

// The row with all its fields, which only one model has.
Document OnlyRow(const KeyedRow& from, const char* change) {
    Document row = {{"row", from.key}, {"change", change}};
    for (const Document::Field& field : from.row->Fields())
        if (field.name != KeyField(*from.row).name)
            row[field.name] = field.value;
    return row;
}

// The fields that differ. The others are null, so that every row has the same fields.
Document ChangedRow(const KeyedRow& here, const Document& there) {
    Document row = {{"row", here.key}, {"change", "differs"}};
    for (const Document::Field& field : here.row->Fields())
        if (field.name != KeyField(*here.row).name)
            row[field.name] = IsSame(field.value, there[field.name])
                                  ? Document()
                                  : Document({{"here", field.value}, {"there", there[field.name]}});
    return row;
}

// The keys that the other table has, too.
std::vector<std::string> CommonKeys(const std::vector<KeyedRow>& rows, const std::vector<KeyedRow>& other) {
    std::vector<std::string> keys;
    for (const KeyedRow& row : rows)
        if (FindRow(other, row.key) != nullptr)
            keys.push_back(row.key);
    return keys;
}

void AddTable(const std::string& name, const Document& here, const Document& there, Document& tables) {
    const std::vector<KeyedRow> rowsHere = KeyedRows(here);
    const std::vector<KeyedRow> rowsThere = KeyedRows(there);
    Document rows = Document::MakeList();
    for (const KeyedRow& row : rowsHere) {
        const Document* other = FindRow(rowsThere, row.key);
        if (other == nullptr)
            rows.Add(OnlyRow(row, "only here"));
        else if (!IsSame(*row.row, *other))
            rows.Add(ChangedRow(row, *other));
    }
    for (const KeyedRow& row : rowsThere)
        if (FindRow(rowsHere, row.key) == nullptr)
            rows.Add(OnlyRow(row, "only there"));
    const bool isReordered = CommonKeys(rowsHere, rowsThere) != CommonKeys(rowsThere, rowsHere);
    if (!rows.Elements().empty() || isReordered)
        tables.Add({{"name", name}, {"reordered", isReordered}, {"rows", std::move(rows)}});
}

const Document& ContentsOf(const std::vector<NamedTable>& tables, const std::string& name) {
    static const Document kNone;
    for (const NamedTable& table : tables)
        if (table.name == name)
            return table.contents;
    return kNone;
}

void AddGroup(const std::string& group, const Document& here, const Document& there, Document& tables) {
    const std::vector<NamedTable> tablesHere = TablesOf(here);
    const std::vector<NamedTable> tablesThere = TablesOf(there);
    for (const NamedTable& table : tablesHere)
        AddTable(group + ": " + table.name, RowsOf(table.contents),
                 RowsOf(ContentsOf(tablesThere, table.name)), tables);
    const auto isHere = [&](const NamedTable& table) {
        return std::any_of(tablesHere.begin(), tablesHere.end(),
                           [&](const NamedTable& own) { return own.name == table.name; });
    };
    for (const NamedTable& table : tablesThere)
        if (!isHere(table))
            AddTable(group + ": " + table.name, {}, RowsOf(table.contents), tables);
}

// --- Pictures

// Pairs the rows of two lists by their keys.
template <typename Key, typename Same>
Document PictureDifferences(const Document& here, const Document& there, const Key& key, const Same& isSame) {
    const auto find = [&](const Document& rows, const std::string& wanted) -> const Document* {
        for (const Document& row : rows.Elements())
            if (key(row) == wanted)
                return &row;
        return nullptr;
    };
    Document differences;
    for (const char* list : {"pairs", "onlyHere", "onlyThere"})
        differences[list] = Document::MakeList();
    for (const Document& row : here.Elements()) {
        const Document* other = find(there, key(row));
        if (other == nullptr)
            differences["onlyHere"].Add(row);
        else if (!isSame(row, *other))
            differences["pairs"].Add({{"here", row}, {"there", *other}});
    }
    for (const Document& row : there.Elements())
        if (find(here, key(row)) == nullptr)
            differences["onlyThere"].Add(row);
    return differences;
}

bool HasMark(const Document& printer, const std::string& source) {
    const Document::List& marks = printer["marks"].Elements();
    return std::any_of(marks.begin(), marks.end(),
                       [&](const Document& mark) { return mark["source"].Text() == source; });
}

// The overlays by the sources that they mark, without marks that the other printer does not have.
std::map<std::string, std::string> OverlaysOf(const Document& printer, const Document& look,
                                              const Document& otherPrinter) {
    std::map<std::string, std::string> overlays;
    for (const Document& row : look["marks"].Elements()) {
        const std::string& source =
            printer["marks"].Elements().at(static_cast<size_t>(row["mark"].Integer()))["source"].Text();
        if (HasMark(otherPrinter, source))
            overlays[source] = row["overlay"].Text();
    }
    return overlays;
}

} // namespace

Document TableDifferences(const Document& here, const Document& there) {
    Document tables = Document::MakeList();
    AddTable("Paper sources and outputs in the picture", here["printer"]["marks"], there["printer"]["marks"],
             tables);
    for (const Document::Field& group : here["groups"].Fields())
        AddGroup(group.name, group.value, there["groups"][group.name], tables);
    return tables;
}

Document LookDifferences(const Document& here, const Document& there) {
    const auto isSame = [&](const Document& a, const Document& b) {
        return a["picture"].Text() == b["picture"].Text()
               && OverlaysOf(here, a, there) == OverlaysOf(there, b, here);
    };
    return PictureDifferences(
        here["looks"], there["looks"], [](const Document& look) { return look["id"].Text(); }, isSame);
}

Document DialogDifferences(const Document& here, const Document& there) {
    const auto opened = [](const Document& dialogs) {
        Document rows = Document::MakeList();
        for (const Document& dialog : dialogs.Elements())
            if (dialog["opens"].Bool())
                rows.Add(dialog);
        return rows;
    };
    // Dialogs of one kind are counterparts, whatever their numbers.
    const auto key = [](const Document& dialog) { return dialog["kind"].Text() + CellText(dialog["dpi"]); };
    const auto isSame = [](const Document& a, const Document& b) {
        return a["picture"].Text() == b["picture"].Text() && IsSame(a["dialog"], b["dialog"]);
    };
    return PictureDifferences(opened(here), opened(there), key, isSame);
}
