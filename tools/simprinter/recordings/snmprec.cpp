// Reads and writes the .snmprec format: one line OID|TAG|VALUE for each object. TAG is the type's tag in a
// message, then an x for hexadecimal or an e for escaped values, then perhaps ":MODULE", a variation of the
// value by time or requests. Only the first value of a variation is read. Lines that start with # are
// comments.
#include "simprinter/recordings/formats.h"

#include "common/choices.h"
#include "common/text.h"

#include <algorithm>
#include <cmath>

namespace {

std::optional<Value> ParsePlain(Tag tag, std::string_view text) {
    return TextValue(std::string(text), tag);
}
std::optional<Value> ParseNothing(Tag, std::string_view) {
    return Value();
}

struct TagRow {
    const char* tagText;
    Tag tag;
    ParseValue parse;
};
// clang-format off
constexpr TagRow kTags[] = {
    {"2",   kInteger,     ParseNumber},
    {"4",   kOctetString, ParsePlain},
    {"5",   kNull,        ParseNothing},
    {"6",   kObjectId,    ParseOid},
    {"64",  kIpAddress,   ParseIpAddress},
    {"65",  kCounter,     ParseNumber},
    {"66",  kGauge,       ParseNumber},
    {"67",  kTimeTicks,   ParseNumber},
    {"68",  kOpaque,      ParsePlain},
    {"70",  kCounter64,   ParseNumber},
    {"71",  kUnsigned,    ParseNumber},
};
// clang-format on

// The parts of a line.
struct Record {
    std::string_view name, tag, module, value;
    char encoding = 0; // x, e or none
    uint64_t tagColumn = 0, valueColumn = 0;
};

std::optional<Record> SplitRecord(std::string_view line) {
    const size_t first = line.find('|');
    const size_t second = first == std::string_view::npos ? first : line.find('|', first + 1);
    if (second == std::string_view::npos)
        return std::nullopt;
    Record record;
    record.name = line.substr(0, first);
    record.tag = line.substr(first + 1, second - first - 1);
    record.value = line.substr(second + 1);
    record.tagColumn = first + 2;
    record.valueColumn = second + 2;
    if (const size_t colon = record.tag.find(':'); colon != std::string_view::npos) {
        record.module = record.tag.substr(colon + 1);
        record.tag = record.tag.substr(0, colon);
    }
    if (!record.tag.empty() && (record.tag.back() == 'x' || record.tag.back() == 'e')) {
        record.encoding = record.tag.back();
        record.tag.remove_suffix(1);
    }
    return record;
}

// Escapes as in a literal of Python. Nothing for an unknown escape.
std::optional<std::string> Unescaped(std::string_view text) {
    constexpr std::string_view kLetters = "abfnrtv\\'\"", kBytes = "\a\b\f\n\r\t\v\\'\"";
    std::string bytes;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\') {
            bytes.push_back(text[i]);
            continue;
        }
        if (++i == text.size())
            return std::nullopt;
        if (const size_t letter = kLetters.find(text[i]); letter != std::string_view::npos) {
            bytes.push_back(kBytes[letter]);
            continue;
        }
        const std::string_view digits = text.substr(i + 1, 2);
        const std::optional<uint8_t> byte = ParseWhole<uint8_t>(digits, 16);
        if (text[i] != 'x' || digits.size() != 2 || !byte)
            return std::nullopt;
        bytes.push_back(static_cast<char>(*byte));
        i += 2;
    }
    return bytes;
}

// A number in hexadecimal, most significant byte first.
std::optional<Value> ParseHexNumber(Tag tag, std::string_view text) {
    const std::optional<uint64_t> number = ParseWhole<uint64_t>(text, 16);
    if (!number)
        return std::nullopt;
    if (tag != kInteger)
        return ParseNumber(tag, std::to_string(*number));
    if (*number > UINT32_MAX)
        return std::nullopt;
    return NumberValue(static_cast<int32_t>(static_cast<uint32_t>(*number)));
}

std::optional<Value> ParseEncoded(const TagRow& row, char encoding, std::string_view text) {
    if (encoding == 'e') {
        const std::optional<std::string> bytes = Unescaped(text);
        return bytes ? row.parse(row.tag, *bytes) : std::nullopt;
    }
    if (encoding != 'x' || row.tag == kNull)
        return row.parse(row.tag, text);
    if (row.tag == kObjectId)
        return std::nullopt;
    return IsNumber(row.tag) ? ParseHexNumber(row.tag, text) : ParseHex(row.tag, text);
}

// "KEY=VALUE,KEY=VALUE" of a variation.
std::optional<std::string_view> Setting(std::string_view settings, std::string_view key) {
    while (!settings.empty()) {
        const std::string_view setting = settings.substr(0, settings.find(','));
        settings.remove_prefix(std::min(setting.size() + 1, settings.size()));
        if (setting.substr(0, setting.find('=')) == key)
            return setting.substr(std::min(key.size() + 1, setting.size()));
    }
    return std::nullopt;
}

