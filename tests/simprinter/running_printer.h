// A running simprinter and its clients: net-snmp's command line tools and a raw UDP socket.
#ifndef TESTS_RUNNING_PRINTER_H
#define TESTS_RUNNING_PRINTER_H

#include "common/findings.h"
#include "simprinter/message.h"

#include <netinet/in.h>
#include <string>
#include <sys/types.h>

// A folder of the test's own, removed with it.
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
    std::string output; // of both kinds
};

CommandResult RunCommand(const std::string& command);

// The program, on a free port of 127.0.0.1. Stops with the object; a start that fails is a failure of the
// test.
struct RunningPrinter {
    pid_t process = -1;
    uint16_t port = 0;
    std::string readyLine;

    explicit RunningPrinter(const std::string& arguments = "");
    RunningPrinter(const RunningPrinter&) = delete;
    RunningPrinter& operator=(const RunningPrinter&) = delete;
    ~RunningPrinter();

    // What one of net-snmp's tools prints: "snmpget", with the objects or further options behind the address.
    // Enumerations and names are not translated.
    CommandResult Ask(const std::string& tool, const std::string& objects,
                      const std::string& options = "-v1 -c tovask -r0 -t2") const;

    // Sends the signal and returns the exit code; -1 when it ended otherwise.
    int Stop(int signal);
};

struct Received {
    Octets octets;
    sockaddr_in from;
};

// A client that takes datagrams from anyone.
struct RawClient {
    int descriptor;
    sockaddr_in printer;

    explicit RawClient(const RunningPrinter& to);
    RawClient(const RawClient&) = delete;
    RawClient& operator=(const RawClient&) = delete;
    ~RawClient();

    void Send(const Octets& request) const;

    // What comes until nothing has come for so many milliseconds, or so many datagrams are there.
    std::vector<Received> Receive(int quietMs, size_t most = 1000) const;
};

// GetRequest of hrStorageSize.1 with this request-id (below 128) and the answer 640 to it, as octets worked
// out by hand.
Octets StorageRequest(uint8_t requestId = 0x11);
Octets StorageReply(uint8_t requestId = 0x11);

// The texts of all findings, a line each.
std::string Listed(const Findings& findings);

#endif
