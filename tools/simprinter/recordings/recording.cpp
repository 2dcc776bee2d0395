// Parts of both recording formats: encodings, lines, values and the objects read so far.
#include "simprinter/recordings/recording.h"

#include "common/encoding.h"
#include "common/text.h"

#include <algorithm>

namespace {

// The text in UTF-8 of a file in UTF-16, as editors and redirected output of Windows make it.
std::string TextOfUtf16(std::string_view text, Findings& findings) {
    const bool isBigEndian = text.front() == '\xFE' || text.front() == '\0';
    std::u16string units;
    for (size_t i = 0; i + 1 < text.size(); i += 2) {
        const auto byte = [&](size_t at) { return static_cast<uint8_t>(text[at]); };
        units.push_back(
            static_cast<char16_t>(isBigEndian ? byte(i) << 8 | byte(i + 1) : byte(i + 1) << 8 | byte(i)));
    }
    if (!units.empty() && units.front() == u'\xFEFF')
        units.erase(0, 1);
    bool isWellFormed = false;
    const std::string utf8 = Utf8FromUtf16(units, isWellFormed);
    if (!isWellFormed || text.size() % 2 != 0)
        findings.Warning(AtLine(1), "this file is damaged UTF-16: some characters are lost");
    return utf8;
}

// Without a mark and in UTF-8 or an encoding that has ASCII in the same bytes.
std::string PlainText(const std::string& text, Findings& findings) {
    switch (EncodingOf(text)) {
    case Encoding::kBytes:
        break;
    case Encoding::kUtf16:
        return TextOfUtf16(text, findings);
    case Encoding::kUtf32:
    case Encoding::kNotText:
        findings.Error(AtLine(1), WideTextFault(text));
        return "";
    }
    return std::string(WithoutUtf8Mark(text));
}

void ReportNoObject(const Lines& lines, Findings& findings) {
    if (FindWalkLine(lines) != lines.size() || FindSnmprecLine(lines) != lines.size())
        return findings.Error(AtLine(1), "no object is left: none has a value that can be read");
    constexpr size_t kMaxQuoted = 80;
    const std::string expected =
        "no recorded object: expected 'NAME = TYPE: VALUE' as snmpwalk prints it, or "
        "'1.3.6...|TAG|VALUE'";
    if (const Place place = FindObjectBehindOther(lines); place.line != 0)
        return findings.Error(place, expected + "; one seems to begin here: remove what is in front of it, "
                                         + Quote(lines[place.line - 1].substr(0, place.column - 1)));
    const auto first = std::find_if(lines.begin(), lines.end(), [](std::string_view line) {
        return line.find_first_not_of(" \t\r") != std::string_view::npos;
    });
    if (first == lines.end())
        return findings.Error(AtLine(1), expected + "; the file is empty");
    findings.Error(AtLine(static_cast<uint64_t>(first - lines.begin()) + 1),
                   expected + ", not " + Quote(WithoutCr(*first).substr(0, kMaxQuoted)));
}

} // namespace

