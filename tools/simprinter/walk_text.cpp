// Reads the output of net-snmp's `snmpwalk -On`: ".1.3.6... = TYPE: VALUE". A value may continue on further
// lines: a quoted text until a quote ends a line, any other until the next object.
#include "simprinter/recording.h"

#include "common/text.h"

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
    const size_t open = text.find('(');
    if (open != std::string_view::npos && open != 0 && text.back() == ')')
        return ParseNumber(tag, text.substr(open + 1, text.size() - open - 2));
    return ParseNumber(tag, text.substr(0, text.find(' ')));
}

// "(100) 0:00:01.00"
std::optional<Value> ParseTicks(Tag tag, std::string_view text) {
    text = Trimmed(text);
    if (text.empty() || text.front() != '(')
        return ParseNumber(tag, text);
    return ParseNumber(tag, text.substr(1, std::min(text.find(')'), text.size()) - 1));
}

// In quotes, with quotes and backslashes escaped; an unquoted text is taken literally.
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

std::optional<Value> ParseTrimmedOid(Tag tag, std::string_view text) {
    return ParseOid(tag, Trimmed(text));
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

// An Opaque number: the byte 9F, the kind, the size, then the number.
template <typename Number, typename Bits>
std::optional<Value> ParseOpaqueNumber(char kind, std::string_view text) {
    text = Trimmed(text);
    const std::optional<Number> number = ParseWhole<Number>(text);
    if (!number)
        return std::nullopt;
    static_assert(sizeof(Number) == sizeof(Bits));
    Bits bits;
    std::memcpy(&bits, &*number, sizeof bits);
    std::string bytes = {'\x9F', kind, static_cast<char>(sizeof bits)};
    for (size_t i = sizeof bits; i-- > 0;)
        bytes.push_back(static_cast<char>(static_cast<uint8_t>(bits >> (8 * i))));
    return TextValue(std::move(bytes), kOpaque);
}
std::optional<Value> ParseFloat(Tag, std::string_view text) {
    return ParseOpaqueNumber<float, uint32_t>('\x78', text);
}
std::optional<Value> ParseDouble(Tag, std::string_view text) {
    return ParseOpaqueNumber<double, uint64_t>('\x79', text);
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
    {"Hex-STRING: ",     kOctetString, ParseHex},
    {"BITS: ",           kOctetString, ParseBits},
    {"\"\"",             kOctetString, ParseEmpty},
    {"NULL",             kNull,        ParseNull},
    {"OID: ",            kObjectId,    ParseTrimmedOid},
    {"IpAddress: ",      kIpAddress,   ParseTrimmedAddress},
    {"Counter32: ",      kCounter,     ParseNamedNumber},
    {"Gauge32: ",        kGauge,       ParseNamedNumber},
    {"Timeticks: ",      kTimeTicks,   ParseTicks},
    {"Opaque: Float: ",  kOpaque,      ParseFloat},
    {"Opaque: Double: ", kOpaque,      ParseDouble},
    {"OPAQUE: ",         kOpaque,      ParseHex},
};
// Printed in place of an object.
constexpr const char* kNoObject[] = {"No more variables left", "No Such Object", "No Such Instance"};
// clang-format on

bool StartsWith(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

// snmpwalk puts a remark before a value whose type differs from the MIB's.
std::string_view WithoutRemark(std::string_view text) {
    const size_t end = StartsWith(text, "Wrong Type (should be ") ? text.find("): ") : std::string_view::npos;
    return end == std::string_view::npos ? text : text.substr(end + 3);
}

void ReadObject(Place place, std::string_view name, std::string_view text, Recording& recording) {
    if (std::any_of(std::begin(kNoObject), std::end(kNoObject),
                    [&](const char* s) { return StartsWith(text, s); }))
        return;
    if (StartsWith(text, "Counter64: "))
        return recording.LeaveOutCounter64(place);
    for (const TypeRow& row : kTypes) {
        if (StartsWith(text, row.name))
            return recording.Add(place, name, row.parse(row.tag, text.substr(std::strlen(row.name))), text);
    }
    // The only type that is printed without its name.
    if (const std::optional<Value> number = ParseNumber(kUnsigned, text))
        return recording.Add(place, name, number, text);
    recording.findings.Error(place, "unknown type after the equals sign: " + Quote(text));
}

// Whether a quoted text is still open: it ends with an unescaped quote at the end of a line.
bool IsOpen(std::string_view text) {
    constexpr std::string_view kStart = "STRING: \"";
    if (!StartsWith(text, kStart))
        return false;
    text.remove_prefix(kStart.size());
    if (text.empty() || text.back() != '"')
        return true;
    text.remove_suffix(1);
    const size_t lastOther = text.find_last_not_of('\\');
    return (text.size() - (lastOther == std::string_view::npos ? 0 : lastOther + 1)) % 2 != 0;
}

} // namespace

bool IsWalkLine(std::string_view line) {
    const size_t end = line.find_first_not_of("0123456789.");
    return end != 0 && StartsWith(line, ".") && end != std::string_view::npos
           && StartsWith(line.substr(end), " = ");
}

void ReadWalk(const std::vector<std::string_view>& lines, Recording& recording) {
    for (size_t i = 0; i < lines.size();) {
        const Place place = AtLine(i + 1);
        const std::string_view line = lines[i++];
        if (!IsWalkLine(line)) {
            if (!Trimmed(line).empty() && line != "End of MIB")
                recording.findings.Error(place, "expected '.1.3.6... = TYPE: VALUE', not " + Quote(line));
            continue;
        }
        const size_t equals = line.find(" = ");
        std::string text(WithoutRemark(line.substr(equals + 3)));
        const bool isQuoted = IsOpen(text);
        const auto goesOn = [&] {
            return isQuoted ? IsOpen(text) : !IsWalkLine(lines[i]) && lines[i] != "End of MIB";
        };
        while (i < lines.size() && goesOn())
            text.append("\n").append(lines[i++]);
        if (isQuoted && IsOpen(text))
            recording.findings.Error(place, "the quoted text that starts here has no end");
        else
            ReadObject(place, line.substr(0, equals), text, recording);
    }
}
