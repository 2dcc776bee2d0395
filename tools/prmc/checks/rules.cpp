// Checks a model: texts and numbers fit their fields, names are unique, and the driver uses every item and
// row. Limits come from the schema and from the table of feature switches.
#include "prmc/checks/rules.h"

#include "base/text.h"
#include "common/choices.h"
#include "common/lookalikes.h"
#include "common/text.h"
#include "paramdata/feature_switches.h"
#include "paramdata/prm_layout.h"

#include <algorithm>
#include <set>

namespace {

constexpr const char* kOff = "Disable"; // leaves a feature switch off

std::string Number(int64_t number) {
    return std::to_string(number);
}

bool Contains(const std::vector<std::string>& names, const std::string& name) {
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& candidate) { return EqualNoCase(candidate, name); });
}

// An 8-bit text of at most `most` characters.
void CheckBytes(const std::string& what, const std::string& text, size_t most, Place place,
                Findings& findings) {
    const auto isAscii = [](char c) { return c != '\0' && static_cast<unsigned char>(c) < 0x80; };
    if (!std::all_of(text.begin(), text.end(), isAscii))
        findings.Error(place, what + " " + Quote(text)
                                  + " has a non-ASCII character, which only names may have"
                                  + LookalikeHint(text));
    else if (text.size() > most)
        findings.Error(place, what + " " + Quote(text) + " has " + std::to_string(text.size())
                                  + " characters, but at most " + std::to_string(most) + " fit: shorten it");
}

void CheckName(const std::string& what, const std::string& text, size_t most, Place place,
               Findings& findings) {
    const size_t length = Utf16FromUtf8(text).size();
    if (text.find('\0') != std::string::npos)
        findings.Error(place, what + " " + Quote(text) + " has a NUL character, which would end it");
    else if (length > most)
        findings.Error(place, what + " " + Quote(text) + " has " + std::to_string(length)
                                  + " characters, but at most " + std::to_string(most)
                                  + " are shown: shorten it");
}

void CheckValue(const EntryRow& row, const Field& field, const Value& value, Findings& findings) {
    const std::string what = field.name;
    switch (field.type) {
    case FieldType::kKey:
        if (value.text.empty())
            findings.Error(value.place, "the key is empty, which would end the list here");
        CheckBytes(what, value.text, kMaxKeyChars, value.place, findings);
        break;
    case FieldType::kName:
        CheckName(what, value.text, field.count > 1 ? field.count : row.nameChars, value.place, findings);
        break;
    case FieldType::kText:
        CheckBytes(what, value.text, field.count - 1, value.place, findings);
        break;
    case FieldType::kNumbers: {
        const Limits limits = LimitsOf(row, field);
        for (const int64_t number : value.numbers) {
            if (number < limits.least || number > limits.most)
                findings.Error(value.place, what + " " + Number(number) + " is out of range: write "
                                                + Number(limits.least) + " to " + Number(limits.most));
        }
        break;
    }
    case FieldType::kPairs:
        for (const Pair& pair : value.pairs) {
            CheckBytes("name", pair.name, field.count - 1, pair.namePlace, findings);
            CheckBytes("value", pair.value, field.count - 1, pair.valuePlace, findings);
        }
        break;
    }
}

// Whether the value is TYPE1, TYPE2 and so on.
bool IsTypeValue(const std::string& value) {
    for (unsigned n = 1; n <= kMaxSwitchType; ++n) {
        if (EqualNoCase(value, "TYPE" + Number(n)))
            return true;
    }
    return false;
}

void CheckFeatureRow(const Pair& row, Findings& findings) {
    std::vector<std::string> names;
    for (const FeatureSwitchRow& feature : kFeatureSwitches) {
        names.push_back(feature.name);
        if (!EqualNoCase(feature.name, row.name))
            continue;
        if (!feature.enablingValue) {
            if (!IsTypeValue(row.value))
                findings.Error(row.valuePlace, "value " + Quote(row.value) + " of " + Quote(row.name)
                                                   + " is not a variant: write TYPE1 to TYPE"
                                                   + Number(kMaxSwitchType) + ", or omit the row");
        } else if (!EqualNoCase(row.value, feature.enablingValue) && !EqualNoCase(row.value, kOff)) {
            findings.Error(row.valuePlace, "value " + Quote(row.value) + " of " + Quote(row.name)
                                               + " is unknown: write " + feature.enablingValue
                                               + " to enable the feature, or " + kOff + " to leave it off");
        }
        return;
    }
    findings.Error(row.namePlace, "unknown feature switch " + Quote(row.name) + NearestHint(row.name, names));
}

// Counts the runs of digits.
size_t CountNumbers(const std::string& text) {
    size_t count = 0;
    for (size_t i = 0; i < text.size(); ++i)
        count += IsDigit(text[i]) && (i == 0 || !IsDigit(text[i - 1])) ? 1 : 0;
    return count;
}

