// The page of a diagnosis: as a document, and as text that fits into a mail.
#ifndef WORKBENCH_DIAGNOSIS_PAGE_H
#define WORKBENCH_DIAGNOSIS_PAGE_H

#include "workbench/diagnosis/findings.h"

Document DiagnosisDocument(const FamilyFiles& family, const Observations& seen,
                           const std::vector<DiagnosisFinding>& findings);

std::string DiagnosisText(const Document& diagnosis);

#endif
