// Builds parameter data files of any number of items. Each item is followed by its texts, each
// entry's items by their offsets and the entry itself.
#include "synthetic_file.h"

#include "paramdata/input_slots.h"
#include "paramdata/prm_layout.h"

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <iterator>

namespace {

struct ListRow {
    const char* entry;
    size_t recordSize;
    const char* keyFormat;
};

const ListRow kLists[] = {
    {"PaperSize", sizeof(PrmPaper), "Paper%zu"},
    {"OutPaperSize", sizeof(PrmOutputPaper), "OutPaper%zu"},
    {"MediaType", sizeof(PrmMediaItem), "Media%zu"},
    {"InTray", sizeof(PrmMediaItem), "%zuTray"},
    {"ALL_InTray", sizeof(PrmMediaItem), "%zuTray"},
    {"MediaTypeList_Tray", sizeof(PrmItemDescriptor), "List_%zuTray"},
    {"OutputTray", sizeof(PrmTextItem), "OutTray%zu"},
    {"MediaWeight", sizeof(PrmTextItem), "Weight%zu"},
    {"MediaColor", sizeof(PrmTextItem), "Color%zu"},
    {"Resolution", sizeof(PrmResolution), "Reso_%zudpi"},
    {"Combination", sizeof(PrmTextItem), "Combination%zu"},
    {"Folding", sizeof(PrmTextItem), "Folding%zu"},
    {"HolePunch", sizeof(PrmTextItem), "Punch%zu"},
    {"OutputOrder", sizeof(PrmTextItem), "Order%zu"},
    {"PerPageListPrintType", sizeof(PrmTextItem), "PrintType%zu"},
    {"MediaPrePunched", sizeof(PrmTextItem), "PrePunched%zu"},
    {"Staple", sizeof(PrmTextItem), "Staple%zu"},
    {"PerPageListStaple", sizeof(PrmTextItem), "PageStaple%zu"},
    {"OutputMethod", sizeof(PrmTextItem), "Method%zu"},
    {"OvlForm_Location", sizeof(PrmTextItem), "Overlay%zu"},
    {"Prof_Location", sizeof(PrmTextItem), "Profile%zu"},
    {kTraySelectionFeatures[0], sizeof(PrmItemDescriptor), "FCover%zu"},
    {kTraySelectionFeatures[1], sizeof(PrmItemDescriptor), "BCover%zu"},
    {kTraySelectionFeatures[2], sizeof(PrmItemDescriptor), "SPage%zu"},
    {kTraySelectionFeatures[3], sizeof(PrmItemDescriptor), "OHPInt%zu"},
    {kTraySelectionFeatures[4], sizeof(PrmItemDescriptor), "PIF%zu"},
    {kTraySelectionFeatures[5], sizeof(PrmItemDescriptor), "PIB%zu"},
    {kTraySelectionFeatures[6], sizeof(PrmItemDescriptor), "PPS%zu"},
    {"TabPaperPaperSize", sizeof(PrmTabPaper), "TabPaper%zu"},
    {"Collate", sizeof(PrmMediaItem), "Collate%zu"},
    {"OHP_Interleave", sizeof(PrmTextItem), "Interleave%zu"},
    {"PaperArrangement", sizeof(PrmTextItem), "Arrange%zu"},
};

using Bytes = std::vector<uint8_t>;

template <typename Value>
void Put(Bytes& file, size_t offset, const Value& value) {
    memcpy(&file[offset], &value, sizeof(value));
}

uint32_t Append(Bytes& file, const void* from, size_t size) {
    const auto offset = static_cast<uint32_t>(file.size());
    const auto* bytes = static_cast<const uint8_t*>(from);
    file.insert(file.end(), bytes, bytes + size);
    return offset;
}

// A zero record with key and display name, enabled where that is asked.
uint32_t AppendItem(Bytes& file, const ListRow& list, size_t number) {
    char key[32] = {};
    snprintf(key, sizeof(key), list.keyFormat, number);
    wchar_t display[32] = {};
    for (size_t i = 0; key[i] != 0; ++i)
        display[i] = static_cast<wchar_t>(key[i]);
    const Bytes record(list.recordSize);
    const uint32_t item = Append(file, record.data(), record.size());
    if (list.recordSize == sizeof(PrmMediaItem))
        Put(file, item + offsetof(PrmMediaItem, extra), uint32_t{1});
    Put(file, item + offsetof(PrmItemHead, key), Append(file, key, strlen(key) + 1));
    Put(file, item + offsetof(PrmItemHead, display), Append(file, display, 2 * strlen(key) + 2));
    if (list.recordSize == sizeof(PrmItemDescriptor)) // the next item follows its texts
        Put(file, item + offsetof(PrmItemDescriptor, next), static_cast<uint32_t>(file.size()));
    return item;
}

} // namespace

size_t SyntheticListCount() {
    return std::size(kLists);
}

Bytes SyntheticFile(size_t itemsPerList) {
    Bytes file(sizeof(PrmHeader));
    PrmEntry first = {};
    PrmEntryInfo none = {};
    // Where the next entry's offset is to be written; the first entry has its place.
    size_t link = Append(file, &first, sizeof(first)) + offsetof(PrmEntry, next);
    Append(file, &none, sizeof(none));
    for (const ListRow& list : kLists) {
        std::vector<uint32_t> items;
        for (size_t i = 0; i < itemsPerList; ++i)
            items.push_back(AppendItem(file, list, i));
        const uint32_t offsets = Append(file, items.data(), items.size() * sizeof(uint32_t));
        PrmEntry entry = {};
        snprintf(entry.name, sizeof(entry.name), "%s", list.entry);
        entry.firstItem = items.front();
        const PrmEntryInfo info = {static_cast<uint32_t>(itemsPerList), items.front(), offsets};
        const uint32_t at = Append(file, &entry, sizeof(entry));
        Append(file, &info, sizeof(info));
        Put(file, link, at);
        link = at + offsetof(PrmEntry, next);
    }
    const auto end = static_cast<uint32_t>(file.size());
    Put(file, link, end);
    Put(file, offsetof(PrmHeader, chainEnd), end);
    return file;
}
