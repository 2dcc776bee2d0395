// The YAML form's reader, see yaml_reader.h. yaml-cpp gives the nodes and their places; this file gives them
// the schema's meaning. A node is looked at only as deep as the schema goes, so aliases can't make it run
// away.
#include "prmc/yaml_reader.h"

#include "prmc/text.h"

#include <cstdlib>
#include <set>
#include <sstream>
#include <yaml-cpp/eventhandler.h>
#include <yaml-cpp/yaml.h>

namespace {

Place PlaceOf(const YAML::Mark& mark) {
    return {static_cast<uint64_t>(mark.line) + 1, static_cast<uint64_t>(mark.column) + 1};
}
Place PlaceOf(const YAML::Node& node) {
    return PlaceOf(node.Mark());
}

// Calls `use` with the name, its node and the value node of each member whose name is a scalar not seen
// before.
template <typename Use>
void ForEachMember(const YAML::Node& map, const char* shape, Findings& findings, const Use& use) {
    if (!map.IsMap()) {
        findings.Error(PlaceOf(map), std::string("expected ") + shape);
        return;
    }
    std::set<std::string> seen;
    for (const auto& member : map) {
        if (!member.first.IsScalar())
            findings.Error(PlaceOf(member.first), "expected a name");
        else if (!seen.insert(member.first.Scalar()).second)
            findings.Error(PlaceOf(member.first), Quote(member.first.Scalar()) + " is given twice here");
        else
            use(member.first.Scalar(), member.first, member.second);
    }
}

bool ReadScalar(const std::string& name, const YAML::Node& node, std::string& text, Findings& findings) {
    if (node.IsScalar()) {
        text = node.Scalar();
        return true;
    }
    findings.Error(PlaceOf(node), node.IsNull() ? Quote(name) + " has no value: write \"\" for an empty text"
                                                : Quote(name) + " takes a single value");
    return false;
}

// Decimal, with or without a minus sign, or hexadecimal with 0x.
bool ReadNumber(const std::string& name, const YAML::Node& node, int64_t& number, Findings& findings) {
    constexpr size_t kMostDigits = 15; // fewer than 64 bits; the rules say what fits
    std::string text;
    if (!ReadScalar(name, node, text, findings))
        return false;
    const bool isHex = text.rfind("0x", 0) == 0 || text.rfind("0X", 0) == 0;
    const bool isNegative = text.rfind('-', 0) == 0;
    const std::string digits = text.substr(isHex ? 2 : isNegative ? 1 : 0);
    const char* allowed = isHex ? "0123456789abcdefABCDEF" : "0123456789";
    if (digits.empty() || digits.size() > kMostDigits
        || digits.find_first_not_of(allowed) != std::string::npos) {
        findings.Error(PlaceOf(node), Quote(name) + " takes a number, not " + Quote(text));
        return false;
    }
    number = std::strtoll(digits.c_str(), nullptr, isHex ? 16 : 10) * (isNegative ? -1 : 1);
    return true;
}

void ReadNumbers(const Field& field, const YAML::Node& node, Value& value, Findings& findings) {
    const size_t count = field.count;
    if (count > 1 && (!node.IsSequence() || node.size() != count)) {
        findings.Error(PlaceOf(node),
                       Quote(field.name) + " takes " + std::to_string(count) + " numbers in brackets");
        return;
    }
    std::vector<int64_t> numbers(count);
    bool good = true;
    for (size_t i = 0; i < count; ++i)
        good = ReadNumber(field.name, count > 1 ? node[i] : node, numbers[i], findings) && good;
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

Record ReadRecord(const Kind& kind, const YAML::Node& node, Findings& findings) {
    Record record{PlaceOf(node), std::vector<Value>(kind.fields.size())};
    std::set<std::string> present;
    ForEachMember(node, "fields: {FIELD: VALUE, ...}", findings,
                  [&](const std::string& name, const YAML::Node& nameNode, const YAML::Node& valueNode) {
                      std::vector<std::string> known;
                      for (size_t i = 0; i < kind.fields.size(); ++i) {
                          known.emplace_back(kind.fields[i].name);
                          if (name == kind.fields[i].name) {
                              present.insert(name);
                              return ReadValue(kind.fields[i], valueNode, record.values[i], findings);
                          }
                      }
                      findings.Error(PlaceOf(nameNode), std::string(kind.label) + " has no field "
                                                            + Quote(name) + NearestHint(name, known));
                  });
    for (const Field& field : kind.fields) {
        if (node.IsMap() && field.required && !present.count(field.name))
            findings.Error(record.place, Quote(field.name) + " is missing: every " + kind.label + " has one");
    }
    return record;
}

void ReadDefault(Entry& entry, const YAML::Node& node, Findings& findings) {
    std::string key;
    if (!ReadScalar("default", node, key, findings))
        return;
    std::vector<std::string> keys;
    for (size_t i = 0; i < entry.records.size(); ++i) {
        keys.push_back(ItemLabel(entry.records[i]));
        if (EqualNoCase(key, keys.back())) {
            entry.defaultItem = i;
            return;
        }
    }
    entry.defaultItem = 0; // the fault is reported here, not once more as a default that is not there
    findings.Error(PlaceOf(node), "default " + Quote(key) + " names no item" + NearestHint(key, keys));
}

void ReadList(Entry& entry, const YAML::Node& node, Findings& findings) {
    const Kind& kind = *entry.row->kind;
    YAML::Node defaultKey(YAML::NodeType::Undefined);
    bool hasItems = false;
    ForEachMember(node, "a list: {default: KEY, items: [...]}", findings,
                  [&](const std::string& name, const YAML::Node& nameNode, const YAML::Node& valueNode) {
                      if (name == "default" && kind.HasKeys()) {
                          defaultKey.reset(valueNode);
                      } else if (name != "items") {
                          findings.Error(PlaceOf(nameNode), "a list has no field " + Quote(name)
                                                                + NearestHint(name, {"default", "items"}));
                      } else if (hasItems = true; !valueNode.IsSequence()) {
                          findings.Error(PlaceOf(valueNode), "expected items: one '- {...}' for each");
                      } else {
                          for (const YAML::Node& item : valueNode)
                              entry.records.push_back(ReadRecord(kind, item, findings));
                      }
                  });
    if (node.IsMap() && !hasItems)
        findings.Error(entry.place, "'items' is missing: " + Quote(entry.name) + " is a list");
    if (defaultKey.IsDefined())
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
                                                "unknown entry " + Quote(name) + NearestHint(name, known));
                      Entry entry{row, name, PlaceOf(nameNode), {}, {}};
                      ReadEntry(entry, valueNode, findings);
                      if (valueNode.IsMap()) // else it is reported, and rules have nothing to look at
                          model.entries.push_back(std::move(entry));
                  });
    return model;
}

