// Reads SNMP messages element by element, and puts them into words.
#include "workbench/lib/snmp_text.h"

#include "common/standard_objects.h"
#include "workbench/lib/module_parts.h"
#include "workbench/lib/text.h"

#include <algorithm>

namespace {

constexpr uint8_t kReport = 0xA8;
constexpr uint8_t kBerLongLength = 0x80;
constexpr uint8_t kCounter64 = 0x46;
constexpr int32_t kLastReadVersion = 1; // SNMPv2c; later ones have other messages
constexpr size_t kMaxShownBytes = 40;
constexpr uint32_t kMaxSubIdentifiers = 128;

struct NamedNumber {
    int32_t number;
    const char* name;
};

// clang-format off
constexpr NamedNumber kPduNames[] = {
    {0xA0, "GetRequest"},     {0xA1, "GetNextRequest"}, {0xA2, "GetResponse"}, {0xA3, "SetRequest"}, {0xA4, "Trap"},
    {0xA5, "GetBulkRequest"}, {0xA6, "InformRequest"},  {0xA7, "SNMPv2-Trap"}, {kReport, "Report"},
};

constexpr NamedNumber kErrorNames[] = {
    {0, "noError"},    {1, "tooBig"},         {2, "noSuchName"}, {3, "badValue"}, {4, "readOnly"},
    {5, "genErr"},     {6, "noAccess"},       {7, "wrongType"},  {8, "wrongLength"}, {9, "wrongEncoding"},
    {10, "wrongValue"}, {11, "noCreation"},   {12, "inconsistentValue"}, {13, "resourceUnavailable"},
    {14, "commitFailed"}, {15, "undoFailed"}, {16, "authorizationError"}, {17, "notWritable"},
    {18, "inconsistentName"},
};

enum class Form { kNumber, kBytes, kObjectId, kEmpty, kException };
constexpr struct {
    uint8_t type;
    Form form;
    const char* name;
} kTypes[] = {
    {ASN_INTEGER,          Form::kNumber,    "INTEGER"},
    {ASN_COUNTER32,        Form::kNumber,    "Counter32"},
    {ASN_GAUGE32,          Form::kNumber,    "Gauge32"},
    {ASN_TIMETICKS,        Form::kNumber,    "TimeTicks"},
    {ASN_UINTEGER32,       Form::kNumber,    "Unsigned32"},
    {kCounter64,           Form::kNumber,    "Counter64"},
    {ASN_OCTETSTRING,      Form::kBytes,     "OCTET STRING"},
    {ASN_IPADDRESS,        Form::kBytes,     "IpAddress"},
    {ASN_OPAQUE,           Form::kBytes,     "Opaque"},
    {ASN_OBJECTIDENTIFIER, Form::kObjectId,  "OBJECT IDENTIFIER"},
    {ASN_NULL,             Form::kEmpty,     "NULL"},
    {0x80,                 Form::kException, "noSuchObject"},
    {0x81,                 Form::kException, "noSuchInstance"},
    {0x82,                 Form::kException, "endOfMibView"},
};
// clang-format on

template <size_t N>
std::string NameOf(const NamedNumber (&names)[N], int32_t number, const std::string& otherwise) {
    const auto* found =
        std::find_if(names, std::end(names), [&](const NamedNumber& row) { return row.number == number; });
    return found != std::end(names) ? found->name : otherwise + std::to_string(number);
}

const auto* FindType(uint8_t type) {
    const auto* found =
        std::find_if(kTypes, std::end(kTypes), [&](const auto& row) { return row.type == type; });
    return found != std::end(kTypes) ? found : nullptr;
}

bool HasForm(uint8_t type, Form form) {
    const auto* row = FindType(type);
    return row != nullptr && row->form == form;
}

size_t Left(const BerReader& reader) {
    return static_cast<size_t>(reader.end - reader.at);
}

// The bytes that an element has by its header, the header included; 0 when the header is incomplete.
uint64_t AnnouncedSize(BerReader reader) {
    const uint8_t* const start = reader.at;
    const uint8_t* octet = BerTake(reader, 2);
    if (octet == nullptr)
        return 0;
    uint64_t length = octet[1];
    if (length >= kBerLongLength) {
        const size_t count = octet[1] - kBerLongLength;
        octet = count <= sizeof(uint32_t) ? BerTake(reader, count) : nullptr;
        if (octet == nullptr)
            return 0;
        length = 0;
        for (size_t i = 0; i < count; ++i)
            length = length << 8 | octet[i];
    }
    return static_cast<uint64_t>(reader.at - start) + length;
}

// Takes elements one after the other. The first that does not fit is noted as damage; all others are then
// empty.
struct MessageReader {
    SnmpMessage& message;
    const uint8_t* start;

