// The page of a report: one HTML file without outside references.
#ifndef WORKBENCH_REPORT_PAGE_H
#define WORKBENCH_REPORT_PAGE_H

#include "workbench/lib/document.h"

struct PageContents {
    Document model;    // see GatherContents
    Document findings; // of the model check: a list of rows; null: none was given
    Document other;    // the contents of the model to compare with; null: none was given
};

std::string MakePage(const PageContents& page);

#endif
