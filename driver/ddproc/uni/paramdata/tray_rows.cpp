// Builds the tray rows. An item of "MediaTypeList_Tray" belongs to the row whose key is the end of its own
// key.
#include "paramdata/tray_rows.h"

#include "base/text.h"
#include "paramdata/device_table.h"
#include "paramdata/prm_readers.h"

namespace {

// Rows beyond this many get no names: each item is compared with every row, and no device has so many trays.
constexpr uint32_t kMaxNamedRows = 64;

// Whether the text ends in the ending and is longer.
bool EndsIn(const char* text, const char (&ending)[32]) {
    const size_t length = TextLength(text);
    const size_t endingLength = TextLength(ending);
    return endingLength < length && SameCharacters(text + length - endingLength, ending, endingLength);
}

} // namespace

void BuildTrayRows(PrmFile& file, DeviceTable& table) {
    const InputSlotRecord* trays = table.inputTrays;
    PrmItems items;
    if (trays == nullptr || !PrmFindItems(file, "MediaTypeList_Tray", items))
        return;
    const auto count = static_cast<uint32_t>(Listed(trays).count);
    auto* rows =
        static_cast<TrayRowRecord*>(PrmAllocateRecords(file, uint64_t{count} + 1, sizeof(TrayRowRecord)));
    table.trayRows = rows;
    if (rows == nullptr)
        return;
    for (uint32_t i = 0; i < count; ++i) {
        rows[i].head = trays[i].head;
        rows[i].head.size = sizeof(TrayRowRecord);
    }
    rows[count].head.size = sizeof(TrayRowRecord);

    const uint32_t named = count < kMaxNamedRows ? count : kMaxNamedRows;
    PrmForEachInChain(file, items, [&](const PrmItemHead& item, const char* key) {
        for (TrayRowRecord* row = rows; row < rows + named; ++row) {
            if (!EndsIn(key, row->head.key))
                continue;
            CopyText(row->head.key, key);
            PrmReadWideString(file, item.display, row->display);
            break;
        }
        return true;
    });
}