    void Note(Damage damage, const std::string& text) const {
        if (message.damage == Damage::kNone) {
            message.damage = damage;
            message.damageText = text;
        }
    }

    BerReader OpenAny(BerReader& from, const char* name, uint8_t& tag) const {
        const BerReader before = from;
        BerReader contents = {};
        tag = BerOpenAny(from, contents);
        if (from.failed && !before.failed) {
            const std::string place = name + (" at byte " + std::to_string(before.at - start));
            const uint64_t size = AnnouncedSize(before);
            Note(Damage::kMalformed, Left(before) == 0 ? place + " is missing"
                                     : size == 0
                                         ? place + " has no valid length"
                                         : place + " takes " + std::to_string(size) + " bytes, but only "
                                               + std::to_string(Left(before)) + " are left");
        }
        return contents;
    }

    BerReader Open(BerReader& from, uint8_t tag, const char* name) const {
        const auto at = from.at - start;
        uint8_t found = 0;
        BerReader contents = OpenAny(from, name, found);
        if (!from.failed && found != tag) {
            Note(Damage::kMalformed, name + (" is expected at byte " + std::to_string(at))
                                         + ", but there is an element of type " + std::to_string(found));
            from = contents = {from.end, from.end, true};
        }
        return contents;
    }

    int32_t Integer(BerReader& from, const char* name) const {
        BerReader contents = Open(from, ASN_INTEGER, name);
        const bool isOpen = !contents.failed;
        const int32_t number = BerInteger(contents);
        if (isOpen && contents.failed)
            Note(Damage::kMalformed, std::string(name) + " is not a 32-bit number");
        return number;
    }

