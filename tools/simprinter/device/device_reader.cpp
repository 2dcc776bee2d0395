// Reads a device description from YAML: one table of fields for each kind of object, and one loop for all.
// The same tables give what can be set while the printer runs.
#include "simprinter/device/device_reader.h"

#include "common/choices.h"
#include "common/yaml_document.h"

#include <algorithm>
#include <climits>
#include <map>
#include <set>

namespace {

// A field's value and its place.
struct FieldValue {
    std::string name;
    const YAML::Node& node;
    Findings& findings;
    bool isSetting = false; // while the printer runs; otherwise of a description

    void Refuse(const std::string& problem) const { findings.Error(PlaceOf(node), problem); }
};

enum class Use {
    kRequired, // in a description
    kOptional,
    kSettable, // optional, and can be set while the printer runs
};

// A field; `read` stores its value.
template <typename Thing>
struct FieldRow {
    const char* name;
    Use use;
    void (*read)(const FieldValue& value, Thing& thing);
};

// Reads in the order of the rows, not of the file: a row may depend on earlier ones.
template <typename Thing, size_t kCount>
void ReadFields(const FieldRow<Thing> (&rows)[kCount], const char* what, const YAML::Node& node, Thing& thing,
                Findings& findings) {
    std::vector<std::string> known;
    for (const FieldRow<Thing>& row : rows)
        known.emplace_back(row.name);
    std::map<std::string, std::pair<YAML::Node, YAML::Node>> given; // names and values
    ForEachMember(node, std::string(what) + ": {FIELD: VALUE, ...}", findings,
                  [&](const std::string& name, const YAML::Node& nameNode, const YAML::Node& valueNode) {
                      if (std::find(known.begin(), known.end(), name) != known.end())
                          given.emplace(name, std::pair(nameNode, valueNode));
                      else
                          findings.Error(PlaceOf(nameNode), std::string(what) + " has no field " + Quote(name)
                                                                + NearestHint(name, known) + "; "
                                                                + Choices(known));
                  });
    for (const FieldRow<Thing>& row : rows) {
        if (const auto field = given.find(row.name); field != given.end()) {
            const auto& [name, value] = field->second;
            const size_t before = findings.list.size();
            row.read({row.name, value, findings}, thing);
            PlaceAtName(name, value, before, findings);
        } else if (node.IsMap() && row.use == Use::kRequired)
            findings.Error(PlaceOf(node), Quote(row.name) + " is missing: " + what + " needs it");
    }
}

// --- Kinds of values

void ReadText(const FieldValue& value, std::string& to) {
    constexpr size_t kMaxText = 255;
    std::string text;
    if (!ReadScalar(value.name, value.node, text, value.findings))
        return;
    if (text.size() > kMaxText)
        return value.Refuse(Quote(value.name) + " has " + std::to_string(text.size()) + " bytes, but at most "
                            + std::to_string(kMaxText) + " fit: shorten it");
    to = text;
}

void ReadInt(const FieldValue& value, int least, int& to) {
    int64_t number = 0;
    if (!ReadNumber(value.name, value.node, number, value.findings))
        return;
    if (number < least || number > INT_MAX)
        return value.Refuse(Quote(value.name) + " is " + std::to_string(number)
                            + ", which is out of range: write " + std::to_string(least) + " to "
                            + std::to_string(INT_MAX));
    to = static_cast<int>(number);
}

void ReadYesOrNo(const FieldValue& value, bool& to) {
    std::string text;
    if (!ReadScalar(value.name, value.node, text, value.findings))
        return;
    if (!EqualNoCase(text, "yes") && !EqualNoCase(text, "no"))
        return value.Refuse(Quote(value.name) + " must be yes or no, not " + Quote(text));
    to = EqualNoCase(text, "yes");
}

const Word& WordOf(const Word& word) {
    return word;
}
template <typename Row>
const Word& WordOf(const Row& row) {
    return row.name;
}

// Finds the table's row by its word, ASCII case ignored.
template <typename Row, size_t kCount>
void ReadChoice(const FieldValue& value, const Row (&rows)[kCount], const Row*& to, const char* orElse = "") {
    std::string text;
    if (!ReadScalar(value.name, value.node, text, value.findings))
        return;
    const auto wordOf = [](const Row& row) { return WordOf(row).word; };
    for (const Row& row : rows) {
        if (EqualNoCase(text, wordOf(row))) {
            to = &row;
            return;
        }
    }
    value.Refuse(Quote(value.name) + " can't be " + Quote(text) + "; " + Choices(rows, wordOf) + orElse);
}

template <size_t kCount>
void ReadWord(const FieldValue& value, const Word (&words)[kCount], int& to, const char* orElse = "") {
    const Word* word = nullptr;
    ReadChoice(value, words, word, orElse);
    to = word ? word->code : to;
}

// A word or a numeric code. Many numbers are accepted, so that unusual devices can be described.
template <size_t kCount>
void ReadWordOrNumber(const FieldValue& value, const Word (&words)[kCount], int& to, int least = INT_MIN) {
    const std::string text = value.node.IsScalar() ? value.node.Scalar() : "";
    if (!text.empty() && text.find_first_not_of("-0123456789") == std::string::npos)
        ReadInt(value, least, to);
    else
        ReadWord(value, words, to, ", or a number");
}

// A choice that sets default values for the fields after it.
template <typename Kind, size_t kCount, typename Thing>
void ReadKind(const FieldValue& value, const Kind (&kinds)[kCount], Thing (*usual)(const Kind&), Thing& to) {
    const Kind* kind = nullptr;
    ReadChoice(value, kinds, kind);
    if (kind)
        to = usual(*kind);
}

// Calls `read` with each element of a list.
template <typename Read>
void ReadList(const FieldValue& value, const Read& read) {
    if (!value.node.IsSequence())
        return value.Refuse(Quote(value.name) + " must be a list of '- ' elements, or []");
    for (const YAML::Node& element : value.node)
        read(FieldValue{value.name, element, value.findings});
}

template <typename Thing, size_t kFields>
void ReadThings(const FieldValue& value, const char* what, const FieldRow<Thing> (&fields)[kFields],
                std::vector<Thing>& to) {
    to.clear();
    ReadList(value, [&](const FieldValue& element) {
        Thing thing;
        ReadFields(fields, what, element.node, thing, element.findings);
        to.push_back(thing);
    });
}

// Objects with at most one of each kind.
template <typename Thing, size_t kFields>
void ReadUniqueThings(const FieldValue& value, const char* what, const FieldRow<Thing> (&fields)[kFields],
                      std::vector<Thing>& to) {
    ReadThings(value, what, fields, to);
    std::set<const void*> seen;
    for (size_t i = 0; i < to.size(); ++i) {
        if (to[i].kind && !seen.insert(to[i].kind).second)
            value.findings.Error(PlaceOf(value.node[i]),
                                 Quote(to[i].kind->name.word) + " occurs twice: remove one");
    }
}

// --- The tables of fields

// Sets a capacity that was read. In a description a tray or a supply without a level is full; the waste box,
// whose level is the room left, has some.
template <typename Thing>
void TakeCapacity(const FieldValue& value, int capacity, Thing& thing) {
    if (value.isSetting && capacity >= 0 && thing.level > capacity)
        return value.Refuse(Quote(value.name) + " is " + std::to_string(capacity) + ", but the level is "
                            + std::to_string(thing.level) + ": set a lower level first");
    thing.capacity = capacity;
    if (!value.isSetting && thing.level >= 0)
        thing.level = capacity;
}

void ReadTrayCapacity(const FieldValue& value, Tray& tray) {
    int capacity = tray.capacity;
    ReadInt(value, 0, capacity);
    TakeCapacity(value, capacity, tray);
}

void ReadSupplyCapacity(const FieldValue& value, Supply& supply) {
    int capacity = supply.capacity;
    ReadWordOrNumber(value, kLevelWords, capacity, kLevelSome);
    TakeCapacity(value, capacity, supply);
}

template <typename Thing>
void ReadLevel(const FieldValue& value, Thing& thing) {
    int level = thing.level;
    ReadWordOrNumber(value, kLevelWords, level, kLevelSome);
    if (thing.capacity >= 0 && level > thing.capacity)
        return value.Refuse(Quote(value.name) + " is " + std::to_string(level) + ", but the capacity is "
                            + std::to_string(thing.capacity) + ": write at most that");
    thing.level = level;
}

void ReadOptions(const FieldValue& value, Device& device) {
    constexpr int kMaxOfAnOption = 2;
    ReadList(value, [&](const FieldValue& element) {
        const OptionKind* option = nullptr;
        ReadChoice(element, kOptionKinds, option);
        if (option && std::count(device.options.begin(), device.options.end(), option) == kMaxOfAnOption)
            element.Refuse(Quote(option->name.word) + " occurs more than twice: remove one");
        device.options.push_back(option);
    });
}

// clang-format off
const FieldRow<Tray> kTrayFields[] = {
    {"tray",        Use::kRequired, [](const FieldValue& v, Tray& t) { ReadKind(v, kTrayKinds, UsualTray, t); }},
    {"name",        Use::kSettable, [](const FieldValue& v, Tray& t) { ReadText(v, t.name); }},
    {"size",        Use::kSettable, [](const FieldValue& v, Tray& t) { ReadChoice(v, kPaperSizes, t.size); }},
    {"orientation", Use::kSettable, [](const FieldValue& v, Tray& t) { ReadWord(v, kOrientations, t.orientation); }},
    {"type",        Use::kSettable, [](const FieldValue& v, Tray& t) { ReadChoice(v, kPaperTypes, t.type); }},
    {"capacity",    Use::kSettable, ReadTrayCapacity},
    {"level",       Use::kSettable, ReadLevel<Tray>},
};

const FieldRow<Supply> kSupplyFields[] = {
    {"supply",      Use::kRequired, [](const FieldValue& v, Supply& s) { ReadKind(v, kSupplyKinds, UsualSupply, s); }},
    {"name",        Use::kSettable, [](const FieldValue& v, Supply& s) { ReadText(v, s.name); }},
    {"capacity",    Use::kSettable, ReadSupplyCapacity},
    {"level",       Use::kSettable, ReadLevel<Supply>},
};

const FieldRow<Overlay> kOverlayFields[] = {
    {"name",        Use::kRequired, [](const FieldValue& v, Overlay& o) { ReadText(v, o.name); }},
    {"title",       Use::kOptional, [](const FieldValue& v, Overlay& o) { ReadText(v, o.title); }},
    {"kind",        Use::kOptional, [](const FieldValue& v, Overlay& o) { ReadInt(v, INT_MIN, o.kind); }},
    {"storage",     Use::kOptional, [](const FieldValue& v, Overlay& o) { ReadWordOrNumber(v, kOverlayStorages, o.storage); }},
};

const FieldRow<Profile> kProfileFields[] = {
    {"name",        Use::kRequired, [](const FieldValue& v, Profile& p) { ReadText(v, p.name); }},
    {"title",       Use::kOptional, [](const FieldValue& v, Profile& p) { ReadText(v, p.title); }},
    {"class",       Use::kOptional, [](const FieldValue& v, Profile& p) { ReadInt(v, INT_MIN, p.colorClass); }},
    {"storage",     Use::kOptional, [](const FieldValue& v, Profile& p) { ReadWordOrNumber(v, kProfileStorages, p.storage); }},
};

const FieldRow<Device> kDeviceFields[] = {
    {"name",        Use::kSettable, [](const FieldValue& v, Device& d) { ReadText(v, d.name); }},
    {"model",       Use::kSettable, [](const FieldValue& v, Device& d) { ReadText(v, d.model); }},
    {"serial",      Use::kSettable, [](const FieldValue& v, Device& d) { ReadText(v, d.serial); }},
    {"location",    Use::kSettable, [](const FieldValue& v, Device& d) { ReadText(v, d.location); }},
    {"contact",     Use::kSettable, [](const FieldValue& v, Device& d) { ReadText(v, d.contact); }},
    {"memory",      Use::kSettable, [](const FieldValue& v, Device& d) { ReadInt(v, 0, d.memory); }},
    {"hardDisk",    Use::kSettable, [](const FieldValue& v, Device& d) { ReadInt(v, 0, d.hardDisk.emplace()); }},
    {"duplex",      Use::kSettable, [](const FieldValue& v, Device& d) { ReadYesOrNo(v, d.hasDuplex); }},
    {"pages",       Use::kSettable, [](const FieldValue& v, Device& d) { ReadInt(v, 0, d.pages); }},
    {"options",     Use::kOptional, ReadOptions},
    {"punching",    Use::kSettable, [](const FieldValue& v, Device& d) { ReadWord(v, kPunchings, d.punching); }},
    {"cover",       Use::kSettable, [](const FieldValue& v, Device& d) { ReadWord(v, kCoverWords, d.isCoverOpen); }},
    {"online",      Use::kSettable, [](const FieldValue& v, Device& d) { ReadYesOrNo(v, d.isOnline); }},
    {"trays",       Use::kOptional, [](const FieldValue& v, Device& d) { ReadUniqueThings(v, "a tray", kTrayFields, d.trays); }},
    {"supplies",    Use::kOptional, [](const FieldValue& v, Device& d) { ReadUniqueThings(v, "a supply", kSupplyFields, d.supplies); }},
    {"overlays",    Use::kOptional, [](const FieldValue& v, Device& d) { ReadThings(v, "an overlay", kOverlayFields, d.overlays); }},
    {"profiles",    Use::kOptional, [](const FieldValue& v, Device& d) { ReadThings(v, "a profile", kProfileFields, d.profiles); }},
};
// clang-format on

// --- Settings

template <typename Thing, size_t kCount>
std::vector<std::string> SettableFields(const FieldRow<Thing> (&rows)[kCount]) {
    std::vector<std::string> names;
    for (const FieldRow<Thing>& row : rows) {
        if (row.use == Use::kSettable)
            names.emplace_back(row.name);
    }
    return names;
}

// Sets the field whose name comes first to the value after it. Returns what is wrong, or nothing.
template <typename Thing, size_t kCount>
std::string SetField(const FieldRow<Thing> (&rows)[kCount], const std::string& words, Thing& thing) {
    const size_t end = std::min(words.find(' '), words.size());
    const std::string name = words.substr(0, end), value = words.substr(std::min(end + 1, words.size()));
    const std::vector<std::string> names = SettableFields(rows);
    if (name.empty())
        return "write a field and its value; " + Choices(names);
    for (const FieldRow<Thing>& row : rows) {
        if (row.use != Use::kSettable || !EqualNoCase(row.name, name))
            continue;
        if (end == words.size())
            return "the value of " + Quote(name) + " is missing";
        Findings findings;
        Thing changed = thing;
        row.read({row.name, YAML::Node(value), findings, true}, changed);
        if (!findings.list.empty())
            return findings.list.front().message;
        thing = changed;
        return "";
    }
    return Quote(name) + " can't be set" + NearestHint(name, names) + "; " + Choices(names);
}

template <typename Thing>
Thing* FindThing(std::vector<Thing>& things, const std::string& word) {
    const auto thing = std::find_if(things.begin(), things.end(),
                                    [&](const Thing& t) { return EqualNoCase(t.kind->name.word, word); });
    return thing == things.end() ? nullptr : &*thing;
}

} // namespace

std::string SetInDevice(const std::string& words, Device& device) {
    const size_t end = std::min(words.find(' '), words.size());
    const std::string first = words.substr(0, end), others = words.substr(std::min(end + 1, words.size()));
    if (Tray* const tray = FindThing(device.trays, first))
        return SetField(kTrayFields, others, *tray);
    if (Supply* const supply = FindThing(device.supplies, first))
        return SetField(kSupplyFields, others, *supply);
    std::vector<std::string> names = SettableFields(kDeviceFields);
    if (std::any_of(names.begin(), names.end(),
                    [&](const std::string& name) { return EqualNoCase(name, first); }))
        return SetField(kDeviceFields, words, device);
    for (const Tray& tray : device.trays)
        names.emplace_back(tray.kind->name.word);
    for (const Supply& supply : device.supplies)
        names.emplace_back(supply.kind->name.word);
    return "this printer has no " + Quote(first) + " to be set" + NearestHint(first, names) + "; "
           + Choices(names);
}

Device ReadDevice(const std::string& text, Findings& findings) {
    Device device = PlainDevice();
    LoadYaml(text, "device", findings,
             [&](const YAML::Node& root) { ReadFields(kDeviceFields, "a device", root, device, findings); });
    return device;
}
