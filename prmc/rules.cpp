// The rules: texts fit their fields, numbers their width, names are unique, feature rows set a switch. Limits
// come from the schema and from the table of feature switches.
#include "prmc/rules.h"

#include "paramdata/feature_switches.h"
#include "paramdata/prm_layout.h"
#include "prmc/text.h"

#include <algorithm>
#include <set>

namespace {

constexpr const char* kOff = "Disable"; // value that says: this switch is off on purpose

std::string Number(uint64_t number) {
    return std::to_string(number);
}

// An 8-bit text of at most `most` characters.
void CheckBytes(const std::string& what, const std::string& text, size_t most, Place place,
                Findings& findings) {
    const auto isAscii = [](char c) { return c != '\0' && static_cast<unsigned char>(c) < 0x80; };
    if (!std::all_of(text.begin(), text.end(), isAscii))
        findings.Error(place, what + " " + Quote(text)
                                  + " has a character other than ASCII: only names can have it");
    else if (text.size() > most)
        findings.Error(place, what + " " + Quote(text) + " has " + Number(text.size())
                                  + " characters, at most " + Number(most) + " fit: shorten it");
}

void CheckName(const std::string& what, const std::string& text, size_t most, Place place,
               Findings& findings) {
    const size_t length = Utf16FromUtf8(text).size();
    if (text.find('\0') != std::string::npos)
        findings.Error(place, what + " " + Quote(text) + " has a zero character, which would end it");
    else if (length > most)
        findings.Error(place, what + " " + Quote(text) + " has " + Number(length) + " characters, at most "
                                  + Number(most) + " are shown: shorten it");
}

void CheckValue(const EntryRow& row, const Field& field, const Value& value, Findings& findings) {
    const std::string what = field.name;
    switch (field.type) {
    case FieldType::kKey:
        if (value.text.empty())
            findings.Error(value.place, "the key is empty: readers would end the list here");
        CheckBytes(what, value.text, kMostKeyChars, value.place, findings);
        break;
    case FieldType::kName:
        CheckName(what, value.text, row.nameChars, value.place, findings);
        break;
    case FieldType::kText:
        CheckBytes(what, value.text, field.count - 1, value.place, findings);
        break;
    case FieldType::kNumbers: {
        const unsigned bits = field.bits ? field.bits : row.valueBits;
        const uint64_t most = (uint64_t{1} << bits) - 1;
        for (const uint32_t number : value.numbers) {
            if (number > most)
                findings.Error(value.place, what + " " + Number(number) + " does not fit: its " + Number(bits)
                                                + "-bit field holds 0 to " + Number(most));
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

// A numbered switch takes TYPE1, TYPE2 ...
bool IsTypeValue(const std::string& value) {
    for (unsigned n = 1; n <= kMostSwitchType; ++n) {
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
                                                   + " is no variant: write TYPE1 to TYPE"
                                                   + Number(kMostSwitchType) + ", or leave the row out");
        } else if (!EqualNoCase(row.value, feature.enablingValue) && !EqualNoCase(row.value, kOff)) {
            findings.Error(row.valuePlace, "value " + Quote(row.value) + " of " + Quote(row.name)
                                               + " enables nothing: write " + feature.enablingValue + ", or "
                                               + kOff + " to leave the feature off");
        }
        return;
    }
    findings.Error(row.namePlace,
                   "no feature switch is called " + Quote(row.name) + NearestHint(row.name, names));
}

void CheckTableRow(const EntryRow& entry, const Pair& row, Findings& findings) {
    if (entry.rowNames.size() == 0)
        return CheckFeatureRow(row, findings);
    const auto isRow = [&](const char* name) { return EqualNoCase(name, row.name); };
    if (std::none_of(entry.rowNames.begin(), entry.rowNames.end(), isRow))
        findings.Error(row.namePlace,
                       std::string(entry.name) + " has no row " + Quote(row.name)
                           + NearestHint(row.name, {entry.rowNames.begin(), entry.rowNames.end()}));
}

void CheckTable(const Entry& entry, Findings& findings) {
    for (const Record& record : entry.records) {
        for (const Pair& row : record.values.front().pairs)
            CheckTableRow(*entry.row, row, findings);
    }
}

// The fields of a range are its lower bound, upper bound and default, in this order.
void CheckRange(const Entry& entry, Findings& findings) {
    for (const Record& record : entry.records) {
        const std::vector<Value>& values = record.values;
        if (!values[0].given || !values[1].given || !values[2].given)
            continue;
        const uint32_t least = values[0].numbers[0], most = values[1].numbers[0],
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
        for (size_t i = 0; i < kind.fields.size(); ++i) {
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
    if (kind.form == Form::kTable)
        CheckTable(entry, findings);
    if (kind.form == Form::kRange)
        CheckRange(entry, findings);
    if (entry.row->defaultNeeded && !entry.defaultItem)
        findings.Error(entry.place, Quote(entry.name) + " needs 'default: KEY': the settings start from it");
}

} // namespace

void CheckRules(const Model& model, Findings& findings) {
    std::set<std::string> names;
    for (const Entry& entry : model.entries) {
        CheckUnique(names, "entry", entry.name, entry.place, findings);
        CheckEntry(entry, findings);
    }
}