    ObjectId Identifier(BerReader contents, const char* name) const {
        uint32_t ids[kMaxSubIdentifiers];
        const bool isOpen = !contents.failed;
        const uint32_t count = BerReadSubIdentifiers(contents, ids, kMaxSubIdentifiers);
        if (!contents.failed)
            return {ids, ids + count};
        if (isOpen)
            Note(Damage::kMalformed, std::string(name) + " is not a valid object identifier");
        return {};
    }
};

// Unsigned, except INTEGER; of up to 64 bits.
void ReadNumber(const MessageReader& reader, BerReader contents) {
    SnmpMessage& message = reader.message;
    const size_t size = Left(contents);
    if (size == 0 || size > (message.valueType == kCounter64 ? 9 : 5)) {
        reader.Note(Damage::kMalformed, "the value is a number of " + std::to_string(size) + " bytes");
        return;
    }
    uint64_t number = message.valueType == ASN_INTEGER && (*contents.at & 0x80) != 0 ? UINT64_MAX : 0;
    for (; contents.at < contents.end; ++contents.at)
        number = number << 8 | *contents.at;
    message.number = static_cast<int64_t>(number);
}

void ReadValue(const MessageReader& reader, BerReader& varBind) {
    SnmpMessage& message = reader.message;
    const BerReader contents = reader.OpenAny(varBind, "the value", message.valueType);
    const auto* row = FindType(message.valueType);
    if (row == nullptr || varBind.failed)
        return;
    if (row->form == Form::kNumber)
        ReadNumber(reader, contents);
    else if (row->form == Form::kBytes)
        message.bytes.assign(contents.at, contents.end);
    else if (row->form == Form::kObjectId)
        message.objectValue = reader.Identifier(contents, "the value");
}

// What is there of the contents of an element that is cut.
BerReader CutContents(const BerReader& element) {
    const size_t header = Left(element) < 2 || element.at[1] < kBerLongLength
                              ? 2
                              : 2 + (element.at[1] - size_t{kBerLongLength});
    return {element.at + std::min(header, Left(element)), element.end, false};
}

// The contents of a message, also of one that is cut.
BerReader OpenMessage(const MessageReader& reader, BerReader datagram) {
    const size_t left = Left(datagram);
    const uint64_t size = AnnouncedSize(datagram);
    const bool isMessage = left == 0 || *datagram.at == ASN_SEQUENCE;
    if (!isMessage || (size != 0 && size <= left))
        return reader.Open(datagram, ASN_SEQUENCE, "a message");
    reader.Note(Damage::kCut, size == 0 ? std::to_string(left) + " bytes"
                                        : std::to_string(left) + " of " + std::to_string(size) + " bytes");
    return CutContents(datagram);
}

void ReadPdu(const MessageReader& reader, BerReader pdu) {
    SnmpMessage& message = reader.message;
    message.requestId = static_cast<uint32_t>(reader.Integer(pdu, "the request-id"));
    message.hasRequestId = !pdu.failed;
    message.errorStatus = reader.Integer(pdu, "the error-status");
    message.errorIndex = reader.Integer(pdu, "the error-index");
    BerReader varBinds = reader.Open(pdu, ASN_SEQUENCE, "the variable bindings");
    BerReader varBind = reader.Open(varBinds, ASN_SEQUENCE, "the first variable binding");
    const BerReader name = reader.Open(varBind, ASN_OBJECTIDENTIFIER, "the object");
    message.object = reader.Identifier(name, "the object");
    if (!varBind.failed)
        ReadValue(reader, varBind);
    for (BerReader contents = {}; !varBinds.failed && varBinds.at != varBinds.end; ++message.moreObjects)
        BerOpenAny(varBinds, contents);
}

// " (name)" of an enumeration's number; empty for other numbers.
std::string WordOf(const SnmpMessage& message) {
    const std::optional<FoundObject> found = FindObjectAt(message.object);
    const std::string_view word = found ? WordOfNumber(*found->object, message.number) : std::string_view();
    return word.empty() ? "" : " (" + std::string(word) + ")";
}

std::string MoreText(const SnmpMessage& message) {
    return message.moreObjects != 0 ? " and " + std::to_string(message.moreObjects) + " more" : "";
}

std::string BytesText(const std::string& bytes) {
    const bool isText =
        std::all_of(bytes.begin(), bytes.end(), [](unsigned char c) { return c >= ' ' && c != 0x7F; });
    const std::string shown = bytes.substr(0, kMaxShownBytes);
    std::string text;
    if (isText) {
        text = '"' + PrinterText(shown) + '"';
    } else {
        char octet[4];
        for (const unsigned char c : shown) {
            snprintf(octet, sizeof(octet), "%02X ", c);
            text += octet;
        }
        text.pop_back();
    }
    return bytes.size() > kMaxShownBytes ? text + " ... (" + std::to_string(bytes.size()) + " bytes)" : text;
}

} // namespace

SnmpMessage ReadSnmpMessage(std::string_view datagram) {
    SnmpMessage message;
    const auto* const start = reinterpret_cast<const uint8_t*>(datagram.data());
    const MessageReader reader = {message, start};
    BerReader parts = OpenMessage(reader, {start, start + datagram.size(), false});
    const int32_t version = reader.Integer(parts, "the version");
    if (parts.failed)
        return message;
    message.version = version;
    if (version < 0 || version > kLastReadVersion)
        return message;
    const BerReader community = reader.Open(parts, ASN_OCTETSTRING, "the community");
    message.community.assign(community.at, community.end);
    const BerReader before = parts;
    const BerReader pdu = reader.OpenAny(parts, "the PDU", message.pduType);
    if (message.damage == Damage::kCut && parts.failed && Left(before) > 0)
        ReadPdu(reader, CutContents(before));
    else
        ReadPdu(reader, pdu);
    return message;
}

