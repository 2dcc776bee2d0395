// The built-in client's work done by net-snmp's library, as the reference of the benchmarks. In a file of its
// own, because its headers and the system's SNMP header declare the same names.
#ifndef BENCH_NET_SNMP_PEER_H
#define BENCH_NET_SNMP_PEER_H

#include <cstddef>
#include <cstdint>

// Builds the message of a GetRequest with asn_build_*. Returns the bytes written, 0 on failure.
size_t PeerBuildRequest(const char* community, long requestId, const uint32_t* ids, size_t idCount,
                        uint8_t* to, size_t capacity);

// Reads a reply with asn_parse_* up to the first value, an INTEGER. False on failure. The datagram is not
// changed, although asn_parse_* takes it as writable.
bool PeerReadReply(uint8_t* datagram, size_t count, long& value);

// A session with the agent on 127.0.0.1; null on failure.
void* PeerOpen(uint16_t port, const char* community);
bool PeerGet(void* session, const uint32_t* ids, size_t idCount);
void PeerClose(void* session);

#endif
