// Reads the values in net-snmp's output, with their types or without.
#include "simprinter/recordings/walk_text.h"

#include "common/choices.h"
#include "common/standard_objects.h"
#include "common/text.h"
#include "simprinter/recordings/recorded_values.h"

#include <algorithm>
#include <cstring>

namespace {

std::string_view Trimmed(std::string_view text) {
    constexpr const char* kBlanks = " \r\n";
    const size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos ? ""
                                           : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// "3", "idle(3)" or "3 sheets".
std::optional<Value> ParseNamedNumber(Tag tag, std::string_view text) {
    text = Trimmed(text);
    const size_t open = text.find('('), close = text.find(')');
    if (open != std::string_view::npos && open != 0 && close != std::string_view::npos && close > open)
        return ParseNumber(tag, text.substr(open + 1, close - open - 1));
    return ParseNumber(tag, text.substr(0, text.find(' ')));
}

// "1:2:03:04.05": days, hours, minutes, seconds, hundredths.
std::optional<Value> ParseClock(Tag tag, std::string_view text) {
    constexpr uint64_t kHundredths[] = {8640000, 360000, 6000, 100, 1};
    constexpr char kEnds[] = {':', ':', ':', '.', '\0'};
    uint64_t ticks = 0;
    for (size_t i = 0; i < std::size(kHundredths); ++i) {
        const size_t end = kEnds[i] != '\0' ? text.find(kEnds[i]) : text.size();
        if (end == std::string_view::npos)
            return std::nullopt;
        const std::optional<uint32_t> part = ParseWhole<uint32_t>(text.substr(0, end));
        if (!part)
            return std::nullopt;
        ticks += *part * kHundredths[i];
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return ticks <= UINT32_MAX ? std::optional(NumberValue(static_cast<int64_t>(ticks), tag)) : std::nullopt;
}

// "(100) 0:00:01.00", "0:0:00:01.00" or "100"
std::optional<Value> ParseTicks(Tag tag, std::string_view text) {
    text = Trimmed(text);
    if (HasPrefix(text, "("))
        return ParseNumber(tag, text.substr(1, std::min(text.find(')'), text.size()) - 1));
    const std::optional<Value> clock = ParseClock(tag, text);
    return clock ? clock : ParseNumber(tag, text);
}

// In quotes, with quotes and backslashes escaped; an unquoted text is taken literally. A text of several
// lines with a quote inside is damaged.
std::optional<Value> ParseString(Tag tag, std::string_view text) {
    if (text.empty() || text.front() != '"')
        return TextValue(std::string(text), tag);
    text.remove_prefix(1);
    if (text.empty() || text.back() != '"')
        return std::nullopt;
    text.remove_suffix(1);
    std::string bytes;
    for (size_t i = 0; i < text.size(); ++i) {
        const bool isEscape =
            text[i] == '\\' && i + 1 < text.size() && (text[i + 1] == '"' || text[i + 1] == '\\');
        bytes.push_back(text[isEscape ? ++i : i]);
    }
    return TextValue(std::move(bytes), tag);
}

// Hexadecimal bytes; the same as characters may follow in brackets at the end of a line.
std::optional<Value> ParseHexLines(Tag tag, std::string_view text) {
    std::string digits;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        digits.append(line.substr(0, line.find('['))).push_back(' ');
    }
    return ParseHex(tag, digits);
}

// "80 00 firstBit(0)": the names of the bits follow the bytes.
std::optional<Value> ParseBits(Tag tag, std::string_view text) {
    size_t end = 0;
    const auto isHexPair = [&] {
        const std::string_view word = text.substr(end, text.find(' ', end) - end);
        return word.size() == 2 && word.find_first_not_of("0123456789ABCDEFabcdef") == std::string_view::npos;
    };
    while (end < text.size() && isHexPair())
        end = std::min(end + 3, text.size());
    return ParseHex(tag, text.substr(0, end));
}

std::optional<Value> ParseNamedOid(Tag, std::string_view text) {
    text = Trimmed(text);
    WalkName name = ReadWalkName(text);
    if (name.oid.empty() || name.length != text.size())
        return std::nullopt;
    return OidValue(std::move(name.oid));
}
std::optional<Value> ParseTrimmedAddress(Tag tag, std::string_view text) {
    return ParseIpAddress(tag, Trimmed(text));
}
std::optional<Value> ParseNull(Tag, std::string_view) {
    return Value();
}
std::optional<Value> ParseEmpty(Tag tag, std::string_view) {
    return TextValue("", tag);
}

template <typename Number, typename Bits>
std::optional<Value> ParseOpaqueNumber(char kind, std::string_view text) {
    text = Trimmed(text);
    const std::optional<Number> number = ParseWhole<Number>(text);
    if (!number)
        return std::nullopt;
    static_assert(sizeof(Number) == sizeof(Bits));
    Bits bits;
    std::memcpy(&bits, &*number, sizeof bits);
    return OpaqueNumberValue(kind, bits, sizeof bits);
}
std::optional<Value> ParseFloat(Tag, std::string_view text) {
    return ParseOpaqueNumber<float, uint32_t>(kOpaqueFloat, text);
}
std::optional<Value> ParseDouble(Tag, std::string_view text) {
    return ParseOpaqueNumber<double, uint64_t>(kOpaqueDouble, text);
}

struct TypeRow {
    const char* name; // between the equals sign and the value
    Tag tag;
    ParseValue parse;
};
// clang-format off
constexpr TypeRow kTypes[] = {
    {"INTEGER: ",        kInteger,     ParseNamedNumber},
    {"STRING: ",         kOctetString, ParseString},
    {"Hex-STRING: ",     kOctetString, ParseHexLines},
    {"BITS: ",           kOctetString, ParseBits},
    {"\"\"",             kOctetString, ParseEmpty},
    {"NULL",             kNull,        ParseNull},
    {"OID: ",            kObjectId,    ParseNamedOid},
    {"IpAddress: ",      kIpAddress,   ParseTrimmedAddress},
    {"Counter32: ",      kCounter,     ParseNamedNumber},
    {"Counter64: ",      kCounter64,   ParseNamedNumber},
    {"Gauge32: ",        kGauge,       ParseNamedNumber},
    {"Timeticks: ",      kTimeTicks,   ParseTicks},
    {"Opaque: Float: ",  kOpaque,      ParseFloat},
    {"Opaque: Double: ", kOpaque,      ParseDouble},
    {"OPAQUE: ",         kOpaque,      ParseHexLines},
};
// clang-format on

// The type at the start of the text. Blanks at the end of lines are often lost.
const TypeRow* TypeAt(std::string_view text) {
    const auto* const row = std::find_if(std::begin(kTypes), std::end(kTypes), [&](const TypeRow& r) {
        const std::string_view name = r.name;
        return HasPrefix(text, name) || (name.back() == ' ' && text == name.substr(0, name.size() - 1));
    });
    return row == std::end(kTypes) ? nullptr : row;
}

// snmpwalk puts a remark before a value whose type differs from the MIB's.
std::string_view WithoutRemark(std::string_view text) {
    const size_t end = HasPrefix(text, "Wrong Type (should be ") ? text.find("): ") : std::string_view::npos;
    return end == std::string_view::npos ? text : text.substr(end + 3);
}

// Where a text begins, behind its type.
size_t StringStart(std::string_view text) {
    constexpr std::string_view kType = "STRING: ";
    const std::string_view value = WithoutRemark(text);
    return text.size() - value.size() + (HasPrefix(value, kType) ? kType.size() : 0);
}

// Decimal numbers separated by any of the characters; nothing when something else is in the text.
std::optional<std::vector<uint32_t>> Numbers(std::string_view text, const char* separators, int base) {
    std::vector<uint32_t> numbers;
    for (;;) {
        const size_t end = text.find_first_of(separators);
        const std::optional<uint32_t> number = ParseWhole<uint32_t>(text.substr(0, end), base);
        if (!number)
            return std::nullopt;
        numbers.push_back(*number);
        if (end == std::string_view::npos)
            return numbers;
        text.remove_prefix(end + 1);
    }
}

std::optional<Value> BytesOf(const std::vector<uint32_t>& numbers) {
    std::string bytes;
    for (const uint32_t number : numbers) {
        if (number > 255)
            return std::nullopt;
        bytes.push_back(static_cast<char>(static_cast<uint8_t>(number)));
    }
    return TextValue(std::move(bytes));
}

// "0:1b:2c:3d:4e:5f"
std::optional<Value> ParsePhysAddress(std::string_view text) {
    const auto numbers = Numbers(Trimmed(text), ":", 16);
    return numbers ? BytesOf(*numbers) : std::nullopt;
}

// "2026-5-1,12:0:0.0" or with ",+1:0": two bytes for the year, one for each other number and for the sign.
std::optional<Value> ParseDateAndTime(std::string_view text) {
    text = Trimmed(text);
    const size_t sign = text.find_last_of("+-");
    const bool hasZone = sign != std::string_view::npos && sign > 0 && text[sign - 1] == ',';
    auto numbers = Numbers(text.substr(0, hasZone ? sign - 1 : text.size()), "-,:.", 10);
    if (!numbers || numbers->size() != 7 || numbers->front() > UINT16_MAX)
        return std::nullopt;
    const uint32_t year = numbers->front();
    numbers->front() = year >> 8;
    numbers->insert(numbers->begin() + 1, year & 255);
    if (hasZone) {
        const auto zone = Numbers(text.substr(sign + 1), ":", 10);
        if (!zone || zone->size() != 2)
            return std::nullopt;
        numbers->push_back(static_cast<uint8_t>(text[sign]));
        numbers->insert(numbers->end(), zone->begin(), zone->end());
    }
    return BytesOf(*numbers);
}

// The forms of texts that depend on the object.
std::optional<Value> ParseText(const StandardObject* object, std::string_view text) {
    std::optional<Value> value;
    if (object && object->syntax == Syntax::kDateAndTime)
        value = ParseDateAndTime(text);
    if (object && object->syntax == Syntax::kPhysAddress)
        value = ParsePhysAddress(text);
    return value ? value : ParseString(kOctetString, text);
}

// "00 1A ", which the blank at its end distinguishes from a text, or with its characters, "00 1A   [..]".
bool IsPrintedHex(std::string_view line) {
    size_t bytes = 0;
    for (; line.size() > 2 && line[2] == ' ' && ParseHex(kOctetString, line.substr(0, 2)); ++bytes)
        line.remove_prefix(3);
    return bytes != 0
           && (line.empty() || (HasPrefix(line, "  [") && line.back() == ']' && line.size() == bytes + 4));
}

// A text without type in quotes, or bytes in hexadecimal.
std::optional<Value> ParseQuoted(std::string_view text) {
    const std::string_view inside = text.substr(1, text.size() - 2);
    const Lines lines = SplitLines(inside);
    return !lines.empty() && std::all_of(lines.begin(), lines.end(), IsPrintedHex)
               ? ParseHexLines(kOctetString, inside)
               : ParseString(kOctetString, text);
}

// A value without its type. Nothing when the text does not fit the object.
std::optional<Value> ParseByObject(const StandardObject& object, std::string_view text) {
    switch (object.syntax) {
    case Syntax::kNode:
        return std::nullopt;
    case Syntax::kInteger:
        if (const std::optional<int32_t> number = NumberOfWord(object, Trimmed(text)))
            return NumberValue(*number);
        return ParseNamedNumber(kInteger, text);
    case Syntax::kOid:
        return ParseNamedOid(kObjectId, text);
    case Syntax::kIpAddress:
        return ParseTrimmedAddress(kIpAddress, text);
    case Syntax::kTimeTicks:
        return ParseTicks(kTimeTicks, text);
    case Syntax::kCounter32:
    case Syntax::kGauge32:
    case Syntax::kCounter64:
        return ParseNamedNumber(static_cast<Tag>(object.syntax), text);
    case Syntax::kText:
    case Syntax::kDateAndTime:
    case Syntax::kPhysAddress:
        break;
    }
    return ParseText(&object, text);
}

// The standard object that this is an instance of; null when there is none.
const StandardObject* ObjectWithValue(const Oid& name) {
    const std::optional<FoundObject> found = FindObjectAt(name);
    return found && found->object->syntax != Syntax::kNode ? found->object : nullptr;
}

// The words of an enumeration, or the first ones of many.
std::string WordList(const StandardObject& object) {
    constexpr size_t kMaxWords = 20;
    std::vector<std::string> words = WordsOf(object);
    const bool areAll = words.size() <= kMaxWords;
    words.resize(std::min(words.size(), kMaxWords));
    return Listing(words, [](const std::string& word) { return word; }) + (areAll ? "" : ", ...");
}

// A value of this type, or why there is none. `object` may be null.
WalkValue Checked(std::optional<Value> value, Tag tag, const StandardObject* object, std::string_view text) {
    if (value)
        return {std::move(value)};
    if (tag == kObjectId)
        return {{}, false, UnknownNameFault(Trimmed(text))};
    const bool isWord = object && object->words && text.find_first_of("-0123456789") != 0;
    return {{},
            false,
            "expected " + (isWord ? "a number or one of " + WordList(*object) : TypeText(tag)) + ", not "
                + Quote(text) + (isWord ? NearestHint(text, WordsOf(*object)) : "")};
}

std::optional<Value> Guess(std::string_view text) {
    const std::string_view trimmed = Trimmed(text);
    if (const std::optional<Value> number = ParseNumber(kInteger, trimmed))
        return number;
    if (const std::optional<Value> number = ParseNumber(kCounter, trimmed))
        return number;
    if (const std::optional<Value> ticks = ParseClock(kTimeTicks, trimmed))
        return ticks;
    const WalkName name = ReadWalkName(trimmed);
    if (name.isSure && name.length == trimmed.size() && !name.oid.empty()
        && (trimmed.front() == '.' || trimmed.find(':') != std::string_view::npos || trimmed.front() == 'i'))
        return OidValue(name.oid);
    return ParseString(kOctetString, text);
}

} // namespace

bool StartsWithType(std::string_view text) {
    const TypeRow* const row = TypeAt(WithoutRemark(text));
    return row && row->parse != ParseEmpty;
}

size_t FindQuote(std::string_view text) {
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"')
            return i;
        i += text[i] == '\\' ? 1 : 0;
    }
    return std::string_view::npos;
}