bool IsNumberType(uint8_t valueType) {
    return HasForm(valueType, Form::kNumber);
}

bool IsTextType(uint8_t valueType) {
    return HasForm(valueType, Form::kBytes);
}

bool HasValue(const SnmpMessage& message) {
    return message.damage == Damage::kNone && message.errorStatus == 0 && message.valueType != 0
           && !HasForm(message.valueType, Form::kException);
}

std::string VersionText(int32_t version) {
    return version == 0 ? "SNMPv1" : version == 1 ? "SNMPv2c" : "SNMPv" + std::to_string(version);
}

std::string ErrorStatusText(int32_t errorStatus) {
    return NameOf(kErrorNames, errorStatus, "error-status ");
}

std::string TypeText(uint8_t valueType) {
    const auto* row = FindType(valueType);
    if (row != nullptr)
        return row->name;
    char text[16];
    snprintf(text, sizeof(text), "type 0x%02X", valueType);
    return text;
}

std::string OidText(const ObjectId& oid) {
    std::string text;
    for (const uint32_t id : oid)
        text += '.' + std::to_string(id);
    return text;
}

ObjectId OidOf(std::string_view text) {
    AsnObjectIdentifier converted = {};
    if (!ClientStrToOid(std::string(text).c_str(), &converted))
        return {};
    ObjectId oid(converted.ids, converted.ids + converted.idLength);
    ClientOidFree(&converted);
    return oid;
}

std::string ObjectName(const ObjectId& oid) {
    const std::optional<FoundObject> found = FindObjectAt(oid);
    const bool hasName = found && (found->object->syntax != Syntax::kNode || found->index.empty());
    return hasName ? found->object->name + OidText(found->index) : OidText(oid);
}

std::string ValueText(const SnmpMessage& message) {
    const std::string type = TypeText(message.valueType);
    if (message.valueType == ASN_INTEGER)
        return type + ' ' + std::to_string(message.number) + WordOf(message);
    if (message.valueType == ASN_TIMETICKS)
        return type + ' ' + std::to_string(message.number) + " (" + DurationText(message.number) + ')';
    if (IsNumberType(message.valueType))
        return type + ' '
               + (message.valueType == kCounter64 ? std::to_string(static_cast<uint64_t>(message.number))
                                                  : std::to_string(message.number));
    if (IsTextType(message.valueType))
        return type + ' ' + BytesText(message.bytes);
    return message.valueType == ASN_OBJECTIDENTIFIER ? type + ' ' + ObjectName(message.objectValue) : type;
}

std::string DurationText(int64_t ticks) {
    const int64_t seconds = ticks / kTicksPerSecond;
    char text[48];
    snprintf(text, sizeof(text), "%lld d %02lld:%02lld:%02lld", static_cast<long long>(seconds / 86400),
             static_cast<long long>(seconds / 3600 % 24), static_cast<long long>(seconds / 60 % 60),
             static_cast<long long>(seconds % 60));
    return text;
}

std::string RequestText(const SnmpMessage& message) {
    const std::string what = NameOf(kPduNames, message.pduType, "PDU ");
    return message.object.empty() ? what : what + ' ' + ObjectName(message.object) + MoreText(message);
}

std::string AnswerText(const SnmpMessage& message) {
    switch (message.damage) {
    case Damage::kCut:
        return "cut: " + message.damageText;
    case Damage::kMalformed:
        return "damaged: " + message.damageText;
    case Damage::kNone:
        break;
    }
    if (message.version < 0 || message.version > kLastReadVersion)
        return VersionText(message.version) + " message";
    return message.errorStatus != 0 ? ErrorStatusText(message.errorStatus)
                                    : ValueText(message) + MoreText(message);
}
