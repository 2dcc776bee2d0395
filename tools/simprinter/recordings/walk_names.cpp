// Reads the names of objects in net-snmp's output.
#include "simprinter/recordings/walk_text.h"

#include "common/standard_objects.h"
#include "common/text.h"

#include <algorithm>

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
bool IsLabelCharacter(char c) {
    return IsDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' || c == '_';
}

std::string_view TakeWhile(std::string_view& text, bool (*matches)(char)) {
    const auto end = std::find_if_not(text.begin(), text.end(), matches);
    const std::string_view taken = text.substr(0, static_cast<size_t>(end - text.begin()));
    text.remove_prefix(taken.size());
    return taken;
}

// Appends a part of an index in quotes. Double quotes mean that its length comes first.
bool TakeQuoted(std::string_view& text, Oid& oid) {
    const char quote = text.front();
    text.remove_prefix(1);
    const size_t start = oid.size();
    while (!text.empty() && text.front() != quote) {
        if (text.front() == '\\' && text.size() > 1)
            text.remove_prefix(1);
        oid.push_back(static_cast<uint8_t>(text.front()));
        text.remove_prefix(1);
    }
    if (text.empty())
        return false;
    text.remove_prefix(1);
    if (quote == '"')
        oid.insert(oid.begin() + static_cast<ptrdiff_t>(start), static_cast<uint32_t>(oid.size() - start));
    return true;
}

bool TakeNumber(std::string_view& text, Oid& oid) {
    const std::optional<uint32_t> number = ParseWhole<uint32_t>(TakeWhile(text, IsDigit));
    oid.push_back(number.value_or(0));
    return number.has_value();
}

// "[1]", "[10.0.0.1]" or "[\"text\"]"
bool TakeBrackets(std::string_view& text, Oid& oid) {
    text.remove_prefix(1);
    do {
        if (!text.empty() && text.front() == '.')
            text.remove_prefix(1);
        if (text.empty()
            || !(text.front() == '"' || text.front() == '\'' ? TakeQuoted(text, oid) : TakeNumber(text, oid)))
            return false;
    } while (!text.empty() && text.front() == '.');
    if (text.empty() || text.front() != ']')
        return false;
    text.remove_prefix(1);
    return true;
}

struct NameReader {
    std::string_view text;
    Oid oid = {};
    bool isKnown = true, hasLabel = false;

    // A label replaces what comes before it: ".iso.org.dod.internet" is the identifier of its last one.
    bool TakeLabel() {
        const std::string_view label = TakeWhile(text, IsLabelCharacter);
        const std::optional<FoundObject> found = FindObject(label);
        isKnown = found.has_value();
        hasLabel = true;
        oid = found ? found->oid : Oid();
        return !label.empty();
    }

    bool TakePart() {
        if (text.empty())
            return false;
        if (text.front() == '"' || text.front() == '\'')
            return TakeQuoted(text, oid);
        const auto end = std::find_if_not(text.begin(), text.end(), IsLabelCharacter);
        const bool isNumber = std::all_of(text.begin(), end, IsDigit);
        return isNumber ? TakeNumber(text, oid) : TakeLabel();
    }

    bool TakeParts() {
        if (!TakePart())
            return false;
        while (!text.empty() && (text.front() == '.' || text.front() == '[')) {
            if (text.front() == '[') {
                if (!TakeBrackets(text, oid))
                    return false;
                continue;
            }
            text.remove_prefix(1);
            if (!TakePart())
                return false;
        }
        return true;
    }
};

} // namespace

std::string UnknownNameFault(std::string_view name) {
    return "the name " + Quote(name) + " is unknown or not valid: record with 'snmpwalk -On'";
}

WalkName ReadWalkName(std::string_view line) {
    NameReader reader{line};
    const std::string_view module = TakeWhile(reader.text, IsLabelCharacter);
    const bool hasModule = !module.empty() && reader.text.substr(0, 2) == "::";
    if (hasModule)
        reader.text.remove_prefix(2);
    else
        reader.text = line.substr(!line.empty() && line.front() == '.' ? 1 : 0);
    if (!reader.TakeParts())
        return {};
    WalkName name;
    name.length = line.size() - reader.text.size();
    // Other numbers are relative to a point of the tree that is not known.
    const bool isNumber =
        !hasModule && !reader.hasLabel && (line.front() == '.' || line.substr(0, 6) == "1.3.6.");
    const bool isAbsolute = reader.hasLabel || isNumber;
    name.isSure = hasModule || isNumber || (reader.hasLabel && reader.isKnown);
    if (isAbsolute && reader.isKnown && OidFromText(OidText(reader.oid)))
        name.oid = std::move(reader.oid);
    return name;
}
