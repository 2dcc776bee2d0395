// Formats requests and answers for the log.
#include "simprinter/snmp/log_text.h"

#include "common/text.h"

namespace {

constexpr size_t kMaxShown = 80;

struct NamedTag {
    Tag tag;
    const char* name;
};
// clang-format off
constexpr NamedTag kTagNames[] = {
    {kInteger,        "INTEGER"},
    {kOctetString,    "OCTET STRING"},
    {kNull,           "NULL"},
    {kObjectId,       "OBJECT IDENTIFIER"},
    {kIpAddress,      "IpAddress"},
    {kCounter,        "Counter"},
    {kGauge,          "Gauge"},
    {kTimeTicks,      "TimeTicks"},
    {kOpaque,         "Opaque"},
    {kCounter64,      "Counter64"},
    {kUnsigned,       "Unsigned32"},
    {kNoSuchObject,   "noSuchObject"},
    {kNoSuchInstance, "noSuchInstance"},
    {kEndOfMibView,   "endOfMibView"},
};
// clang-format on

const char* TagName(Tag tag) {
    for (const NamedTag& row : kTagNames)
        if (row.tag == tag)
            return row.name;
    return "?";
}

std::string ValueText(const Value& value) {
    const std::string name = TagName(value.tag);
    if (value.tag == kNull || IsException(value.tag))
        return name;
    if (value.tag == kObjectId)
        return name + ' ' + OidText(value.oid);
    if (value.tag == kCounter64)
        return name + ' ' + std::to_string(static_cast<uint64_t>(value.number));
    return name + ' ' + (IsNumber(value.tag) ? std::to_string(value.number) : PrintableText(value.bytes));
}

std::string ErrorText(long status) {
    const char* const names[] = {"noError",
                                 "tooBig",
                                 "noSuchName",
                                 "badValue",
                                 "readOnly",
                                 "genErr",
                                 "noAccess",
                                 "wrongType",
                                 "wrongLength",
                                 "wrongEncoding",
                                 "wrongValue",
                                 "noCreation",
                                 "inconsistentValue",
                                 "resourceUnavailable",
                                 "commitFailed",
                                 "undoFailed",
                                 "authorizationError",
                                 "notWritable",
                                 "inconsistentName"};
    const bool isKnown = status >= 0 && status < static_cast<long>(std::size(names));
    return isKnown ? names[status] : "error " + std::to_string(status);
}

} // namespace

std::string PrintableText(const std::string& bytes) {
    std::string text = "'";
    for (const char c : bytes.substr(0, kMaxShown)) {
        text += c < 0x20 || c > 0x7E ? HexEscape(c) : std::string(1, c);
    }
    return text + (bytes.size() > kMaxShown ? "...'" : "'");
}

std::string RequestText(const Message& request) {
    std::string text = std::string(request.version->name) + " #" + std::to_string(request.requestId) + ' '
                       + PduName(static_cast<int>(request.type));
    if (request.type == PduType::kGetBulk) {
        text += " (" + std::to_string(request.errorStatus) + " once, the others "
                + std::to_string(request.errorIndex) + " times)";
    }
    for (const VarBind& varBind : request.varBinds)
        text += ' ' + OidText(varBind.name);
    return text;
}

std::string ReplyText(const Message& reply) {
    if (reply.errorStatus != kNoError)
        return ErrorText(reply.errorStatus) + " at " + std::to_string(reply.errorIndex);
    std::string text;
    for (const VarBind& varBind : reply.varBinds)
        text += (text.empty() ? "" : ", ") + OidText(varBind.name) + ' ' + ValueText(varBind.value);
    return text.empty() ? "no variables" : text;
}
