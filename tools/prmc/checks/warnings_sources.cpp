// Warnings about the paper sources.
#include "common/choices.h"
#include "common/text.h"
#include "paramdata/paper_sources.h"
#include "prmc/checks/model_query.h"
#include "prmc/checks/warning_checks.h"

#include <algorithm>

namespace {

// False when the driver does not know a key.
bool CheckSourceKeys(const Model& model, Findings& findings) {
    bool areKnown = true;
    for (const char* name : {"InTray", "ALL_InTray"}) {
        for (const Record& item : EntryOf(model, name).records) {
            const Value& key = item.values.front();
            const bool isKnown =
                std::any_of(std::begin(kPaperSources), std::end(kPaperSources),
                            [&](const PaperSourceRow& source) { return EqualNoCase(source.key, key.text); });
            if (!key.given || isKnown)
                continue;
            areKnown = false;
            findings.Warning(key.place,
                             Quote(key.text)
                                 + " is no paper source that the driver knows: no picture marks it, and it "
                                   "can't be chosen for covers or single pages; "
                                 + Choices(kPaperSources, [](const auto& source) { return source.key; }));
        }
    }
    return areKnown;
}

const Value* FindBin(const Entry& entry, const char* key) {
    const Record* item = FindItem(entry, key);
    return item != nullptr ? FindValue(entry, *item, "value") : nullptr;
}

// The bin number that tray selections store for a source.
int64_t BinOf(const Model& model, const PaperSourceRow& source) {
    const Value* bin = FindBin(EntryOf(model, "ALL_InTray"), source.key);
    return bin != nullptr ? bin->numbers[0] : source.bin;
}

void CheckBins(const Model& model, Findings& findings) {
    for (const PaperSourceRow& source : kPaperSources) {
        const Value* own = FindBin(EntryOf(model, "InTray"), source.key);
        const int64_t selected = BinOf(model, source);
        if (own == nullptr || own->numbers[0] == selected)
            continue;
        for (size_t i = 0; i < kTraySelectionCount; ++i) {
            const char* const key = source.selectionKeys[i];
            const char* const feature = kTraySelectionFeatures[i];
            if (key[0] == 0 || FindItem(EntryOf(model, feature), key) == nullptr)
                continue;
            findings.Warning(own->place, Quote(source.key) + " has the bin number "
                                             + std::to_string(own->numbers[0]) + ", but " + Quote(key)
                                             + " of " + Quote(feature) + " stores " + std::to_string(selected)
                                             + ": give the item of 'ALL_InTray' the same value");
            break;
        }
    }
}

// The driver's list ends at the first source that is not enabled.
void CheckHiddenTrays(const Model& model, Findings& findings) {
    const Entry& entry = EntryOf(model, "InTray");
    const auto isOff = [&](const Record& tray) {
        const Value* enabled = FindValue(entry, tray, "enabled");
        return enabled != nullptr && enabled->numbers[0] == 0;
    };
    const auto end = entry.records.end();
    const auto off = std::find_if(entry.records.begin(), end, isOff);
    const auto hidden = std::find_if_not(off, end, isOff);
    if (hidden != end)
        findings.Warning(off->place, Quote(ItemLabel(*off))
                                         + " is not enabled, which hides all trays after it, such as "
                                         + Quote(ItemLabel(*hidden)));
    const auto listed = static_cast<size_t>(off - entry.records.begin());
    if (off == end || !entry.defaultItem || *entry.defaultItem < listed)
        return;
    const Record& item = entry.records[*entry.defaultItem];
    findings.Warning(item.place, "the default " + Quote(ItemLabel(item))
                                     + " is not listed, since it or a tray before it is not enabled: choose "
                                       "another default");
}

// The automatic source has no paper of its own.
void CheckTrayCount(const Model& model, Findings& findings) {
    const Entry& entry = EntryOf(model, "InTray");
    size_t count = 0;
    for (const Record& tray : entry.records) {
        const Value* bin = FindValue(entry, tray, "value");
        if (bin == nullptr || bin->numbers[0] == BinOf(model, kPaperSources[0])
            || ++count <= kMaxTraySettings)
            continue;
        return findings.Warning(tray.place,
                                Quote(ItemLabel(tray))
                                    + " and what follows are missing in the tray dialog: the settings "
                                      "keep the paper of "
                                    + std::to_string(kMaxTraySettings) + " trays");
    }
}

// The rows of the device table take the names of the items whose keys end in theirs.
void CheckTrayNames(const Model& model, Findings& findings) {
    const std::vector<Record>& trays = EntryOf(model, "InTray").records;
    for (const Record& item : EntryOf(model, "MediaTypeList_Tray").records) {
        const std::string key = ItemLabel(item);
        const bool isUsed = std::any_of(trays.begin(), trays.end(), [&](const Record& tray) {
            const std::string ending = ItemLabel(tray);
            return ending.size() < key.size() && EqualNoCase(key.substr(key.size() - ending.size()), ending);
        });
        if (!isUsed)
            findings.Warning(
                item.values.front().place,
                Quote(key)
                    + " names no tray: a key of 'MediaTypeList_Tray' ends in the key of an item of "
                      "'InTray', as in MediaTypeList_InTray1");
    }
}

} // namespace

void CheckPaperSources(const Model& model, bool isWhole, Findings& findings) {
    const bool areKnown = CheckSourceKeys(model, findings);
    CheckBins(model, findings);
    CheckHiddenTrays(model, findings);
    CheckTrayCount(model, findings);
    if (isWhole && areKnown)
        CheckTrayNames(model, findings);
}
