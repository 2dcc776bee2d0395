// The running printer and its clients, see running_printer.h.
#include "running_printer.h"

#include "common/files.h"

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
        ADD_FAILURE() << "no folder beside " << path;
}
TemporaryFolder::~TemporaryFolder() {
    std::filesystem::remove_all(path);
}

std::string TemporaryFolder::File(const std::string& name, const std::string& contents) const {
    WriteFileWhole(path + '/' + name, contents);
    return path + '/' + name;
}

CommandResult RunCommand(const std::string& command) {
    const TemporaryFolder folder;
    const int status = std::system(("{ " + command + "; } >" + folder.path + "/output 2>&1").c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadFile(folder.path + "/output")};
}

RunningPrinter::RunningPrinter(const std::string& arguments) {
    int ends[2];
    if (pipe(ends) != 0)
        std::abort();
    process = fork();
    if (process == 0) {
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        execl("/bin/sh", "sh", "-c", ("exec " SIMPRINTER_PROGRAM " --port 0 " + arguments).c_str(), nullptr);
        _exit(127);
    }
    close(ends[1]);
    pollfd entry = {ends[0], POLLIN, 0};
    for (char c = 0; c != '\n' && poll(&entry, 1, 20000) == 1 && read(ends[0], &c, 1) == 1;)
        readyLine += c;
    close(ends[0]);
    const size_t colon = readyLine.rfind(':');
    if (readyLine.rfind("simprinter: ready on ", 0) != 0)
        ADD_FAILURE() << "simprinter " << arguments << " does not start: " << readyLine;
    else
        port = static_cast<uint16_t>(std::stoi(readyLine.substr(colon + 1)));
}

RunningPrinter::~RunningPrinter() {
    if (process > 0) {
        EXPECT_EQ(Stop(SIGTERM), 0) << "the sanitizers' message is above";
    }
}

int RunningPrinter::Stop(int signal) {
    kill(process, signal);
    int status = 0;
    waitpid(process, &status, 0);
    process = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

CommandResult RunningPrinter::Ask(const std::string& tool, const std::string& objects,
                                  const std::string& options) const {
    if (std::system(("command -v " + tool + " >/dev/null").c_str()) != 0) {
        ADD_FAILURE() << "there is no " << tool << ": install the Debian package 'snmp'";
        return {-1, ""};
    }
    const TemporaryFolder folder; // for what the tools keep; the user's own settings stay out of it
    std::filesystem::create_directory(folder.path + "/cert_indexes"); // else they tell that they make it
    return RunCommand("SNMPCONFPATH=" + folder.path + " SNMP_PERSISTENT_DIR=" + folder.path + ' ' + tool
                      + " -m '' -On " + options + " 127.0.0.1:" + std::to_string(port) + ' ' + objects);
}

RawClient::RawClient(const RunningPrinter& to) : descriptor(socket(AF_INET, SOCK_DGRAM, 0)), printer{} {
    printer.sin_family = AF_INET;
    printer.sin_port = htons(to.port);
    printer.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
}
RawClient::~RawClient() {
    close(descriptor);
}

void RawClient::Send(const Octets& request) const {
    const auto* address = reinterpret_cast<const sockaddr*>(&printer);
    EXPECT_EQ(sendto(descriptor, request.data(), request.size(), 0, address, sizeof printer),
              static_cast<ssize_t>(request.size()));
}

std::vector<Received> RawClient::Receive(int quietMs, size_t most) const {
    std::vector<Received> all;
    pollfd entry = {descriptor, POLLIN, 0};
    while (all.size() < most && poll(&entry, 1, quietMs) == 1) {
        Received next = {Octets(65536), {}};
        socklen_t length = sizeof next.from;
        const ssize_t size = recvfrom(descriptor, next.octets.data(), next.octets.size(), 0,
                                      reinterpret_cast<sockaddr*>(&next.from), &length);
        next.octets.resize(static_cast<size_t>(std::max<ssize_t>(size, 0)));
        all.push_back(next);
    }
    return all;
}

Octets StorageRequest(uint8_t requestId) {
    return {0x30, 0x29, 0x02,      0x01, 0x00, 0x04, 0x06, 't',  'o',  'v',  'a',  's',  'k',  0xA0, 0x1C,
            0x02, 0x01, requestId, 0x02, 0x01, 0x00, 0x02, 0x01, 0x00, 0x30, 0x11, 0x30, 0x0F, 0x06, 0x0B,
            0x2B, 0x06, 0x01,      0x02, 0x01, 0x19, 0x02, 0x03, 0x01, 0x05, 0x01, 0x05, 0x00};
}

Octets StorageReply(uint8_t requestId) {
    return {0x30, 0x2B, 0x02,      0x01, 0x00, 0x04, 0x06, 't',  'o',  'v',  'a',  's',  'k',  0xA2, 0x1E,
            0x02, 0x01, requestId, 0x02, 0x01, 0x00, 0x02, 0x01, 0x00, 0x30, 0x13, 0x30, 0x11, 0x06, 0x0B,
            0x2B, 0x06, 0x01,      0x02, 0x01, 0x19, 0x02, 0x03, 0x01, 0x05, 0x01, 0x02, 0x02, 0x02, 0x80};
}

std::string Listed(const Findings& findings) {
    std::string list;
    for (const Finding& finding : findings.list)
        list += FindingText(finding) + '\n';
    return list;
}