void CheckFact(const FactRow& fact, const Pair& row, Findings& findings) {
    std::string problem;
    if (fact.words.count > 0) {
        if (Contains({fact.words.begin(), fact.words.end()}, row.value))
            return;
        problem = "is unknown; " + Choices(fact.words);
    } else if (fact.numbers > 1) {
        if (CountNumbers(row.value) == fact.numbers)
            return;
        problem = "must contain " + std::to_string(fact.numbers) + " numbers";
    } else {
        if (!row.value.empty() && std::all_of(row.value.begin(), row.value.end(), IsDigit))
            return;
        problem = "must be a number";
    }
    findings.Error(row.valuePlace, "value " + Quote(row.value) + " of " + Quote(row.name) + " " + problem);
}

void CheckFactRow(const EntryRow& entry, const Pair& row, Findings& findings) {
    std::vector<std::string> names;
    for (const FactRow& fact : entry.facts) {
        names.push_back(fact.name);
        if (EqualNoCase(fact.name, row.name))
            return CheckFact(fact, row, findings);
    }
    findings.Error(row.namePlace,
                   std::string(entry.name) + " has no row " + Quote(row.name) + NearestHint(row.name, names));
}

void CheckTable(const Entry& entry, Findings& findings) {
    for (const Record& record : entry.records) {
        for (const Pair& row : record.values.front().pairs) {
            if (entry.row->facts.count > 0)
                CheckFactRow(*entry.row, row, findings);
            else
                CheckFeatureRow(row, findings);
        }
    }
}

// Reports items that the driver does not use.
void CheckTaken(const Entry& entry, Findings& findings) {
    const EntryRow& row = *entry.row;
    const size_t most = row.maxItems > 0 ? row.maxItems : kPrmMaxElements;
    if (entry.records.size() > most)
        findings.Error(entry.records[most].place, Quote(entry.name) + " has "
                                                      + std::to_string(entry.records.size())
                                                      + " items, but the driver takes at most "
                                                      + std::to_string(most) + ": remove the others");
    const std::vector<std::string> keys(row.keys.begin(), row.keys.end());
    for (const Record& record : entry.records) {
        const Value& key = record.values.front();
        if (!keys.empty() && key.given && !Contains(keys, key.text))
            findings.Error(key.place, Quote(key.text) + " is not an item of " + Quote(entry.name) + "; "
                                          + Choices(keys) + NearestHint(key.text, keys));
    }
}

// The fields of a range are its minimum, maximum and default, in this order.
void CheckRange(const Entry& entry, Findings& findings) {
    for (const Record& record : entry.records) {
        const std::vector<Value>& values = record.values;
        if (!values[0].given || !values[1].given || !values[2].given)
            continue;
        const int64_t least = values[0].numbers[0], most = values[1].numbers[0],
                      chosen = values[2].numbers[0];
        if (least > most)
            findings.Error(values[0].place, "min " + Number(least) + " is above max " + Number(most));
        else if (chosen < least || chosen > most)
            findings.Error(values[2].place, "default " + Number(chosen) + " is not within " + Number(least)
                                                + " to " + Number(most));
    }
}

void CheckUnique(std::set<std::string>& seen, const std::string& what, const std::string& name, Place place,
                 Findings& findings) {
    if (!seen.insert(FoldCase(name)).second)
        findings.Error(place, what + " " + Quote(name) + " occurs twice: remove one");
}

void CheckEntry(const Entry& entry, Findings& findings) {
    const Kind& kind = *entry.row->kind;
    std::set<std::string> keys;
    for (const Record& record : entry.records) {
        for (size_t i = 0; i < kind.fields.count; ++i) {
            const Field& field = kind.fields[i];
            const Value& value = record.values[i];
            if (!value.given)
                continue;
            CheckValue(*entry.row, field, value, findings);
            if (field.type == FieldType::kKey)
                CheckUnique(keys, "key", value.text, value.place, findings);
            std::set<std::string> names;
            for (const Pair& pair : value.pairs)
                CheckUnique(names, "row", pair.name, pair.namePlace, findings);
        }
    }
    CheckTaken(entry, findings);
    if (kind.form == Form::kTable)
        CheckTable(entry, findings);
    if (kind.form == Form::kRange)
        CheckRange(entry, findings);
    if (entry.row->defaultNeeded && !entry.defaultItem)
        findings.Error(entry.place,
                       Quote(entry.name) + " needs 'default: KEY', the item that the default settings use");
}

} // namespace

void CheckRules(const Model& model, Findings& findings) {
    std::set<std::string> names;
    for (const Entry& entry : model.entries) {
        CheckUnique(names, "entry", entry.name, entry.place, findings);
        CheckEntry(entry, findings);
    }
}
