// Documents as tables of a web page.
#ifndef WORKBENCH_LIB_HTML_FORM_H
#define WORKBENCH_LIB_HTML_FORM_H

#include "workbench/lib/document.h"

// The text (UTF-8) as the content of an element or of an attribute in double quotes.
std::string HtmlText(const std::string& text);

// A table that opens on demand, below a heading of level 3: rows, or an object as names and values.
struct HtmlTableStyle {
    bool isOpen = false;
    std::string (*cell)(const Document& value) = nullptr; // the content of a cell; null: the escaped text
};
std::string HtmlTable(const std::string& name, const Document& contents, const HtmlTableStyle& style = {});

// The tables of a document, then the names of those without contents.
std::string HtmlForm(const Document& document);

#endif
