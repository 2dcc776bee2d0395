// Tray rows: see the header. An item of "MediaTypeList_Tray" names the row whose key its own key ends in.
#include "paramdata/tray_rows.h"

#include "base/text.h"
#include "paramdata/device_table.h"
#include "paramdata/prm_readers.h"

namespace {

// Rows beyond this many keep their names: each item is held against every row, and no device has so many
// trays.
constexpr uint32_t kMaxNamedRows = 64;

uint32_t CountTrays(const InputSlotRecord* trays) {
    uint32_t count = 0;
    while (trays[count].head.key[0] != 0)
        ++count;
    return count;
}

// Whether the text is longer than the ending and ends in it.
bool EndsIn(const PrmText& text, const char (&ending)[32]) {
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
    const uint32_t count = CountTrays(trays);
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
    PrmForEachInChain(file, items, [&](const PrmItemHead& item, const PrmText& key) {
        for (TrayRowRecord* row = rows; row < rows + named; ++row) {
            if (!EndsIn(key, row->head.key))
                continue;
            CopyText(row->head.key, key);
            PrmReadDisplay(file, item.display, row->display);
            break;
        }
        return true;
    });
}