// yaml-cpp passes bytes through that are not text, and takes some control characters for the end of the file.
bool CheckIsText(const std::string& text, Findings& findings) {
    size_t bad = FindBadUtf8(text);
    const char* problem = "not UTF-8: save the file in that encoding";
    for (size_t i = 0; i < text.size() && i < bad; ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if ((c < 0x20 && c != '\t' && c != '\n' && c != '\r') || c == 0x7F) {
            bad = i;
            problem = "control character: write it as an escape in double quotes";
        }
    }
    if (bad == std::string::npos)
        return true;
    Place place{1, 1};
    for (size_t i = 0; i < bad; ++i)
        place = text[i] == '\n' ? Place{place.line + 1, 1} : Place{place.line, place.column + 1};
    findings.Error(place, problem);
    return false;
}

// Notes where a document starts and looks at nothing else.
struct DocumentStart final : YAML::EventHandler {
    Place place;

    void OnDocumentStart(const YAML::Mark& mark) override { place = PlaceOf(mark); }
    void OnDocumentEnd() override {}
    void OnNull(const YAML::Mark&, YAML::anchor_t) override {}
    void OnAlias(const YAML::Mark&, YAML::anchor_t) override {}
    void OnScalar(const YAML::Mark&, const std::string&, YAML::anchor_t, const std::string&) override {}
    void OnSequenceStart(const YAML::Mark&, const std::string&, YAML::anchor_t,
                         YAML::EmitterStyle::value) override {}
    void OnSequenceEnd() override {}
    void OnMapStart(const YAML::Mark&, const std::string&, YAML::anchor_t,
                    YAML::EmitterStyle::value) override {}
    void OnMapEnd() override {}
};

// Loading takes the first document and says nothing of what follows it. (Loading all of them is no way out:
// on malformed files yaml-cpp may go on for ever.)
bool CheckIsSingle(const std::string& text, Findings& findings) {
    std::istringstream stream(text);
    YAML::Parser parser(stream);
    DocumentStart start;
    if (!parser.HandleNextDocument(start) || !parser.HandleNextDocument(start))
        return true;
    findings.Error(start.place, "a second document begins here: a model is one");
    return false;
}

} // namespace

Model ReadYaml(const std::string& text, Findings& findings) {
    if (!CheckIsText(text, findings))
        return {};
    try {
        if (!CheckIsSingle(text, findings))
            return {};
        const YAML::Node root = YAML::Load(text);
        if (!root.IsNull())
            return ReadDocument(root, findings);
        findings.Error({1, 1}, "the file holds no entries");
    } catch (const YAML::Exception& fault) {
        findings.Error(PlaceOf(fault.mark), fault.msg);
    }
    return {};
}
