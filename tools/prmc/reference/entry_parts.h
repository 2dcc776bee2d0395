// Parts of an entry's description that all forms of the reference share: summary, example, rows, limits.
#ifndef PRMC_REFERENCE_ENTRY_PARTS_H
#define PRMC_REFERENCE_ENTRY_PARTS_H

#include "prmc/schema/schema.h"

#include <string>
#include <vector>

// The first sentence of what the driver does with the entry.
std::string SummaryOf(const EntryRow& row);

// What the driver does with the entry, and the note on its group.
std::string UseOf(const EntryRow& row);

// What the driver does without the entry.
std::string AbsenceOf(const EntryRow& row);

// The entry as it may be in a model, without errors; ends in a line feed.
std::string ExampleOf(const EntryRow& row);

// What a value may be: one of the words, a number, or a text with some numbers.
struct RowValue {
    std::vector<std::string> words;
    unsigned maxType = 0; // TYPE1 to TYPEn; 0: not of this kind
    size_t numbers = 0;
};

// A row that a name/value table may have.
struct TableRow {
    std::string name;
    RowValue value;
    std::string meaning; // empty: for the generic modules alone
};

// In the order of the driver's table, each name once. Empty when the entry is no name/value table.
std::vector<TableRow> TableRowsOf(const EntryRow& row);

// The most characters that a text may have.
size_t MaxCharacters(const EntryRow& row, const Field& field);

// The keys as texts.
std::vector<std::string> Texts(Rows<const char*> rows);

#endif
