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

ObjectValue ValueOf(uint8_t type, BerReader contents) {
    ObjectValue value;
    value.isAnswered = true;
    value.exists = true;
    if (type == ASN_OCTETSTRING) {
        value.bytes.assign(reinterpret_cast<const char*>(contents.at),
                           static_cast<size_t>(contents.end - contents.at));
        value.text = OneLine(PrinterText(value.bytes));
    }
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
        uint32_t ids[128];
        const uint32_t count = BerReadSubIdentifiers(name, ids, std::size(ids));
        BerReader contents = {};
        const uint8_t type = BerOpenAny(varBind, contents);
        if (contents.failed)
            break;
        values.push_back(ValueOf(type, contents));
        if (!name.failed)
            values.back().oid.assign(ids, ids + count);
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
    isAnswered = answer.end == ProbeEnd::kAnswered;
    return isAnswered && answer.reply.errorStatus == 0 ? ReadSnmpValues(answer.datagram) : ObjectValues();
}

bool IsInColumn(const ObjectId& oid, const std::string& column, ObjectId& index) {
    const ObjectId prefix = OidOf(column);
    if (oid.size() <= prefix.size() || !std::equal(prefix.begin(), prefix.end(), oid.begin()))
        return false;
    index.assign(oid.begin() + static_cast<std::ptrdiff_t>(prefix.size()), oid.end());
    return true;
}