Lines SplitLines(std::string_view text) {
    Lines lines;
    const char lineEnd = text.find('\n') == std::string_view::npos ? '\r' : '\n';
    while (!text.empty()) {
        const size_t end = text.find(lineEnd);
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

std::string_view WithoutCr(std::string_view line) {
    return line.substr(0, line.size() - (!line.empty() && line.back() == '\r' ? 1 : 0));
}

std::string TypeText(Tag tag) {
    constexpr const char* k32Bits = "a whole number from 0 to 4294967295";
    const std::pair<Tag, std::string> rows[] = {
        {kInteger, "INTEGER, a whole number from -2147483648 to 2147483647"},
        {kOctetString, "OCTET STRING, pairs of hexadecimal digits"},
        {kObjectId, "OBJECT IDENTIFIER, numbers with dots between"},
        {kIpAddress, "IpAddress, four numbers from 0 to 255 with dots between"},
        {kCounter, std::string("Counter32, ") + k32Bits},
        {kGauge, std::string("Gauge32, ") + k32Bits},
        {kTimeTicks, std::string("TimeTicks, ") + k32Bits},
        {kUnsigned, std::string("Unsigned32, ") + k32Bits},
        {kCounter64, "Counter64, a whole number from 0 to 18446744073709551615"},
        {kOpaque, "Opaque, a number or pairs of hexadecimal digits"},
    };
    const auto* const row =
        std::find_if(std::begin(rows), std::end(rows), [&](const auto& r) { return r.first == tag; });
    return row == std::end(rows) ? "NULL" : row->second;
}

std::optional<Value> ParseNumber(Tag tag, std::string_view text) {
    if (tag == kCounter64) {
        const std::optional<uint64_t> number = ParseWhole<uint64_t>(text);
        return number ? std::optional(Counter64Value(*number)) : std::nullopt;
    }
    const std::optional<int64_t> number = ParseWhole<int64_t>(text);
    const int64_t least = tag == kInteger ? INT32_MIN : 0;
    const int64_t most = tag == kInteger ? INT32_MAX : int64_t{UINT32_MAX};
    if (!number || *number < least || *number > most)
        return std::nullopt;
    return NumberValue(*number, tag);
}

std::optional<Value> ParseHex(Tag tag, std::string_view text) {
    std::string bytes;
    for (size_t i = 0; i < text.size();) {
        if (text[i] == ' ' || text[i] == '\n' || text[i] == '\r') {
            ++i;
            continue;
        }
        const std::string_view pair = text.substr(i, 2);
        const std::optional<uint8_t> byte = ParseWhole<uint8_t>(pair, 16);
        if (!byte || pair.size() != 2)
            return std::nullopt;
        bytes.push_back(static_cast<char>(*byte));
        i += 2;
    }
    if (tag == kIpAddress && bytes.size() != 4)
        return std::nullopt;
    return TextValue(std::move(bytes), tag);
}

std::optional<Value> ParseOid(Tag, std::string_view text) {
    std::optional<Oid> oid = OidFromText(text);
    if (!oid)
        return std::nullopt;
    return OidValue(std::move(*oid));
}

std::optional<Value> ParseIpAddress(Tag tag, std::string_view text) {
    std::string bytes;
    for (int i = 0; i < 4; ++i) {
        const size_t end = i < 3 ? text.find('.') : text.size();
        if (end == std::string_view::npos)
            return std::nullopt;
        const std::optional<Value> part = ParseNumber(kGauge, text.substr(0, end));
        if (!part || part->number > 255)
            return std::nullopt;
        bytes.push_back(static_cast<char>(static_cast<uint8_t>(part->number)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return TextValue(std::move(bytes), tag);
}

void Recording::Add(Place place, const Oid& name, const Value& value) {
    if (!objects.emplace(name, value).second)
        Warn(place, OidText(name) + " occurs twice: the first value is used");
}

void Recording::Warn(Place place, const std::string& why) {
    lastPlace = place;
    if (warnings++ < kMaxListed)
        findings.Warning(place, why);
}

void Recording::CountUnlistedWarnings() {
    if (warnings > kMaxListed)
        findings.Warning(lastPlace, "up to this line, there are " + std::to_string(warnings - kMaxListed)
                                        + " more such warnings");
}

ObjectMap ReadRecording(const std::string& text, Findings& findings) {
    const std::string plain = PlainText(text, findings);
    const Lines lines = SplitLines(plain);
    Recording recording(findings);
    if (findings.HasErrors())
        return {};
    if (FindSnmprecLine(lines) < FindWalkLine(lines))
        ReadSnmprec(lines, recording);
    else
        ReadWalk(lines, recording);
    recording.CountUnlistedWarnings();
    if (recording.objects.empty())
        ReportNoObject(lines, findings);
    return recording.objects;
}
