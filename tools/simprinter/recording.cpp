// Parts of both recording formats: lines, values and the objects read so far.
#include "simprinter/recording.h"

#include "common/text.h"

#include <algorithm>

std::vector<std::string_view> SplitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const size_t end = text.find('\n');
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    const auto endsInCr = [](std::string_view line) { return !line.empty() && line.back() == '\r'; };
    if (std::all_of(lines.begin(), lines.end(), endsInCr)) {
        for (std::string_view& line : lines)
            line.remove_suffix(1);
    }
    return lines;
}

std::optional<Value> ParseNumber(Tag tag, std::string_view text) {
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
        if (text[i] == ' ' || text[i] == '\n') {
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

void Recording::Add(Place place, std::string_view name, const std::optional<Value>& value,
                    std::string_view text) {
    const std::optional<Oid> oid = OidFromText(name);
    if (!oid)
        findings.Error(place, Quote(name) + " is not a valid object identifier");
    else if (!value)
        findings.Error(place, Quote(text) + " is not a value of its type");
    else if (!objects.emplace(*oid, *value).second)
        findings.Warning(place, OidText(*oid) + " occurs twice: the first value is used");
}

void Recording::LeaveOutCounter64(Place place) {
    if (counter64s++ == 0)
        firstCounter64 = place;
}

void Recording::NoteWhatIsLeftOut() {
    if (counter64s != 0)
        findings.Warning(firstCounter64,
                         "SNMPv1 has no Counter64: this object and all others of the type are left out, "
                             + std::to_string(counter64s) + " in total");
}

ObjectMap ReadRecording(const std::string& text, Findings& findings) {
    const std::vector<std::string_view> lines = SplitLines(text);
    Recording recording(findings);
    const auto isFirst = [](std::string_view line) { return IsSnmprecLine(line) || IsWalkLine(line); };
    const auto first = std::find_if(lines.begin(), lines.end(), isFirst);
    if (first == lines.end()) {
        findings.Error(AtLine(1),
                       "no recorded object: expected '.1.3.6... = TYPE: VALUE' as 'snmpwalk -On' prints it, "
                       "or '1.3.6...|TAG|VALUE'");
    } else if (IsSnmprecLine(*first)) {
        ReadSnmprec(lines, recording);
    } else {
        ReadWalk(lines, recording);
    }
    recording.NoteWhatIsLeftOut();
    return recording.objects;
}
