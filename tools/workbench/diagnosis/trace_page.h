// The traffic of a query in words: each request of the module with its answers, grouped by what the module
// wanted to know, and what it made of the answers.
#ifndef WORKBENCH_DIAGNOSIS_TRACE_PAGE_H
#define WORKBENCH_DIAGNOSIS_TRACE_PAGE_H

#include "workbench/lib/module_objects.h"
#include "workbench/lib/traffic_trace.h"

// One element for each question in order: its use of the objects, what the driver made of the answers, and
// rows of the traffic. `answers` is the document of the query, which may lack parts; null when it has failed.
// The workbench's own requests are marked.
Document TraceDocument(const std::vector<TracedMessage>& messages, const std::vector<ModuleObject>& objects,
                       const Document& answers);

std::string TraceText(const Document& trace);

#endif
