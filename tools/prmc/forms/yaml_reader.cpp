// Reads a model from YAML by the schema. A model that builds on another starts as a copy of it, and what the
// text says is read over that. Nodes are visited only as deep as the schema goes, so aliases can't cause
// endless recursion.
#include "prmc/forms/yaml_reader.h"

#include "common/text.h"
#include "common/yaml_document.h"

#include <algorithm>
#include <set>

namespace {

// The position of the element with this name, whatever its case; the count when there is none.
template <typename Element, typename NameOf>
size_t FindNamed(const std::vector<Element>& elements, const std::string& name, const NameOf& nameOf) {
    const auto found = std::find_if(elements.begin(), elements.end(), [&](const Element& element) {
        return EqualNoCase(nameOf(element), name);
    });
    return static_cast<size_t>(found - elements.begin());
}

template <typename Element>
void EraseAt(std::vector<Element>& elements, size_t position) {
    elements.erase(elements.begin() + static_cast<std::ptrdiff_t>(position));
}

void ReadNumbers(const Field& field, const YAML::Node& node, Value& value, Findings& findings) {
    const size_t count = field.count;
    if (count > 1 && (!node.IsSequence() || node.size() != count)) {
        findings.Error(PlaceOf(node),
                       Quote(field.name) + " must be " + std::to_string(count) + " numbers in brackets");
        return;
    }
    std::vector<int64_t> numbers(count);
    const auto read = field.limits.most == 1 ? ReadFlag : ReadNumber;
    bool good = true;
    for (size_t i = 0; i < count; ++i)
        good = read(field.name, count > 1 ? node[i] : node, numbers[i], findings) && good;
    if (good)
        value.numbers = numbers;
    value.given = good;
}

// A row replaces the base's of the same name; without a value it removes it.
void ReadPairs(const YAML::Node& node, Value& value, Findings& findings) {
    std::vector<Pair> ofBase;
    std::swap(ofBase, value.pairs);
    std::vector<Pair> added;
    ForEachMember(node, "rows: NAME: VALUE", findings,
                  [&](const std::string& name, const YAML::Node& nameNode, const YAML::Node& valueNode) {
                      const size_t at = FindNamed(ofBase, name, [](const Pair& row) { return row.name; });
                      const bool isOfBase = at < ofBase.size();
                      Pair pair{name, "", PlaceOf(nameNode), PlaceOf(valueNode)};
                      if (isOfBase && valueNode.IsNull())
                          EraseAt(ofBase, at);
                      else if (valueNode.IsNull() && !ofBase.empty())
                          findings.Error(pair.namePlace, "the base has no row " + Quote(name) + " to remove");
                      else if (ReadScalar(name, valueNode, pair.value, findings))
                          isOfBase ? ofBase[at] = pair : added.emplace_back(pair);
                  });
    value.pairs = std::move(ofBase);
    value.pairs.insert(value.pairs.end(), added.begin(), added.end());
    value.given = true;
}

void ReadValue(const Field& field, const YAML::Node& node, Value& value, Findings& findings) {
    value.place = PlaceOf(node);
    if (field.type == FieldType::kNumbers)
        ReadNumbers(field, node, value, findings);
    else if (field.type == FieldType::kPairs)
        ReadPairs(node, value, findings);
    else
        value.given = ReadScalar(field.name, node, value.text, findings);
}

// "fields: {FIELD: VALUE, ...}" with the fields that are needed.
std::string ShapeOf(const Kind& kind) {
    std::string shape;
    for (const Field& field : kind.fields)
        if (field.required)
            shape += (shape.empty() ? "fields: {" : ", ") + std::string(field.name) + ": VALUE";
    return shape + "}";
}

// Reads the fields over those of the record, which is empty or the base's.
void ReadRecord(const Entry& entry, const YAML::Node& node, Record& record, Findings& findings) {
    const Kind& kind = *entry.row->kind;
    const std::string owner = (kind.form == Form::kList ? "an item of " : "") + Quote(entry.name);
    record.place = PlaceOf(node);
    record.values.resize(kind.fields.count);
    std::set<std::string> present;
    bool areKnown = node.IsMap(); // otherwise a field may be missing since its name is wrong
    ForEachMember(node, ShapeOf(kind), findings,
                  [&](const std::string& name, const YAML::Node& nameNode, const YAML::Node& valueNode) {
                      std::vector<std::string> known;
                      for (size_t i = 0; i < kind.fields.count; ++i) {
                          known.emplace_back(kind.fields[i].name);
                          if (name == kind.fields[i].name) {
                              present.insert(name);
                              return ReadValue(kind.fields[i], valueNode, record.values[i], findings);
                          }
                      }
                      areKnown = false;
                      findings.Error(PlaceOf(nameNode),
                                     UnknownName(owner + " has no field", name, valueNode, known));
                  });
    for (size_t i = 0; i < kind.fields.count; ++i) {
        const Field& field = kind.fields[i];
        if (areKnown && field.required && !record.values[i].given && !present.count(field.name))
            findings.Error(record.place, Quote(field.name) + " is missing: " + owner + " needs it");
    }
}

void ReadItems(Entry& entry, const YAML::Node& node, Findings& findings) {
    entry.records.clear();
    for (const YAML::Node& item : node)
        ReadRecord(entry, item, entry.records.emplace_back(), findings);
}

std::string HintForKey(const Entry& entry, const std::string& key) {
    std::vector<std::string> keys;
    for (const Record& record : entry.records)
        keys.push_back(ItemLabel(record));
    return NearestHint(key, keys);
}

// Changes, adds or, without fields, removes the item with the key.
void ReadChange(Entry& entry, const std::string& key, Place place, const YAML::Node& fields,
                Findings& findings) {
    const char* const label = entry.row->kind->fields[0].name;
    const size_t at = FindNamed(entry.records, key, ItemLabel);
    const bool isThere = at < entry.records.size();
    if (fields.IsNull() && isThere)
        return EraseAt(entry.records, at);
    if (fields.IsNull())
        return findings.Error(place, "the base's " + Quote(entry.name) + " has no item " + Quote(key)
                                         + " to remove" + HintForKey(entry, key));
    if (!fields.IsMap())
        return findings.Error(PlaceOf(fields), "expected the fields that change: {FIELD: VALUE, ...}");
    if (fields[label])
        return findings.Error(PlaceOf(fields[label]), Quote(label)
                                                          + " is before the colon already, and stays "
                                                          + Quote(key) + ": remove it here");
    if (!isThere) {
        Value& value = entry.records.emplace_back().values.emplace_back();
        value.given = true;
        value.place = place;
        value.text = key;
    }
    ReadRecord(entry, fields, entry.records[at], findings);
}

void FindDefault(Entry& entry, const std::string& key, Place place, Findings& findings) {
    const size_t at = FindNamed(entry.records, key, ItemLabel);
    const bool isThere = at < entry.records.size();
    entry.defaultItem = isThere ? at : 0; // so that the rules don't report a missing default as well
    const auto lacksKey = [](const Record& record) { return !record.values.front().given; };
    if (isThere || std::any_of(entry.records.begin(), entry.records.end(), lacksKey))
        return; // a key that is missing is reported; it may be this one
    findings.Error(place, "default " + Quote(key) + " is not the key of any item" + HintForKey(entry, key));
}

void ReadList(Entry& entry, const YAML::Node& node, bool isOfBase, Findings& findings) {
    if (node.IsSequence())
        return findings.Error(PlaceOf(node), "'items:' is missing before the items of " + Quote(entry.name));
    std::string defaultKey = entry.defaultItem ? ItemLabel(entry.records[*entry.defaultItem]) : "";
    bool hasDefault = entry.defaultItem.has_value(), hasItems = false, hasChanges = false;
    bool areKnown = node.IsMap(); // otherwise what is missing may be there under a wrong name
    Place defaultPlace = entry.place;
    const auto readMember = [&](const std::string& name, const YAML::Node& nameNode,
                                const YAML::Node& value) {
        if (name == "items") {
            hasItems = value.IsSequence();
            if (hasItems) {
                ReadItems(entry, value, findings);
            } else if (!value.IsNull()) {
                areKnown = false;
                findings.Error(PlaceOf(value), "expected a list of items, each '- {...}'");
            }
        } else if (name == "default" && entry.row->kind->HasKeys()) {
            hasDefault = ReadScalar(name, value, defaultKey, findings);
            areKnown = areKnown && hasDefault;
            defaultPlace = PlaceOf(value);
        } else if (name == "change") {
            hasChanges = true;
            if (!isOfBase)
                return findings.Error(PlaceOf(nameNode),
                                      "there is nothing to change: no base has " + Quote(entry.name));
            ForEachMember(value, "changes: KEY: {FIELD: VALUE, ...}", findings,
                          [&](const std::string& key, const YAML::Node& keyNode, const YAML::Node& fields) {
                              ReadChange(entry, key, PlaceOf(keyNode), fields, findings);
                          });
        } else {
            areKnown = false;
            findings.Error(PlaceOf(nameNode),
                           UnknownName("a list has no field", name, value, {"default", "items", "change"}));
        }
    };
    ForEachMember(node, "a list: {default: KEY, items: [...]}", findings, readMember);
    if (hasItems && hasChanges) {
        areKnown = false;
        findings.Error(entry.place, "'items' replaces all items of the base: put the changes in it, too");
    } else if (areKnown && !isOfBase && !hasItems && !hasChanges) {
        findings.Error(entry.place, "'items' is missing or empty: " + Quote(entry.name) + " is a list");
    }
    if (areKnown && hasDefault && (hasItems || isOfBase))
        FindDefault(entry, defaultKey, defaultPlace, findings);
    else if (hasDefault || !areKnown)
        entry.defaultItem = 0; // so that the rules don't report a missing default as well
}

// Reads what is said of an entry over the base's, or as a new one.
void ReadEntry(Entry& entry, const YAML::Node& node, bool isOfBase, Findings& findings) {
    const Kind& kind = *entry.row->kind;
    if (kind.form == Form::kList)
        return ReadList(entry, node, isOfBase, findings);
    entry.records.resize(1);
    Record& record = entry.records.front();
    if (kind.form == Form::kSingle || kind.form == Form::kRange)
        return ReadRecord(entry, node, record, findings);
    record.place = PlaceOf(node);
    record.values.resize(1);
    ReadValue(kind.fields[0], node, record.values[0], findings);
}

constexpr const char* kBase = "base";

// The model that the text builds on; empty when there is none, or when it can't be read, which is reported.
Model ReadBase(const YAML::Node& root, const BaseReader& readBase, Findings& findings) {
    for (const auto& member : root) {
        const YAML::Node& name = member.second;
        if (!member.first.IsScalar() || member.first.Scalar() != kBase)
            continue;
        if (readBase && name.IsScalar())
            return readBase(name.Scalar(), PlaceOf(name));
        findings.Error(PlaceOf(member.first), name.IsScalar() ? "'base' can be used in model files only"
                                                              : "'base' must be the name of a file");
    }
    return {};
}

Model ReadDocument(const YAML::Node& root, const BaseReader& readBase, Findings& findings) {
    Model model;
    if (root.IsMap() && root[kBase]) {
        model = ReadBase(root, readBase, findings);
        if (model.entries.empty()) // then what the text leaves out would be reported, too
            return model;
    }
    std::vector<std::string> known = {kBase};
    for (const EntryRow& row : KnownEntries())
        known.emplace_back(row.name);
    if (root.IsMap() && root.size() == 0)
        findings.Error({1, 1}, "the file has no entries");
    std::set<std::string> seen; // in this file; a second one is added, and the rules report it
    ForEachMember(root, "entries: NAME: ...", findings,
                  [&](const std::string& name, const YAML::Node& nameNode, const YAML::Node& valueNode) {
                      if (name == kBase)
                          return;
                      const EntryRow* row = FindEntryRow(name);
                      if (!row)
                          return findings.Error(PlaceOf(nameNode),
                                                UnknownName("unknown entry", name, valueNode, known));
                      std::vector<Entry>& entries = model.entries;
                      const size_t at =
                          FindNamed(entries, name, [](const Entry& entry) { return entry.name; });
                      const bool isOfBase = seen.insert(FoldCase(name)).second && at < entries.size();
                      if (isOfBase && valueNode.IsNull()) {
                          model.removals.push_back({name, PlaceOf(nameNode)});
                          return EraseAt(entries, at);
                      }
                      if (valueNode.IsNull())
                          return findings.Error(PlaceOf(nameNode),
                                                Quote(name) + " has no contents, and no base has it");
                      Entry entry = isOfBase ? entries[at] : Entry{row, name, {}, {}, {}};
                      entry.place = PlaceOf(nameNode);
                      ReadEntry(entry, valueNode, isOfBase, findings);
                      if (!valueNode.IsMap()) // reported; nothing for the rules to check
                          return;
                      if (isOfBase)
                          entries[at] = std::move(entry);
                      else
                          entries.push_back(std::move(entry));
                  });
    return model;
}

} // namespace

Model ReadYaml(const std::string& text, Findings& findings, const BaseReader& readBase) {
    Model model;
    LoadYaml(text, "model", findings,
             [&](const YAML::Node& root) { model = ReadDocument(root, readBase, findings); });
    return model;
}
