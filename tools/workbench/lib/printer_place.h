// Which of its host's devices a printer is: the one place that decides this.
#ifndef WORKBENCH_LIB_PRINTER_PLACE_H
#define WORKBENCH_LIB_PRINTER_PLACE_H

#include "workbench/lib/snmp_objects.h"

struct PrinterPlace {
    int32_t device = 0;      // 0: none is a printer
    bool isAnswered = false; // otherwise 0 means that it is not known
};

// The device of the first input, or the first supply; without any the first device that the host lists as a
// printer. Asks for 5 seconds, then for nothing further.
PrinterPlace FindPrinterPlace(const NextObjects& next);

#endif
