// Object identifiers to text and back.
#include "simprinter/snmp/snmp_values.h"

#include <algorithm>
#include <charconv>

std::optional<Oid> OidFromText(std::string_view text) {
    if (!text.empty() && text.front() == '.')
        text.remove_prefix(1);
    Oid oid;
    const char* at = text.data();
    const char* const end = at + text.size();
    for (;;) {
        uint32_t subId = 0;
        const auto [next, error] = std::from_chars(at, end, subId);
        if (error != std::errc{} || oid.size() == kMaxSubIds)
            return std::nullopt;
        oid.push_back(subId);
        if (next == end)
            break;
        if (*next != '.')
            return std::nullopt;
        at = next + 1;
    }
    // A message encodes the first two sub-identifiers as one number, 40 times the first plus the second.
    if (oid.size() < 2 || oid[0] > 2 || (oid[0] < 2 && oid[1] > 39) || oid[1] > UINT32_MAX - 80)
        return std::nullopt;
    return oid;
}

std::string OidText(const Oid& oid) {
    std::string text;
    for (const uint32_t subId : oid)
        text += '.' + std::to_string(subId);
    return text;
}

bool StartsWith(const Oid& oid, const Oid& prefix) {
    return oid.size() >= prefix.size() && std::equal(prefix.begin(), prefix.end(), oid.begin());
}
