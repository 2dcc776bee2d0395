// Sockets of Windows.
#include "simprinter/sockets.h"

#include "common/wide_text.h"

#include <stdexcept>

void StartSockets() {
    WSADATA data;
    if (const int error = WSAStartup(MAKEWORD(2, 2), &data); error != 0)
        throw std::runtime_error("the network can't be used: " + SocketErrorText(error));
}

SocketHandle OpenSocket(int family) {
    const SocketHandle handle = socket(family, SOCK_DGRAM, IPPROTO_UDP);
    u_long yes = 1;
    if (handle != kNoSocket)
        ioctlsocket(handle, static_cast<long>(FIONBIO), &yes);
    return handle;
}

void CloseSocket(SocketHandle socket) {
    closesocket(socket);
}

int SocketError() {
    return WSAGetLastError();
}

std::string SocketErrorText(int error) {
    return SystemErrorText(static_cast<DWORD>(error));
}

std::string AddressErrorText(int error) {
    return SocketErrorText(error);
}

bool IsRefused(int error) {
    return error == WSAECONNRESET || error == WSAECONNREFUSED;
}

int Poll(pollfd* entries, size_t count, int milliseconds) {
    return WSAPoll(entries, static_cast<ULONG>(count), milliseconds);
}
