// Sockets of both kinds of systems under one name. Where a function fails, SocketError says why.
#ifndef SIMPRINTER_SOCKETS_H
#define SIMPRINTER_SOCKETS_H

#include <string>
#ifdef _WIN32
#include <winsock2.h>
#include <ws2tcpip.h>
#else
#include <cerrno>
#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#endif

#ifdef _WIN32
using SocketHandle = SOCKET;
constexpr SocketHandle kNoSocket = INVALID_SOCKET;
constexpr int kAddressInUse = WSAEADDRINUSE, kNotAllowed = WSAEACCES, kNoSuchAddress = WSAEADDRNOTAVAIL,
              kTooManySockets = WSAEMFILE;
#else
using SocketHandle = int;
constexpr SocketHandle kNoSocket = -1;
constexpr int kAddressInUse = EADDRINUSE, kNotAllowed = EACCES, kNoSuchAddress = EADDRNOTAVAIL,
              kTooManySockets = EMFILE;
#endif

// Call before all others.
void StartSockets();

// A UDP socket whose functions never wait: also after Poll a datagram may turn out not to be there.
SocketHandle OpenSocket(int family);
void CloseSocket(SocketHandle socket);

int SocketError();
std::string SocketErrorText(int error);

// Why getaddrinfo failed, by its result.
std::string AddressErrorText(int error);

// Whether an earlier datagram of this socket was refused, as nothing listens on the port.
bool IsRefused(int error);

// As poll of POSIX.
int Poll(pollfd* entries, size_t count, int milliseconds);

#endif
