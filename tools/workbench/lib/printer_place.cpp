// Looks into the tables of the Printer MIB, and into the list of the host's devices.
#include "workbench/lib/printer_place.h"

#include "workbench/lib/stopwatch.h"

namespace {

// Columns whose index begins with the device.
constexpr const char* kPrinterColumns[] = {
    ".1.3.6.1.2.1.43.8.2.1.2",  // prtInputType
    ".1.3.6.1.2.1.43.11.1.1.8", // prtMarkerSuppliesMaxCapacity
};

// hrDeviceType of the host's devices, and its value for a printer.
constexpr const char* kDeviceType = ".1.3.6.1.2.1.25.3.2.1.2";
constexpr const char* kDeviceIsPrinter = ".1.3.6.1.2.1.25.3.1.5";
constexpr int kMaxDevices = 16;      // more are not looked at
constexpr double kPlaceLimit = 5000; // milliseconds

PrinterPlace FindInDeviceList(const NextObjects& next, int64_t start) {
    PrinterPlace place;
    std::string last = kDeviceType;
    for (int i = 0; i < kMaxDevices && MillisecondsSince(start) < kPlaceLimit; ++i) {
        const ObjectValue found = next({last}, place.isAnswered)[0];
        ObjectId index;
        if (!place.isAnswered || !IsInColumn(found.oid, kDeviceType, index))
            return place;
        if (found.objectId == OidOf(kDeviceIsPrinter))
            place.device = static_cast<int32_t>(index[0]);
        if (place.device != 0)
            return place;
        last = OidText(found.oid);
    }
    return {};
}

} // namespace

PrinterPlace FindPrinterPlace(const NextObjects& next) {
    const int64_t start = CounterNow();
    bool areAnswered = true;
    for (const char* column : kPrinterColumns) {
        bool isAnswered = false;
        ObjectId index;
        if (IsInColumn(next({column}, isAnswered)[0].oid, column, index))
            return {static_cast<int32_t>(index[0]), true};
        areAnswered = areAnswered && isAnswered;
    }
    PrinterPlace place = FindInDeviceList(next, start);
    place.isAnswered = place.device != 0 || (place.isAnswered && areAnswered);
    return place;
}
