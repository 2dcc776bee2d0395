// UDP servers and clients on loopback.
#include "loopback.h"

#include <arpa/inet.h>
#include <csignal>
#include <cstdio>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr size_t kMaxBytes = 4096;
constexpr timeval kLimit = {2, 0};

sockaddr_in Loopback(uint16_t port) {
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

[[noreturn]] void Echo(int socket) {
    for (;;) {
        char bytes[kMaxBytes];
        sockaddr_in from;
        socklen_t length = sizeof(from);
        const ssize_t count =
            recvfrom(socket, bytes, sizeof(bytes), 0, reinterpret_cast<sockaddr*>(&from), &length);
        if (count >= 0)
            sendto(socket, bytes, static_cast<size_t>(count), 0, reinterpret_cast<sockaddr*>(&from), length);
    }
}

} // namespace

// The child process serves the socket that the parent has bound.
Server EchoServer() {
    uint16_t port = 0;
    int process = -1;
    const int socket = ::socket(AF_INET, SOCK_DGRAM, 0);
    sockaddr_in address = Loopback(0);
    socklen_t length = sizeof(address);
    if (bind(socket, reinterpret_cast<sockaddr*>(&address), length) == 0
        && getsockname(socket, reinterpret_cast<sockaddr*>(&address), &length) == 0) {
        process = fork();
        if (process == 0)
            Echo(socket);
        port = ntohs(address.sin_port);
    }
    close(socket);
    return {port, process};
}

// The first line that it writes ends with the port.
Server SimulatedPrinter(const std::string& arguments) {
    int ends[2];
    if (pipe(ends) != 0)
        return {0, -1};
    const int process = fork();
    if (process == 0) {
        dup2(ends[1], STDOUT_FILENO);
        const std::string command = "exec '" HOST_TOOLS "/simprinter' --port 0 " + arguments;
        execl("/bin/sh", "sh", "-c", command.c_str(), static_cast<char*>(nullptr));
        _exit(1);
    }
    close(ends[1]);
    FILE* output = fdopen(ends[0], "r");
    unsigned port = 0;
    const bool isServing = fscanf(output, "%*[^0-9]%*u.%*u.%*u.%*u:%u", &port) == 1;
    fclose(output);
    return {static_cast<uint16_t>(isServing ? port : 0), process};
}

Server::~Server() {
    if (process <= 0)
        return;
    kill(process, SIGTERM);
    waitpid(process, nullptr, 0);
}

EchoClient::EchoClient(uint16_t port) : socket(::socket(AF_INET, SOCK_DGRAM, 0)) {
    const sockaddr_in address = Loopback(port);
    setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &kLimit, sizeof(kLimit));
    if (connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0)
        perror("echo");
}

EchoClient::~EchoClient() {
    close(socket);
}

bool EchoClient::RoundTrip(const uint8_t* bytes, size_t count) const {
    char back[kMaxBytes];
    return send(socket, bytes, count, 0) == static_cast<ssize_t>(count)
           && recv(socket, back, sizeof(back), 0) == static_cast<ssize_t>(count);
}
