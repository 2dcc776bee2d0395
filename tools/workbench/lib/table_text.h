// Documents as tables, the same in every form: the titles, which columns there are, and the text of a cell.
#ifndef WORKBENCH_LIB_TABLE_TEXT_H
#define WORKBENCH_LIB_TABLE_TEXT_H

#include "workbench/lib/document.h"

// One table of a document: rows; an object, whose fields are names and values; or null, when there is none.
struct NamedTable {
    std::string name;
    Document contents;
};

// The tables of a document in its order, those in an object of tables in place of it.
std::vector<NamedTable> TablesOf(const Document& document);

// Whether the table has any row.
bool HasContents(const NamedTable& table);

// The rows of a table. Names and values become rows of two fields, "name" and "value".
Document RowsOf(const Document& contents);

// "paperSizes" as "Paper sizes". Names that begin with a capital letter are the driver's and stay as they
// are.
std::string Title(const std::string& name);

// The names of the fields that have a text in any of the rows.
std::vector<std::string> ColumnsOf(const Document& rows);

// Whether the text is empty or consists of blanks.
bool IsBlank(const std::string& text);

// The value as one line of text. Long lists of numbers are only counted.
std::string CellText(const Document& value);

#endif
