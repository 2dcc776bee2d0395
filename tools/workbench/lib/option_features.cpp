// Builds the feature table from the parameter data file and changes its settings.
#include "workbench/lib/option_features.h"

#include "common/choices.h"
#include "workbench/lib/text.h"

#include <algorithm>

namespace {

// Listed by name, since an entry of the file does not say what kind of items it has. In addition, each paper
// source may have an option feature of its own: "Op" and the key of the source.
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
        PrmReadString(file, item.head.key, items[i].head.key);
        PrmReadWideString(file, item.head.display, items[i].display);
    }
    return items;
}

// Position of the record with this key, -1 when there is none.
template <typename Record>
int32_t FindPosition(const Record* list, const char* key) {
    const Record* found = FindByKey(list, key);
    return found != nullptr ? static_cast<int32_t>(found - list) : -1;
}

// Adds the feature if the file has it.
void AddFeature(const PrmFile& file, const std::string& name, OptionFeatures& options) {
    PrmItems items;
    if (!PrmFindItems(file, name.c_str(), items))
        return;
    PrmText defaultKey = {};
    PrmReadStringValue(file, name.c_str(), defaultKey, sizeof(defaultKey));

    options.items.push_back(ReadItems(file, items));
    options.settings.push_back(FindPosition<ItemRecord>(options.items.back().get(), defaultKey));
    FeatureRecord feature = {};
    feature.feature.head.size = sizeof(ItemRecord);
    CopyText(feature.feature.head.key, name.c_str());
    feature.items = options.items.back().get();
    options.features.push_back(feature);
}

template <typename Record>
std::string KeyChoices(const Record* list) {
    return Choices(Listed(list), [](const Record& record) { return FieldText(KeyOf(record)); });
}

// The parts of "FEATURE=ITEM" and their positions in the model; -1 for what it lacks.
struct Setting {
    std::string featureKey;
    std::string itemKey;
    int32_t feature;
    int32_t item;
};

Setting FindSetting(const OptionFeatures& options, const std::string& assignment) {
    const size_t equals = assignment.find('=');
    Setting setting = {assignment.substr(0, equals),
                       equals == std::string::npos ? "" : assignment.substr(equals + 1), -1, -1};
    setting.feature = FindPosition(options.features.data(), setting.featureKey.c_str());
    if (setting.feature >= 0)
        setting.item = FindPosition(options.features[static_cast<size_t>(setting.feature)].items,
                                    setting.itemKey.c_str());
    return setting;
}

} // namespace

OptionFeatures ReadOptionFeatures(const FamilyFiles& family) {
    OptionFeatures options;
    for (const char* feature : kOptionFeatures)
        AddFeature(*family.parameters, feature, options);
    for (const InputSlotRecord& source : Listed(family.table->inputTrays))
        AddFeature(*family.parameters, std::string("Op") + KeyOf(source), options);
    options.features.push_back({});
    return options;
}

const ItemRecord* FindOption(const OptionFeatures& options, const std::string& assignment) {
    const Setting setting = FindSetting(options, assignment);
    return setting.item < 0 ? nullptr
                            : &options.features[static_cast<size_t>(setting.feature)].items[setting.item];
}

void SetOption(OptionFeatures& options, const std::string& assignment) {
    const Setting setting = FindSetting(options, assignment);
    if (setting.feature < 0)
        throw Failure(kExitUsage, "no option feature '" + setting.featureKey + "'; "
                                      + KeyChoices(options.features.data()));
    const auto at = static_cast<size_t>(setting.feature);
    if (setting.item < 0)
        throw Failure(kExitUsage, setting.featureKey
                                      + (setting.itemKey.empty() ? " lacks its '=ITEM'"
                                                                 : " has no item '" + setting.itemKey + "'")
                                      + "; " + KeyChoices(options.features[at].items));
    options.settings[at] = setting.item;
}

void ApplyReportedOption(OptionFeatures& options, const char* featureKey, const char* itemKey) {
    const int32_t feature = FindPosition<FeatureRecord>(options.features.data(), featureKey);
    if (feature < 0)
        return;
    const auto at = static_cast<size_t>(feature);
    const int32_t item = FindPosition(options.features[at].items, itemKey);
    if (item >= 0)
        options.settings[at] = item;
}

void AddMachine(OptionFeatures& options, const std::string& name) {
    const std::wstring display = Wide(name);
    constexpr size_t kMaxUnits = std::extent_v<decltype(ItemRecord::display)> - 1;
    if (display.empty() || display.size() > kMaxUnits)
        throw Failure(kExitUsage, "a machine cannot be named '" + name + "'; possible: 1 to "
                                      + std::to_string(kMaxUnits) + " UTF-16 units");
    const int32_t feature = FindPosition<FeatureRecord>(options.features.data(), kMachineFeature);
    if (feature < 0)
        throw Failure(kExitFailed, std::string("the model has no ") + kMachineFeature
                                       + ", so a machine cannot be named; add it to the model file");
    const auto at = static_cast<size_t>(feature);
    const Rows<ItemRecord> offered = Listed(options.features[at].items);
    auto items = std::make_unique<ItemRecord[]>(offered.count + 2); // the new item and the end record
    std::copy(offered.begin(), offered.end(), items.get());
    ItemRecord& added = items[offered.count];
    added.head.size = sizeof(ItemRecord);
    CopyText(added.head.key, ("OpMachine" + std::to_string(offered.count + 1)).c_str());
    CopyText(added.display, display.c_str());
    options.features[at].items = items.get();
    options.items[at] = std::move(items);
    options.settings[at] = static_cast<int32_t>(offered.count);
}

const ItemRecord* CurrentItem(const OptionFeatures& options, size_t position) {
    const int32_t item = options.settings[position];
    return item < 0 ? nullptr : &options.features[position].items[item];
}

Document OptionsDocument(const OptionFeatures& options) {
    Document rows = Document::MakeList();
    for (size_t i = 0; i < options.settings.size(); ++i) {
        const ItemRecord* item = CurrentItem(options, i);
        rows.Add({
            {"feature", FieldText(KeyOf(options.features[i]))},
            {"item", item == nullptr ? Document() : Document(FieldText(item->head.key))},
            {"name", item == nullptr ? Document() : Document(FieldText(item->display))},
        });
    }
    return rows;
}
