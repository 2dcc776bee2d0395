// Starts and stops simprinter, runs net-snmp's tools, and sends datagrams to it.
#include "running_printer.h"

#include "common/files.h"
#include "support/octets.h"

#include <arpa/inet.h>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

TemporaryFolder::TemporaryFolder() : path(testing::TempDir() + "/simprinter_test_XXXXXX") {
    if (!mkdtemp(path.data()))
        ADD_FAILURE() << "cannot create " << path;
}
TemporaryFolder::~TemporaryFolder() {
    std::filesystem::remove_all(path);
}

std::string TemporaryFolder::File(const std::string& name, const std::string& contents) const {
    WriteFileWhole(path + '/' + name, contents);
    return path + '/' + name;
}

CommandResult RunCommand(const std::string& command) {
    CommandResult result = {-1, ""};
    if (std::FILE* output = popen(("{ " + command + "; } 2>&1").c_str(), "r")) {
        for (int c; (c = std::fgetc(output)) != EOF;)
            result.output += static_cast<char>(c);
        const int status = pclose(output);
        result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    return result;
}

RunningPrinter::RunningPrinter(const std::string& arguments)
    : output(popen(("echo $$; exec " SIMPRINTER_PROGRAM " --port 0 " + arguments).c_str(), "r")),
      client(socket(AF_INET, SOCK_DGRAM, 0)) {
    process = std::atoi(Line().c_str());
    const std::string ready = "simprinter: ready on ", line = Line();
    const size_t colon = line.rfind(':');
    if (line.rfind(ready, 0) != 0 || colon < ready.size()) {
        ADD_FAILURE() << "simprinter " << arguments << " does not start: " << line;
        return;
    }
    host = line.substr(ready.size(), colon - ready.size());
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(std::atoi(line.c_str() + colon + 1)));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
}

std::string RunningPrinter::Line() const {
    char line[1024] = "";
    alarm(30); // ends the test when the program prints nothing
    const bool isRead = std::fgets(line, sizeof line, output) != nullptr;
    alarm(0);
    return isRead ? line : "";
}

RunningPrinter::~RunningPrinter() {
    close(client);
    EXPECT_TRUE(!output || Stop(SIGTERM) == 0);
}

int RunningPrinter::Stop(int signal) {
    kill(process, signal);
    const int status = pclose(output);
    output = nullptr;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

CommandResult RunningPrinter::Ask(const std::string& tool, const std::string& objects,
                                  const std::string& options) const {
    const TemporaryFolder folder;                                     // in place of the user's settings
    std::filesystem::create_directory(folder.path + "/cert_indexes"); // otherwise they report that they create it
    return RunCommand("SNMPCONFPATH=" + folder.path + " SNMP_PERSISTENT_DIR=" + folder.path + ' ' + tool + " -m '' -On "
                      + options + (host[0] == '[' ? " udp6:" : " ") + host + ':' + Port() + ' ' + objects);
}

void RunningPrinter::Send(const Bytes& request) const {
    const auto* to = reinterpret_cast<const sockaddr*>(&address);
    EXPECT_EQ(sendto(client, request.data(), request.size(), 0, to, sizeof address),
              static_cast<ssize_t>(request.size()));
}

std::vector<Received> RunningPrinter::Receive(int quietMs, size_t most) const {
    std::vector<Received> all;
    pollfd entry = {client, POLLIN, 0};
    while (all.size() < most && poll(&entry, 1, quietMs) == 1) {
        Received next = {Bytes(65536), {}};
        socklen_t length = sizeof next.from;
        const ssize_t size =
            recvfrom(client, next.bytes.data(), next.bytes.size(), 0, reinterpret_cast<sockaddr*>(&next.from), &length);
        next.bytes.resize(static_cast<size_t>(std::max<ssize_t>(size, 0)));
        all.push_back(next);
    }
    return all;
}

Bytes StorageRequest(uint8_t requestId) {
    Bytes request = Hex("30 29 02 01 00 04 06 74 6F 76 61 73 6B A0 1C 02 01 00 02 01 00 02 01 00"
                        " 30 11 30 0F 06 0B 2B 06 01 02 01 19 02 03 01 05 01 05 00");
    request[17] = requestId;
    return request;
}

Bytes StorageReply() {
    return Hex("30 2B 02 01 00 04 06 74 6F 76 61 73 6B A2 1E 02 01 11 02 01 00 02 01 00"
               " 30 13 30 11 06 0B 2B 06 01 02 01 19 02 03 01 05 01 02 02 02 00");
}

std::string Listed(const Findings& findings) {
    std::string list;
    for (const Finding& finding : findings.list)
        list += FindingText(finding) + '\n';
    return list;
}
