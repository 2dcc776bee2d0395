// Parts that both formats of recordings have: values and the objects read so far.
#include "simprinter/recordings/recorded_values.h"

#include "common/text.h"

#include <algorithm>

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
