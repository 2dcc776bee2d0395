// Identifiers of the page's resources. Also included by the resource script.
#ifndef WORKBENCH_REPORT_PAGE_IDS_H
#define WORKBENCH_REPORT_PAGE_IDS_H

#define PAGE_HTML 201
#define PAGE_CSS  202
#define PAGE_JS   203

#endif
