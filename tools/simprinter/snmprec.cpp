// Reads the .snmprec format: one line OID|TAG|VALUE for each object. TAG is the type's tag in a message, with
// an x for hexadecimal values. Lines that start with # are comments.
#include "simprinter/recording.h"

#include "common/choices.h"
#include "common/text.h"

#include <algorithm>

namespace {

constexpr const char* kCounter64Tag = "70";

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
    {"4x",  kOctetString, ParseHex},
    {"5",   kNull,        ParseNothing},
    {"6",   kObjectId,    ParseOid},
    {"64",  kIpAddress,   ParseIpAddress},
    {"64x", kIpAddress,   ParseHex},
    {"65",  kCounter,     ParseNumber},
    {"66",  kGauge,       ParseNumber},
    {"67",  kTimeTicks,   ParseNumber},
    {"68",  kOpaque,      ParsePlain},
    {"68x", kOpaque,      ParseHex},
    {"71",  kUnsigned,    ParseNumber},
};
// clang-format on

void ReadLine(std::string_view line, Place place, Recording& recording) {
    const size_t first = line.find('|');
    const size_t second = first == std::string_view::npos ? first : line.find('|', first + 1);
    if (second == std::string_view::npos)
        return recording.findings.Error(place, "expected OID|TAG|VALUE, not " + Quote(line));
    const std::string_view tagText = line.substr(first + 1, second - first - 1);
    if (tagText == kCounter64Tag)
        return recording.LeaveOutCounter64(place);
    const auto row = std::find_if(std::begin(kTags), std::end(kTags),
                                  [&](const TagRow& r) { return tagText == r.tagText; });
    if (row == std::end(kTags))
        return recording.findings.Error(place,
                                        "unknown tag " + Quote(tagText) + "; "
                                            + Choices(kTags, [](const TagRow& r) { return r.tagText; }));
    const std::string_view text = line.substr(second + 1);
    recording.Add(place, line.substr(0, first), row->parse(row->tag, text), text);
}

} // namespace

bool IsSnmprecLine(std::string_view line) {
    const size_t end = line.find_first_not_of("0123456789.");
    return end != 0 && end != std::string_view::npos && line[end] == '|';
}

void ReadSnmprec(const std::vector<std::string_view>& lines, Recording& recording) {
    for (size_t i = 0; i < lines.size(); ++i) {
        if (!lines[i].empty() && lines[i].front() != '#')
            ReadLine(lines[i], AtLine(i + 1), recording);
    }
}
