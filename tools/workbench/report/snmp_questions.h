// What the module asks printers by SNMP: the tables that its queries follow, as it exports them.
#ifndef WORKBENCH_REPORT_SNMP_QUESTIONS_H
#define WORKBENCH_REPORT_SNMP_QUESTIONS_H

#include "workbench/lib/family_files.h"

Document SnmpQuestions(const FamilyFiles& family);

#endif
