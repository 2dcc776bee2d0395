// A running simprinter and its clients: net-snmp's command line tools and a raw UDP socket.
#ifndef TESTS_RUNNING_PRINTER_H
#define TESTS_RUNNING_PRINTER_H

#include "common/findings.h"
#include "simprinter/snmp/message.h"

#include <cstdio>
#include <netinet/in.h>
#include <string>
#include <sys/types.h>

// A temporary folder, removed with the object.
struct TemporaryFolder {
    std::string path;

    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    // Writes a file and returns its path.
    std::string File(const std::string& name, const std::string& contents) const;
};

struct CommandResult {
    int exitCode;
    std::string output; // standard output and standard error output
};
CommandResult RunCommand(const std::string& command);

struct Received {
    Bytes bytes;
    sockaddr_in from;
};

// The program on a free port, and clients for it. Stopped with the object. The test fails when it does not start.
struct RunningPrinter {
    std::FILE* output; // of the program
    pid_t process = -1;
    std::string host = {};    // "127.0.0.1", "[::1]"
    sockaddr_in address = {}; // of an IPv4 printer
    int client;               // a UDP socket

    explicit RunningPrinter(const std::string& arguments = "");
    RunningPrinter(const RunningPrinter&) = delete;
    RunningPrinter& operator=(const RunningPrinter&) = delete;
    ~RunningPrinter();

    std::string Port() const { return std::to_string(ntohs(address.sin_port)); }

    // Runs one of net-snmp's tools, such as "snmpget". `objects` follow the address. Names and enumerations
    // are not translated.
    CommandResult Ask(const std::string& tool, const std::string& objects,
                      const std::string& options = "-v1 -c tovask -r0 -t2") const;

    // The next line that the program prints, with its end.
    std::string Line() const;

    // Sends a datagram from the client socket.
    void Send(const Bytes& request) const;

    // Receives, from any address, until nothing has come for `quietMs` milliseconds or there are `most`
    // datagrams.
    std::vector<Received> Receive(int quietMs, size_t most = 1000) const;

    // Sends the signal and returns the exit code; -1 when the program ended in another way.
    int Stop(int signal);
};

// A GetRequest of hrStorageSize.1 with this request-id (below 128), encoded by hand, and the plain device's
// reply, 512, to the one with the id 17.
Bytes StorageRequest(uint8_t requestId = 17);
Bytes StorageReply();

// All findings, one a line.
std::string Listed(const Findings& findings);

#endif
