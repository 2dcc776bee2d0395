// Sockets of POSIX.
#include "simprinter/sockets.h"

#include <cstring>
#include <unistd.h>

void StartSockets() {}

SocketHandle OpenSocket(int family) {
    return socket(family, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

void CloseSocket(SocketHandle socket) {
    close(socket);
}

int SocketError() {
    return errno;
}

std::string SocketErrorText(int error) {
    return std::strerror(error);
}

std::string AddressErrorText(int error) {
    return gai_strerror(error);
}

bool IsRefused(int error) {
    return error == ECONNREFUSED;
}

int Poll(pollfd* entries, size_t count, int milliseconds) {
    return poll(entries, count, milliseconds);
}
