// Builds requests for several objects and reads the values of the replies.
#include "workbench/lib/snmp_objects.h"

#include "workbench/lib/module_parts.h"
#include "workbench/lib/snmp_probe.h"
#include "workbench/lib/text.h"

#include <atomic>

namespace {

// Empty when one of the OIDs is not one.
std::string RequestFor(const std::vector<std::string>& oids, uint32_t requestId) {
    std::vector<SnmpVarBind> objects(oids.size());
    bool isValid = true;
    for (size_t i = 0; i < oids.size(); ++i) {
        objects[i].value.asnType = ASN_NULL;
        isValid = ClientStrToOid(oids[i].c_str(), &objects[i].name) && isValid;
    }
    BerBuffer message = SnmpBuildRequest(SNMP_PDU_GET, kCommunity, requestId,
                                         SnmpVarBindList{objects.data(), static_cast<UINT>(objects.size())});
    const std::string datagram(reinterpret_cast<const char*>(message.octets), message.count);
    BerFree(message);
    for (SnmpVarBind& object : objects)
        ClientOidFree(&object.name);
    return isValid ? datagram : "";
}

ObjectValue ValueOf(uint8_t type, BerReader contents) {
    ObjectValue value;
    const auto size = static_cast<size_t>(contents.end - contents.at);
    if (type == ASN_OCTETSTRING)
        value.text = OneLine(PrinterText({reinterpret_cast<const char*>(contents.at), size}));
    const int32_t number = type == ASN_INTEGER ? BerInteger(contents) : 0;
    if (type == ASN_INTEGER && !contents.failed)
        value.number = number;
    return value;
}

// Unlike those of all other requests of this process.
uint32_t NextRequestId() {
    static std::atomic<uint32_t> last{GetTickCount()};
    return ++last & INT32_MAX;
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
        BerOpen(varBind, ASN_OBJECTIDENTIFIER);
        BerReader contents = {};
        const uint8_t type = BerOpenAny(varBind, contents);
        if (contents.failed)
            break;
        values.push_back(ValueOf(type, contents));
    }
    return values;
}

ObjectValues ReadObjects(uint32_t address, const std::vector<std::string>& oids) {
    ObjectValues values;
    if (oids.empty())
        return values;
    const uint32_t requestId = NextRequestId();
    const ProbeAnswer answer = ProbeRequest(address, RequestFor(oids, requestId), requestId);
    if (answer.end == ProbeEnd::kAnswered && answer.reply.errorStatus == 0)
        values = ReadSnmpValues(answer.datagram);
    else if (answer.end == ProbeEnd::kAnswered && oids.size() > 1)
        for (const std::string& oid : oids) {
            const uint32_t id = NextRequestId();
            const ProbeAnswer single = ProbeRequest(address, RequestFor({oid}, id), id);
            if (single.end != ProbeEnd::kAnswered)
                break;
            const ObjectValues read = ReadSnmpValues(single.datagram);
            const bool isPresent = single.reply.errorStatus == 0 && !read.empty();
            values.push_back(isPresent ? read[0] : std::nullopt);
        }
    values.resize(oids.size());
    return values;
}
