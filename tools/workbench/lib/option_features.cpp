// Option features: see the header.
#include "workbench/lib/option_features.h"

#include "paramdata/prm_readers.h"
#include "workbench/lib/output.h"

#include <algorithm>

namespace {

// Listed by name, since an entry of the file doesn't say what kind of items it has. Besides these, every
// paper source may have an option feature of its own: "Op" and the source's key.
constexpr const char* kMachineFeature = "OpMachine";
constexpr const char* kOptionFeatures[] = {
    kMachineFeature, "OpBody",      "OpInTrayUnit", "OpOutTrayUnit", "OpPunchKit",
    "OpMailBinKit",  "OpSaddleKit", "OpFAXUnit",    "OpHDD",
};

std::unique_ptr<ItemRecord[]> ReadItems(const PrmFile& file, const PrmItems& from) {
    auto items = std::make_unique<ItemRecord[]>(from.count + size_t{1});
    for (uint32_t i = 0; i < from.count; ++i) {
        PrmItemDescriptor item = {};
        PrmReadRecord(file, PrmItemOffset(file, from, i), item);
        items[i].head.size = sizeof(ItemRecord);
        items[i].head.icon = kItemIcon;
        PrmReadKey(file, item.head.key, items[i].head.key);
        PrmReadDisplay(file, item.head.display, items[i].display);
    }
    return items;
}

// Position of the item with this key, -1 when there is none.
int32_t FindItem(const ItemRecord* items, const char* key) {
    for (int32_t i = 0; items[i].head.key[0] != 0; ++i)
        if (SameText(items[i].head.key, key))
            return i;
    return -1;
}

// Adds the feature when the file has it.
void AddFeature(const PrmFile& file, const std::string& name, OptionFeatures& options) {
    PrmItems items;
    if (!PrmFindItems(file, name.c_str(), items))
        return;
    PrmText defaultKey = {};
    PrmReadStringValue(file, name.c_str(), defaultKey, sizeof(defaultKey));

    options.items.push_back(ReadItems(file, items));
    options.settings.push_back(FindItem(options.items.back().get(), defaultKey));
    FeatureRecord feature = {};
    feature.feature.head.size = sizeof(ItemRecord);
    CopyText(feature.feature.head.key, name.c_str());
    feature.items = options.items.back().get();
    options.features.push_back(feature);
}

const char* KeyOf(const ItemRecord& item) {
    return item.head.key;
}

const char* KeyOf(const FeatureRecord& feature) {
    return KeyOf(feature.feature);
}

// The keys of features or items up to the empty key, for a message.
template <typename Record>
std::string Choices(const Record* record) {
    std::string choices;
    for (; KeyOf(*record)[0] != 0; ++record)
        choices += (choices.empty() ? "" : ", ") + Utf8(KeyOf(*record));
    return choices.empty() ? "none" : choices;
}

} // namespace

OptionFeatures ReadOptionFeatures(const FamilyFiles& family) {
    OptionFeatures options;
    for (const char* feature : kOptionFeatures)
        AddFeature(*family.parameters, feature, options);
    for (const InputSlotRecord& slot : Listed(family.table->inputTrays))
        AddFeature(*family.parameters, std::string("Op") + slot.head.key, options);
    options.features.push_back({});
    return options;
}

void SetOption(OptionFeatures& options, const std::string& assignment) {
    const size_t equals = assignment.find('=');
    const std::string featureKey = assignment.substr(0, equals);
    const std::string itemKey = equals == std::string::npos ? "" : assignment.substr(equals + 1);

    const int32_t feature = FindFeature(options.features.data(), featureKey.c_str());
    if (feature < 0)
        throw Failure(kExitUsage, "no option feature '" + featureKey
                                      + "'; possible: " + Choices(options.features.data()));
    const ItemRecord* items = options.features[static_cast<size_t>(feature)].items;
    const int32_t item = FindItem(items, itemKey.c_str());
    if (item < 0)
        throw Failure(kExitUsage,
                      featureKey + (itemKey.empty() ? " lacks its '=ITEM'" : " has no item '" + itemKey + "'")
                          + "; possible: " + Choices(items));
    options.settings[static_cast<size_t>(feature)] = item;
}

void TakeReportedOption(OptionFeatures& options, const char* featureKey, const char* itemKey) {
    const int32_t feature = FindFeature(options.features.data(), featureKey);
    if (feature < 0)
        return;
    const int32_t item = FindItem(options.features[static_cast<size_t>(feature)].items, itemKey);
    if (item >= 0)
        options.settings[static_cast<size_t>(feature)] = item;
}

void AddMachine(OptionFeatures& options, const std::string& name) {
    const std::wstring display = Wide(name);
    const size_t mostUnits = std::extent_v<decltype(ItemRecord::display)> - 1;
    if (display.empty() || display.size() > mostUnits)
        throw Failure(kExitUsage, "a machine can't be named '" + name + "'; possible: 1 to "
                                      + std::to_string(mostUnits) + " UTF-16 units");
    const int32_t feature = FindFeature(options.features.data(), kMachineFeature);
    if (feature < 0)
        throw Failure(kExitFailed, std::string("the model has no ") + kMachineFeature
                                       + ", so that no machine can be named; add it to the model file");
    const auto at = static_cast<size_t>(feature);
    const ItemRecord* offered = options.features[at].items;
    size_t count = 0;
    while (offered[count].head.key[0] != 0)
        ++count;
    auto items = std::make_unique<ItemRecord[]>(count + 2); // the new one, and the end
    std::copy_n(offered, count, items.get());
    items[count].head.size = sizeof(ItemRecord);
    CopyText(items[count].head.key, ("OpMachine" + std::to_string(count + 1)).c_str());
    CopyText(items[count].display, display.c_str());
    options.features[at].items = items.get();
    options.items[at] = std::move(items);
    options.settings[at] = static_cast<int32_t>(count);
}

Document OptionsDocument(const OptionFeatures& options) {
    Document rows = Document::MakeList();
    for (size_t i = 0; i < options.settings.size(); ++i) {
        const ItemRecord* item =
            SelectedItem(options.features.data(), options.settings.data(), static_cast<int32_t>(i));
        rows.Add({
            {"feature", Utf8(options.features[i].feature.head.key)},
            {"item", item == nullptr ? Document() : Document(Utf8(item->head.key))},
            {"name", item == nullptr ? Document() : Document(Utf8(item->display))},
        });
    }
    return rows;
}
