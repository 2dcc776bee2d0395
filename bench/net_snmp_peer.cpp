// net-snmp's library as the peer of the module's client.
#include "net_snmp_peer.h"

#include <algorithm>
// net-snmp's configuration comes before its other headers
#include <net-snmp/net-snmp-config.h>
// and these after it
#include <net-snmp/net-snmp-includes.h>

#include <string>

namespace {

// A sequence whose length is set once its end is known.
u_char* OpenSequence(u_char*& at, size_t& left, u_char tag) {
    u_char* start = at;
    at = asn_build_sequence(at, &left, tag, 0);
    return start;
}

void CloseSequence(u_char* start, const u_char* end, u_char tag) {
    size_t room = 4;
    asn_build_sequence(start, &room, tag, static_cast<size_t>(end - start) - 4);
}

} // namespace

size_t PeerBuildRequest(const char* community, long requestId, const uint32_t* ids, size_t idCount,
                        uint8_t* to, size_t capacity) {
    oid name[MAX_OID_LEN];
    std::copy_n(ids, idCount, name);
    const long zero = 0;
    size_t left = capacity;
    u_char* at = to;
    u_char* message = OpenSequence(at, left, ASN_SEQUENCE | ASN_CONSTRUCTOR);
    at = asn_build_int(at, &left, ASN_INTEGER, &zero, sizeof(zero));
    at = asn_build_string(at, &left, ASN_OCTET_STR, reinterpret_cast<const u_char*>(community),
                          strlen(community));
    u_char* pdu = OpenSequence(at, left, SNMP_MSG_GET);
    at = asn_build_int(at, &left, ASN_INTEGER, &requestId, sizeof(requestId));
    at = asn_build_int(at, &left, ASN_INTEGER, &zero, sizeof(zero));
    at = asn_build_int(at, &left, ASN_INTEGER, &zero, sizeof(zero));
    u_char* list = OpenSequence(at, left, ASN_SEQUENCE | ASN_CONSTRUCTOR);
    u_char* varBind = OpenSequence(at, left, ASN_SEQUENCE | ASN_CONSTRUCTOR);
    at = asn_build_objid(at, &left, ASN_OBJECT_ID, name, idCount);
    at = asn_build_null(at, &left, ASN_NULL);
    if (at == nullptr)
        return 0;
    CloseSequence(varBind, at, ASN_SEQUENCE | ASN_CONSTRUCTOR);
    CloseSequence(list, at, ASN_SEQUENCE | ASN_CONSTRUCTOR);
    CloseSequence(pdu, at, SNMP_MSG_GET);
    CloseSequence(message, at, ASN_SEQUENCE | ASN_CONSTRUCTOR);
    return static_cast<size_t>(at - to);
}

bool PeerReadReply(uint8_t* datagram, size_t count, long& value) {
    u_char type = 0;
    u_char community[64];
    size_t communityLength = sizeof(community);
    oid name[MAX_OID_LEN];
    size_t nameLength = MAX_OID_LEN;
    long number = 0;
    u_char* at = asn_parse_sequence(datagram, &count, &type, ASN_SEQUENCE | ASN_CONSTRUCTOR, "message");
    at = at != nullptr ? asn_parse_int(at, &count, &type, &number, sizeof(number)) : nullptr;
    at = at != nullptr ? asn_parse_string(at, &count, &type, community, &communityLength) : nullptr;
    at = at != nullptr ? asn_parse_sequence(at, &count, &type, SNMP_MSG_RESPONSE, "PDU") : nullptr;
    for (int i = 0; i < 3; ++i) // request-id, error-status, error-index
        at = at != nullptr ? asn_parse_int(at, &count, &type, &number, sizeof(number)) : nullptr;
    for (int i = 0; i < 2; ++i) // the list and the varbind
        at = at != nullptr ? asn_parse_sequence(at, &count, &type, ASN_SEQUENCE | ASN_CONSTRUCTOR, "varbind")
                           : nullptr;
    at = at != nullptr ? asn_parse_objid(at, &count, &type, name, &nameLength) : nullptr;
    return at != nullptr && asn_parse_int(at, &count, &type, &value, sizeof(value)) != nullptr;
}

void* PeerOpen(uint16_t port, const char* community) {
    setenv("MIBS", "", 1); // objects are named by number only
    setenv("SNMP_PERSISTENT_DIR", BIN_FOLDER, 1);
    init_snmp("bench");
    std::string peer = "udp:127.0.0.1:" + std::to_string(port);
    std::string name = community;
    netsnmp_session session;
    snmp_sess_init(&session);
    session.version = SNMP_VERSION_1;
    session.peername = peer.data();
    session.community = reinterpret_cast<u_char*>(name.data());
    session.community_len = name.size();
    return snmp_sess_open(&session);
}

bool PeerGet(void* session, const uint32_t* ids, size_t idCount) {
    oid name[MAX_OID_LEN];
    std::copy_n(ids, idCount, name);
    netsnmp_pdu* request = snmp_pdu_create(SNMP_MSG_GET);
    snmp_add_null_var(request, name, idCount);
    netsnmp_pdu* reply = nullptr;
    const bool answered = snmp_sess_synch_response(session, request, &reply) == STAT_SUCCESS
                          && reply->errstat == SNMP_ERR_NOERROR;
    if (reply != nullptr)
        snmp_free_pdu(reply);
    return answered;
}

void PeerClose(void* session) {
    snmp_sess_close(session);
}
