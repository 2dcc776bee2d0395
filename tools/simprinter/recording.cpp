// What the recording formats share, see recording.h.
#include "simprinter/recording.h"

#include "common/text.h"

#include <algorithm>
#include <charconv>

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
    int64_t number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    const int64_t least = tag == kInteger ? INT32_MIN : 0;
    const int64_t most = tag == kInteger ? INT32_MAX : int64_t{UINT32_MAX};
    if (fault != std::errc{} || end != text.data() + text.size() || number < least || number > most)
        return std::nullopt;
    return NumberValue(number, tag);
}

std::optional<Value> ParseHex(Tag tag, std::string_view text) {
    std::string octets;
    for (size_t i = 0; i < text.size();) {
        if (text[i] == ' ' || text[i] == '\n') {
            ++i;
            continue;
        }
        uint8_t octet = 0;
        const std::string_view pair = text.substr(i, 2);
        const auto [end, fault] = std::from_chars(pair.data(), pair.data() + pair.size(), octet, 16);
        if (fault != std::errc{} || end != pair.data() + 2)
            return std::nullopt;
        octets.push_back(static_cast<char>(octet));
        i += 2;
    }
    if (tag == kIpAddress && octets.size() != 4)
        return std::nullopt;
    return TextValue(std::move(octets), tag);
}

std::optional<Value> ParseOid(Tag, std::string_view text) {
    std::optional<Oid> oid = OidFromText(text);
    if (!oid)
        return std::nullopt;
    return OidValue(std::move(*oid));
}

std::optional<Value> ParseIpAddress(Tag tag, std::string_view text) {
    std::string octets;
    for (int i = 0; i < 4; ++i) {
        const size_t end = i < 3 ? text.find('.') : text.size();
        if (end == std::string_view::npos)
            return std::nullopt;
        const std::optional<Value> part = ParseNumber(kGauge, text.substr(0, end));
        if (!part || part->number > 255)
            return std::nullopt;
        octets.push_back(static_cast<char>(static_cast<uint8_t>(part->number)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return TextValue(std::move(octets), tag);
}

void Recording::Add(Place place, std::string_view name, const std::optional<Value>& value,
                    std::string_view text) {
    const std::optional<Oid> oid = OidFromText(name);
    if (!oid)
        findings.Error(place, Quote(name) + " is no object identifier that SNMP can carry");
    else if (!value)
        findings.Error(place, "this is no value of its type: " + Quote(text));
    else if (!objects.emplace(*oid, *value).second)
        findings.Note(place, OidText(*oid) + " is recorded twice: the first counts");
}

void Recording::LeaveOutCounter64(Place place) {
    if (counter64s++ == 0)
        firstCounter64 = place;
}

void Recording::NoteWhatIsLeftOut() {
    if (counter64s != 0)
        findings.Note(firstCounter64,
                      "SNMPv1 can't carry Counter64: this object and all further ones of the type, "
                          + std::to_string(counter64s) + " in all, are left out");
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
