// Builds requests for several objects and reads the values of the replies.
#include "workbench/lib/snmp_objects.h"

#include "workbench/lib/module_parts.h"
#include "workbench/lib/snmp_probe.h"
#include "workbench/lib/text.h"

#include <algorithm>

namespace {

constexpr int kMaxUnanswered = 3; // objects, then the device is given up

// Empty when one of the OIDs is not one.
std::string RequestFor(uint8_t pduType, const std::vector<std::string>& oids, uint32_t requestId) {
    std::vector<SnmpVarBind> objects(oids.size());
    bool isValid = true;
    for (size_t i = 0; i < oids.size(); ++i) {
        objects[i].value.asnType = ASN_NULL;
        isValid = ClientStrToOid(oids[i].c_str(), &objects[i].name) && isValid;
    }
    BerBuffer message = SnmpBuildRequest(pduType, kCommunity, requestId,
                                         SnmpVarBindList{objects.data(), static_cast<UINT>(objects.size())});
    const std::string datagram(reinterpret_cast<const char*>(message.octets), message.count);
    BerFree(message);
    for (SnmpVarBind& object : objects)
        ClientOidFree(&object.name);
    return isValid ? datagram : "";
}

// Empty when they are malformed.
ObjectId SubIdentifiers(BerReader& contents) {
    uint32_t ids[128];
    const uint32_t count = BerReadSubIdentifiers(contents, ids, std::size(ids));
    return contents.failed ? ObjectId() : ObjectId(ids, ids + count);
}

ObjectValue ValueOf(uint8_t type, BerReader contents) {
    ObjectValue value;
    value.isAnswered = true;
    value.exists = true;
    if (type == ASN_OCTETSTRING) {
        value.bytes.assign(reinterpret_cast<const char*>(contents.at),
                           static_cast<size_t>(contents.end - contents.at));
        value.text = OneLine(PrinterText(value.bytes));
    }
    if (type == ASN_OBJECTIDENTIFIER)
        value.objectId = SubIdentifiers(contents);
    const int32_t number = IsNumberType(type) ? BerInteger(contents) : 0;
    if (IsNumberType(type) && !contents.failed)
        value.number = number;
    return value;
}

ProbeAnswer Request(uint32_t address, uint8_t pduType, const std::vector<std::string>& oids) {
    const uint32_t requestId = NextRequestId();
    return ProbeRequest(address, RequestFor(pduType, oids, requestId), requestId);
}

// A single object. The errors other than the one for a missing object do not say whether it exists.
ObjectValue ReadObject(uint32_t address, const std::string& oid, bool& isReplied) {
    const ProbeAnswer answer = Request(address, SNMP_PDU_GET, {oid});
    isReplied = answer.end == ProbeEnd::kAnswered;
    ObjectValue value;
    if (isReplied && answer.reply.errorStatus == 0)
        if (const ObjectValues read = ReadSnmpValues(answer.datagram); !read.empty())
            return read[0];
    value.isAnswered = isReplied && answer.reply.errorStatus == SNMP_ERRORSTATUS_NOSUCHNAME;
    return value;
}

} // namespace

ObjectValues ReadSnmpValues(std::string_view datagram) {
    SnmpReply reply;
    ObjectValues values;
    if (!SnmpReadReply(reinterpret_cast<const uint8_t*>(datagram.data()), datagram.size(), reply))
        return values;
    BerReadInteger(reply.rest); // error-status
    BerReadInteger(reply.rest); // error-index
    BerReader varBinds = BerOpen(reply.rest, ASN_SEQUENCE);
    while (varBinds.at != varBinds.end) {
        BerReader varBind = BerOpen(varBinds, ASN_SEQUENCE);
        BerReader name = BerOpen(varBind, ASN_OBJECTIDENTIFIER);
        ObjectId oid = SubIdentifiers(name);
        BerReader contents = {};
        const uint8_t type = BerOpenAny(varBind, contents);
        if (contents.failed)
            break;
        values.push_back(ValueOf(type, contents));
        values.back().oid = std::move(oid);
    }
    return values;
}

ObjectValues ReadObjects(uint32_t address, const std::vector<std::string>& oids) {
    ObjectValues values;
    if (oids.size() > 1) {
        const ProbeAnswer answer = Request(address, SNMP_PDU_GET, oids);
        if (answer.end == ProbeEnd::kAnswered && answer.reply.errorStatus == 0)
            values = ReadSnmpValues(answer.datagram);
    }
    if (values.size() >= oids.size())
        return values;
    values.assign(oids.size(), {});
    int unanswered = 0;
    for (size_t i = 0; i < oids.size() && unanswered < kMaxUnanswered; ++i) {
        bool isReplied = false;
        values[i] = ReadObject(address, oids[i], isReplied);
        unanswered += isReplied ? 0 : 1;
    }
    return values;
}

ObjectValues ReadNextObjects(uint32_t address, const std::vector<std::string>& oids, bool& isAnswered) {
    const ProbeAnswer answer = Request(address, SNMP_PDU_GETNEXT, oids);
    const bool hasValues = answer.end == ProbeEnd::kAnswered && answer.reply.errorStatus == 0;
    const bool isAtEnd =
        answer.end == ProbeEnd::kAnswered && answer.reply.errorStatus == SNMP_ERRORSTATUS_NOSUCHNAME;
    isAnswered = hasValues || isAtEnd;
    ObjectValues values = hasValues ? ReadSnmpValues(answer.datagram) : ObjectValues();
    for (size_t i = 0; isAtEnd && oids.size() > 1 && i < oids.size() && isAnswered; ++i) {
        const ObjectValues next = ReadNextObjects(address, {oids[i]}, isAnswered);
        values.push_back(next.empty() ? ObjectValue() : next[0]);
    }
    values.resize(oids.size());
    for (size_t i = 0; i < oids.size(); ++i)
        CheckOrder(oids[i], values[i], isAnswered);
    return values;
}

void CheckOrder(const std::string& oid, ObjectValue& next, bool& isAnswered) {
    if (next.oid.empty() || next.oid > OidOf(oid))
        return;
    next = {};
    isAnswered = false;
}

NextObjects NextObjectsAt(uint32_t address) {
    return [address](const std::vector<std::string>& oids, bool& isAnswered) {
        return ReadNextObjects(address, oids, isAnswered);
    };
}

ObjectValue ValueIn(const SnmpMessage& answer) {
    ObjectValue value;
    value.isAnswered = HasValue(answer) || answer.errorStatus == SNMP_ERRORSTATUS_NOSUCHNAME
                       || answer.errorStatus == 0; // in later versions an exception instead of the value
    value.exists = HasValue(answer);
    if (!value.exists)
        return value;
    value.oid = answer.object;
    value.objectId = answer.objectValue;
    if (answer.valueType == ASN_OCTETSTRING) {
        value.bytes = answer.bytes;
        value.text = OneLine(PrinterText(answer.bytes));
    }
    if (IsNumberType(answer.valueType))
        value.number = static_cast<int32_t>(answer.number);
    return value;
}

bool IsInColumn(const ObjectId& oid, const std::string& column, ObjectId& index) {
    const ObjectId prefix = OidOf(column);
    if (oid.size() <= prefix.size() || !std::equal(prefix.begin(), prefix.end(), oid.begin()))
        return false;
    index.assign(oid.begin() + static_cast<std::ptrdiff_t>(prefix.size()), oid.end());
    return true;
}
