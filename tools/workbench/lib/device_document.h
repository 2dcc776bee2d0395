// The device table and the input slots as sections of a document.
#ifndef WORKBENCH_LIB_DEVICE_DOCUMENT_H
#define WORKBENCH_LIB_DEVICE_DOCUMENT_H

#include "base/records.h"
#include "workbench/lib/document.h"

// Adds the sections "switches", "device", "ranges", "machineInformation", "customPaper" and "lists". A list
// that the parameter data file lacks is null.
void AddDevice(const DeviceTable& table, Document& document);

// Adds "inputSlots", the compiled-in paper sources as the parameter data file has updated them.
void AddInputSlots(Document& document);

#endif
