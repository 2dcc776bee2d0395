// Item keys for the table of the entries, taken from the driver's tables.
#ifndef PRMC_SCHEMA_ENTRY_KEYS_H
#define PRMC_SCHEMA_ENTRY_KEYS_H

#include "base/rows.h"
#include "devcomm/bidi/bdc_keys.h"
#include "paramdata/color_keys.h"
#include "paramdata/control_text_keys.h"
#include "paramdata/media_list_keys.h"
#include "paramdata/paper_sources.h"
#include "picture/capabilities/option_keys.h"

#include <iterator>
#include <string_view>

// --- Item keys. The driver ignores an item with an unknown key, or takes 0 for its value.

template <size_t Most>
struct KeyList {
    const char* keys[Most];
    size_t count;

    constexpr operator Rows<const char*>() const { return {keys, count}; }
};

// The keys that `keyOf` returns for the rows; empty ones are left out.
template <typename Row, size_t Count, typename KeyOf>
constexpr KeyList<Count> KeysIn(const Row (&rows)[Count], const KeyOf& keyOf) {
    KeyList<Count> list = {};
    for (const Row& row : rows)
        if (const char* key = keyOf(row); key[0] != 0)
            list.keys[list.count++] = key;
    return list;
}

// The keys of the rows, and another one.
template <typename Row, size_t Count>
constexpr KeyList<Count + 1> ReportedKeys(const Row (&rows)[Count], const char* another = nullptr) {
    KeyList<Count + 1> list = {};
    for (const Row& row : rows)
        list.keys[list.count++] = row.key;
    if (another != nullptr)
        list.keys[list.count++] = another;
    return list;
}
inline constexpr auto kPaperKeys = ReportedKeys(MediaSizeTable, "UserPaper");
inline constexpr auto kMediaTypeKeys = ReportedKeys(MediaTypeTable);

inline constexpr auto kSourceKeys =
    KeysIn(kPaperSources, [](const PaperSourceRow& source) { return source.key; });

// The keys of one tray selection, by its position in kTraySelectionFeatures.
template <size_t Selection>
constexpr auto kSelectionKeys = KeysIn(kPaperSources, [](const PaperSourceRow& source) {
    return source.selectionKeys[Selection];
});

template <const auto& Table, ColorKeyColumn Column>
constexpr auto kColorKeys = KeysIn(Table, [](const ColorKeyRow& row) { return row.keys[Column]; });

constexpr const char* KeyOfText(const ControlTextRow& row) {
    return row.key;
}
inline constexpr auto kPropertyKeys = KeysIn(kPropertyTexts, KeyOfText);
inline constexpr auto kColorDialogKeys = KeysIn(kColorDialogTexts, KeyOfText);
inline constexpr auto kTrayDialogKeys = KeysIn(kTrayDialogTexts, KeyOfText);

template <MediaTypeList List>
constexpr auto kMediaTexts = KeysIn(kMediaTextItems, [](const MediaTextItem& item) {
    return item.list == List ? item.key : "";
});

// The items of an option that the picture shows, and then those that the bidirectional library reports.
constexpr size_t kMaxOptionKeys = 8;
constexpr KeyList<kMaxOptionKeys> OptionKeys(std::string_view option) {
    KeyList<kMaxOptionKeys> list = {};
    const auto add = [&](const char* key) {
        for (size_t i = 0; i < list.count; ++i)
            if (std::string_view(list.keys[i]) == key)
                return;
        list.keys[list.count++] = key;
    };
    for (const SummarizedOption& shown : kSummarizedOptions)
        for (size_t i = 0; i < kMaxOptionItems && shown.feature == option && shown.items[i] != nullptr; ++i)
            add(shown.items[i]);
    for (size_t i = std::size(BdcOptionRuleTable); i-- > 0;)
        if (BdcOptionRuleTable[i].option == option)
            add(BdcOptionRuleTable[i].item);
    return list;
}

// Keys that mean something in an entry which takes any key: in the driver's picture, its capabilities, or
// because it reports them of a printer. Those of the colour tables are in color_keys.h.
inline constexpr const char* kMarkedSources[] = {
    "InTray1", "InTray2", "InTray3", "InTray4", "InTrayManual", "InTrayLCT",
};
inline constexpr const char* kNoWatermarkKeys[] = {"WM_None"};
inline constexpr const char* kOverlayPlaces[] = {"OvlForm_Memory", "OvlForm_HDD", "OvlForm_Flash"};
inline constexpr const char* kProfilePlaces[] = {"Prof_Memory", "Prof_HDD", "Prof_Flash", "internalROM",
                                                 "internalHD"};
inline constexpr auto kMachineKeys = OptionKeys("OpMachine");
inline constexpr auto kBodyKeys = OptionKeys("OpBody");
inline constexpr const char* kTray2Keys[] = {"EnaOpInTray2", "DisOpInTray2"};
inline constexpr const char* kTray3Keys[] = {"EnaOpInTray3", "DisOpInTray3"};
inline constexpr const char* kTray4Keys[] = {"EnaOpInTray4", "DisOpInTray4"};
inline constexpr const char* kTray5Keys[] = {"EnaOpInTray5", "DisOpInTray5"};
inline constexpr auto kInUnitKeys = OptionKeys("OpInTrayUnit");
inline constexpr auto kOutUnitKeys = OptionKeys("OpOutTrayUnit");
inline constexpr auto kPunchKeys = OptionKeys("OpPunchKit");
inline constexpr auto kMailBinKeys = OptionKeys("OpMailBinKit");
inline constexpr auto kSaddleKeys = OptionKeys("OpSaddleKit");
inline constexpr auto kFaxKeys = OptionKeys("OpFAXUnit");
inline constexpr auto kDiskKeys = OptionKeys("OpHDD");

#endif
