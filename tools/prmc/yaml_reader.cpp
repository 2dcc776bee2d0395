// Reads a model from YAML by the schema. Nodes are visited only as deep as the schema goes, so aliases can't
// cause endless recursion.
#include "prmc/yaml_reader.h"

#include "common/text.h"
#include "common/yaml_document.h"

#include <set>

namespace {

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

void ReadPairs(const YAML::Node& node, Value& value, Findings& findings) {
    ForEachMember(node, "rows: NAME: VALUE", findings,
                  [&](const std::string& name, const YAML::Node& nameNode, const YAML::Node& valueNode) {
                      Pair pair{name, "", PlaceOf(nameNode), PlaceOf(valueNode)};
                      if (ReadScalar(name, valueNode, pair.value, findings))
                          value.pairs.push_back(pair);
                  });
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

Record ReadRecord(const Kind& kind, const YAML::Node& node, Findings& findings) {
    Record record{PlaceOf(node), std::vector<Value>(kind.fields.count)};
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
                      findings.Error(PlaceOf(nameNode), UnknownName(std::string(kind.label) + " has no field",
                                                                    name, valueNode, known));
                  });
    for (const Field& field : kind.fields) {
        if (areKnown && field.required && !present.count(field.name))
            findings.Error(record.place,
                           Quote(field.name) + " is missing: every " + kind.label + " needs it");
    }
    return record;
}

void ReadDefault(Entry& entry, const YAML::Node& node, Findings& findings) {
    std::string key;
    if (!ReadScalar("default", node, key, findings))
        return;
    std::vector<std::string> keys;
    for (size_t i = 0; i < entry.records.size(); ++i) {
        if (!entry.records[i].values.front().given)
            return; // reported; it may be the key of this item
        keys.push_back(ItemLabel(entry.records[i]));
        if (EqualNoCase(key, keys.back())) {
            entry.defaultItem = i;
            return;
        }
    }
    findings.Error(PlaceOf(node),
                   "default " + Quote(key) + " is not the key of any item" + NearestHint(key, keys));
}

void ReadList(Entry& entry, const YAML::Node& node, Findings& findings) {
    const Kind& kind = *entry.row->kind;
    YAML::Node defaultKey(YAML::NodeType::Undefined);
    bool hasItems = false;
    bool areKnown = node.IsMap();
    ForEachMember(node, "a list: {default: KEY, items: [...]}", findings,
                  [&](const std::string& name, const YAML::Node& nameNode, const YAML::Node& valueNode) {
                      if (name == "default" && kind.HasKeys()) {
                          defaultKey.reset(valueNode);
                      } else if (name != "items") {
                          areKnown = false;
                          findings.Error(PlaceOf(nameNode), UnknownName("a list has no field", name,
                                                                        valueNode, {"default", "items"}));
                      } else if (hasItems = valueNode.IsSequence(); !hasItems && !valueNode.IsNull()) {
                          areKnown = false;
                          findings.Error(PlaceOf(valueNode), "expected a list of items, each '- {...}'");
                      } else {
                          for (const YAML::Node& item : valueNode)
                              entry.records.push_back(ReadRecord(kind, item, findings));
                      }
                  });
    if (defaultKey.IsDefined() || !areKnown)
        entry.defaultItem = 0; // so that the rules don't report a missing default as well
    if (areKnown && !hasItems)
        findings.Error(entry.place, "'items' is missing or empty: " + Quote(entry.name) + " is a list");
    else if (defaultKey.IsDefined() && hasItems)
        ReadDefault(entry, defaultKey, findings);
}

void ReadEntry(Entry& entry, const YAML::Node& node, Findings& findings) {
    const Kind& kind = *entry.row->kind;
    if (kind.form == Form::kList) {
        ReadList(entry, node, findings);
    } else if (kind.form == Form::kTable) {
        entry.records.push_back({PlaceOf(node), std::vector<Value>(1)});
        ReadValue(kind.fields[0], node, entry.records[0].values[0], findings);
    } else {
        entry.records.push_back(ReadRecord(kind, node, findings));
    }
}

Model ReadDocument(const YAML::Node& root, Findings& findings) {
    Model model;
    std::vector<std::string> known;
    for (const EntryRow& row : KnownEntries())
        known.emplace_back(row.name);
    ForEachMember(root, "entries: NAME: ...", findings,
                  [&](const std::string& name, const YAML::Node& nameNode, const YAML::Node& valueNode) {
                      const EntryRow* row = FindEntryRow(name);
                      if (!row)
                          return findings.Error(PlaceOf(nameNode),
                                                UnknownName("unknown entry", name, valueNode, known));
                      Entry entry{row, name, PlaceOf(nameNode), {}, {}};
                      ReadEntry(entry, valueNode, findings);
                      if (valueNode.IsMap()) // otherwise reported; nothing for the rules to check
                          model.entries.push_back(std::move(entry));
                  });
    return model;
}

} // namespace

Model ReadYaml(const std::string& text, Findings& findings) {
    Model model;
    LoadYaml(text, "model", findings, [&](const YAML::Node& root) { model = ReadDocument(root, findings); });
    return model;
}
