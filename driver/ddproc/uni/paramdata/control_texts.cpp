// The control text tables, and their texts from the parameter data file.
#include "paramdata/control_texts.h"

#include "base/keyed_list.h"
#include "paramdata/control_text_keys.h"
#include "paramdata/prm_readers.h"

namespace {

// The records of a table and the end record.
template <size_t Count>
struct ControlTexts {
    ControlTextRecord records[Count + 1];
};

// The rows without their texts, which come from the file.
template <size_t Count>
constexpr ControlTexts<Count> RecordsOf(const ControlTextRow (&rows)[Count]) {
    ControlTexts<Count> texts = {};
    for (size_t i = 0; i < Count; ++i) {
        for (size_t at = 0; at < sizeof(rows[i].identifiers) / sizeof(rows[i].identifiers[0]); ++at)
            texts.records[i].identifiers[at] = rows[i].identifiers[at];
        CopyText(texts.records[i].key, rows[i].key);
    }
    return texts;
}

auto propertyRecords = RecordsOf(kPropertyTexts);
auto colorDialogRecords = RecordsOf(kColorDialogTexts);
auto trayDialogRecords = RecordsOf(kTrayDialogTexts);

} // namespace

ControlTextRecord (&propertyTexts)[17] = propertyRecords.records;
ControlTextRecord (&colorDialogTexts)[31] = colorDialogRecords.records;
ControlTextRecord (&trayDialogTexts)[16] = trayDialogRecords.records;

bool ApplyControlTexts(const PrmFile& file, const char* entry, ControlTextRecord* table) {
    PrmItems items;
    if (!PrmFindItems(file, entry, items))
        return false;
    PrmForEachInChain(file, items, [&](const PrmItemHead& item, const char* key) {
        if (ControlTextRecord* row = FindByKey(table, key))
            PrmReadWideString(file, item.display, row->display);
        return true;
    });
    return true;
}
