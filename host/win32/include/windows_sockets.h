// Windows Sockets 1.1, as far as the module uses it, over the host's own sockets or over the wire that a test
// scripts (win32_control.h). In a namespace, because the host has functions and types of the same names.
#ifndef WIN32_WINDOWS_SOCKETS_H
#define WIN32_WINDOWS_SOCKETS_H

#include <windows.h>

namespace winsock {

using SOCKET = uintptr_t;
using u_short = uint16_t;
using u_long = uint32_t;

constexpr SOCKET INVALID_SOCKET = ~SOCKET{0};
constexpr u_long INADDR_NONE = 0xFFFFFFFF;
constexpr int AF_INET = 2;
constexpr int SOCK_DGRAM = 2;
constexpr int SOL_SOCKET = 0xFFFF;
constexpr int SO_RCVTIMEO = 0x1006;
constexpr u_long FIONREAD = 0x4004667F;

constexpr int WSAEINVAL = 10022;
constexpr int WSAEMSGSIZE = 10040;
constexpr int WSAECONNRESET = 10054;
constexpr int WSAETIMEDOUT = 10060;
constexpr int WSAHOST_NOT_FOUND = 11001;

struct WSADATA {
    WORD wVersion;
    WORD wHighVersion;
};

struct in_addr {
    u_long s_addr; // network order
};

struct sockaddr {
    u_short sa_family;
    char sa_data[14];
};

struct sockaddr_in {
    short sin_family;
    u_short sin_port; // network order
    in_addr sin_addr;
    char sin_zero[8];
};
static_assert(sizeof(sockaddr_in) == sizeof(sockaddr));

struct hostent {
    char** h_addr_list;
};

int WSAStartup(WORD version, WSADATA* granted);
int WSACleanup();
int WSAGetLastError();
SOCKET socket(int family, int type, int protocol);
int closesocket(SOCKET handle);
u_short htons(u_short number);
u_long inet_addr(const char* text);
hostent* gethostbyname(const char* name);
int connect(SOCKET handle, const sockaddr* address, int length);
int setsockopt(SOCKET handle, int level, int option, const char* value, int length);
int ioctlsocket(SOCKET handle, long command, u_long* argument);
int send(SOCKET handle, const char* bytes, int count, int flags);
int recv(SOCKET handle, char* to, int capacity, int flags);

} // namespace winsock

#endif
