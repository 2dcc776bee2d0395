// What differs between the contents of two reports: "here" is the model of the page, "there" the other one.
#ifndef WORKBENCH_REPORT_DIFFERENCES_H
#define WORKBENCH_REPORT_DIFFERENCES_H

#include "workbench/lib/document.h"

// A row for each table that differs: `name`, `reordered`: whether common rows are in another order, and
// `rows`: those that differ, each with its `change`. A cell that differs is an object of `here` and `there`.
Document TableDifferences(const Document& here, const Document& there);

// `pairs`: looks or dialogs of both that differ, each with the rows `here` and `there`; `onlyHere` and
// `onlyThere`: the rows that have no counterpart. Only dialogs that the models open are compared.
Document LookDifferences(const Document& here, const Document& there);
Document DialogDifferences(const Document& here, const Document& there);

#endif
