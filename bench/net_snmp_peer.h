// net-snmp's library doing what the built-in client does, to measure against. Apart from the benchmarks,
// because its headers and the system's SNMP header name the same things.
#ifndef BENCH_NET_SNMP_PEER_H
#define BENCH_NET_SNMP_PEER_H

#include <cstddef>
#include <cstdint>

// The message of a GetRequest with asn_build_*; octets written, 0 on failure.
size_t PeerBuildRequest(const char* community, long requestId, const uint32_t* ids, size_t idCount,
                        uint8_t* to, size_t capacity);

// Reads a reply with asn_parse_* as far as the first value, an INTEGER; false on failure. Writes to the
// datagram's octets nothing, though its interface asks for them.
bool PeerReadReply(uint8_t* datagram, size_t count, long& value);

// A session with the agent on 127.0.0.1; null on failure.
void* PeerOpen(uint16_t port, const char* community);
bool PeerGet(void* session, const uint32_t* ids, size_t idCount);
void PeerClose(void* session);

#endif
