// The pictures of the printer that differ, over all combinations of its options.
#ifndef WORKBENCH_REPORT_PRINTER_LOOKS_H
#define WORKBENCH_REPORT_PRINTER_LOOKS_H

#include "workbench/lib/family_files.h"

// Pictures are PNG in base 64, kSceneSize pixels large. The document:
//   size      width and height of each picture
//   marks     names of all that can be highlighted: paper sources, outputs
//   looks     a row for each picture: `options` that differ from the defaults, `id` as they are assigned,
//             `picture`, and `marks`: number and overlay of each mark that this picture can show
//   unmarked  paper sources that no picture highlights
//   unseen    options that change no picture
//   complete  false when there are more pictures than a page takes
Document PrinterLooks(const FamilyFiles& family);

#endif