// The value at the start: the initial one or else the least, plus the offset and what the function gives for
// 0.
std::optional<Value> FirstNumber(Tag tag, std::string_view settings) {
    const auto number = [&](const char* key, double absent) {
        const std::optional<std::string_view> text = Setting(settings, key);
        return text ? ParseWhole<double>(*text).value_or(NAN) : absent;
    };
    const std::string_view function = Setting(settings, "function").value_or("").substr(0, 3);
    const double atZero = function == "cos" || function == "exp" ? number("scale", 1) : 0;
    const double offset = Setting(settings, "cumulative") ? 0 : number("offset", 0);
    const double least = number("min", 0), most = number("max", tag == kCounter64 ? 1.8e19 : UINT32_MAX);
    const double value = std::min(std::max(number("initial", least) + offset + atZero, least), most);
    if (!(value > -1e19 && value < 1.8e19)) // also not a number
        return std::nullopt;
    return ParseNumber(tag, value < 0 ? std::to_string(static_cast<int64_t>(value))
                                      : std::to_string(static_cast<uint64_t>(value)));
}

std::optional<Value> FirstValue(const TagRow& row, std::string_view module, std::string_view settings) {
    if (module == "numeric")
        return IsNumber(row.tag) ? FirstNumber(row.tag, settings) : std::nullopt;
    if (const std::optional<std::string_view> value = Setting(settings, "value"))
        return row.parse(row.tag, *value);
    const std::optional<std::string_view> hex = Setting(settings, "hexvalue");
    return hex ? ParseEncoded(row, 'x', *hex) : std::nullopt;
}

std::string ExpectedText(Tag tag, char encoding) {
    if (encoding == 'e' && tag == kOctetString)
        return "OCTET STRING with escapes such as \\n, \\\\ and \\x1B";
    return TypeText(tag) + (encoding == 'x' && IsNumber(tag) ? ", in hexadecimal" : "");
}

void ReadRecord(std::string_view line, uint64_t number, Recording& recording) {
    const std::optional<Record> record = SplitRecord(line);
    if (!record)
        return recording.Warn(AtLine(number), "expected OID|TAG|VALUE, not " + Quote(line));
    const std::optional<Oid> name = OidFromText(record->name);
    if (!name)
        return recording.Warn({number, 1}, Quote(record->name) + " is not a valid object identifier");
    const auto row = std::find_if(std::begin(kTags), std::end(kTags),
                                  [&](const TagRow& r) { return record->tag == r.tagText; });
    if (row == std::end(kTags))
        return recording.Warn({number, record->tagColumn},
                              "unknown tag " + Quote(record->tag) + "; "
                                  + Choices(kTags, [](const TagRow& r) { return r.tagText; })
                                  + ", each also with x or e");
    const std::optional<Value> value = record->module.empty()
                                           ? ParseEncoded(*row, record->encoding, record->value)
                                           : FirstValue(*row, record->module, record->value);
    if (value)
        recording.Add(AtLine(number), *name, *value);
    else if (record->module.empty())
        recording.Warn({number, record->valueColumn}, "expected " + ExpectedText(row->tag, record->encoding)
                                                          + ", not " + Quote(record->value));
    else
        recording.Warn({number, record->valueColumn},
                       "the variation " + Quote(record->module)
                           + " gives no first value: expected value=... or, of "
                             "'numeric', initial=...");
}

bool IsPlainText(const std::string& bytes) {
    const auto isPlain = [](char c) { return c >= ' ' && c <= '~'; };
    return std::all_of(bytes.begin(), bytes.end(), isPlain)
           && (bytes.empty() || (bytes.front() != ' ' && bytes.back() != ' '));
}

} // namespace

size_t FindSnmprecLine(const Lines& lines) {
    const auto first = std::find_if(lines.begin(), lines.end(), [](std::string_view line) {
        const size_t end = line.find_first_not_of("0123456789.");
        return end != 0 && end != std::string_view::npos && line[end] == '|';
    });
    return static_cast<size_t>(first - lines.begin());
}

void ReadSnmprec(const Lines& lines, Recording& recording) {
    for (size_t i = 0; i < lines.size(); ++i) {
        const std::string_view line = WithoutCr(lines[i]);
        const bool isBlank = line.find_first_not_of(" \t") == std::string_view::npos;
        if (!isBlank && line.front() != '#')
            ReadRecord(line, i + 1, recording);
    }
}

std::string SnmprecLine(const Oid& name, const Value& value) {
    std::string line = OidText(name).substr(1) + '|' + std::to_string(value.tag);
    if (value.tag == kCounter64)
        return line + '|' + std::to_string(static_cast<uint64_t>(value.number)) + '\n';
    if (IsNumber(value.tag))
        return line + '|' + std::to_string(value.number) + '\n';
    if (value.tag == kObjectId)
        return line + '|' + OidText(value.oid).substr(value.oid.empty() ? 0 : 1) + '\n';
    if (value.tag == kOctetString && IsPlainText(value.bytes))
        return line + '|' + value.bytes + '\n';
    constexpr const char* kDigits = "0123456789abcdef";
    line += value.tag == kNull ? "|" : "x|";
    for (const char byte : value.bytes) {
        line += kDigits[static_cast<uint8_t>(byte) >> 4];
        line += kDigits[static_cast<uint8_t>(byte) & 15];
    }
    return line + '\n';
}