bool HasChangedQuote(std::string_view text) {
    const std::string_view value = text.substr(StringStart(text));
    return HasPrefix(value, "\u201C") || HasPrefix(value, "\u201D") || HasPrefix(value, "\u201E")
           || HasPrefix(value, "&quot;");
}

size_t FindOpeningQuote(std::string_view text) {
    const size_t at = StringStart(text);
    return HasPrefix(text.substr(at), "\"") ? at : std::string_view::npos;
}

Continuation ContinuationOf(const Oid& name, std::string_view text, bool hasTypes) {
    const TypeRow* const row = TypeAt(WithoutRemark(text));
    if (row)
        return row->parse == ParseString     ? Continuation::kText
               : row->parse == ParseHexLines ? Continuation::kHex
                                             : Continuation::kNone;
    const StandardObject* const object = ObjectWithValue(name);
    return hasTypes || (object && object->syntax != Syntax::kText) ? Continuation::kNone
                                                                   : Continuation::kText;
}

bool IsHexLine(std::string_view line) {
    const std::optional<Value> bytes = ParseHexLines(kOctetString, line);
    return bytes && !bytes->bytes.empty();
}

WalkValue ReadWalkValue(const Oid& name, std::string_view text, bool hasTypes) {
    text = WithoutRemark(text);
    const StandardObject* const object = ObjectWithValue(name);
    const bool isTicks = object && object->syntax == Syntax::kTimeTicks;
    if (const TypeRow* const row = TypeAt(text); row && (hasTypes || row->parse != ParseNull)) {
        const std::string_view value = text.substr(std::min(std::strlen(row->name), text.size()));
        if (row->parse == ParseString)
            return {ParseText(object, value)};
        const std::optional<Value> parsed = row->parse(row->tag, value);
        return Checked(parsed || row->tag != kInteger || !object ? parsed : ParseByObject(*object, value),
                       row->tag, object, value);
    }
    // With types only these are printed without one: a time in hundredths on request, and an unsigned number.
    if (hasTypes) {
        const std::optional<Value> number = ParseNumber(isTicks ? kTimeTicks : kUnsigned, text);
        return {number, false, number ? "" : "expected a type, as in 'INTEGER: 5', not " + Quote(text)};
    }
    if (HasPrefix(text, "\"") && text.size() > 1)
        return {ParseQuoted(text)};
    if (!object)
        return {Guess(text), true};
    return Checked(ParseByObject(*object, text), static_cast<Tag>(object->syntax), object, text);
}
