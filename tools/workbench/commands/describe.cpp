// `workbench describe`: that the module attaches, and what the parameter data file says of the model.
#include "workbench/commands/commands.h"
#include "workbench/lib/device_document.h"

Document Describe(const FamilyFiles& family) {
    Document document;
    document["files"] = FamilyDocument(family);
    AddDevice(*family.table, document);
    AddInputSlots(document);
    return document;
}
