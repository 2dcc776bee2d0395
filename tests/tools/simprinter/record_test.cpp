// `simprinter record`: what it records of running printers, and what it says it could not get.
#include "running_printer.h"

#include "common/files.h"
#include "simprinter/udp_socket.h"

#include <atomic>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <poll.h>
#include <regex>
#include <thread>

namespace {

// A device whose answers a function makes from the name that is asked for; it runs while the object lives.
struct OddDevice {
    UdpSocket socket{ResolveEndpoint({"127.0.0.1", 0})};
    std::string port = std::to_string(EndpointOf(socket.Name()).port);
    std::atomic<bool> ends{false};
    std::thread thread;

    explicit OddDevice(const std::function<VarBind(const Oid& name)>& answer)
        : thread([this, answer] {
              Bytes bytes;
              std::string problem;
              for (SocketAddress from; !ends;) {
                  pollfd entry = {socket.handle, POLLIN, 0};
                  if (poll(&entry, 1, 50) != 1 || !socket.Receive(bytes, from))
                      continue;
                  Message message = ParseRequest(bytes, problem).value();
                  message.type = PduType::kResponse;
                  message.errorIndex = 0;
                  message.varBinds = {answer(message.varBinds.at(0).name)};
                  socket.Send(BuildMessage(message), from);
              }
          }) {}
    ~OddDevice() {
        ends = true;
        thread.join();
    }
};

class Record : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string file = folder.path + "/out.snmprec", part = file + ".part";
    // A recording has no times that change.
    std::string device = folder.File(
        "device.txt", RunningPrinter("--device " DEVICES "/well_equipped.yaml").Ask("snmpwalk", ".1").output);

    CommandResult Run(const std::string& port, const std::string& options = "") const {
        return RunCommand("timeout 60 " SIMPRINTER_PROGRAM " record 127.0.0.1 --timeout 0.15 --port " + port + " -o "
                          + file + ' ' + options);
    }

    // The walk of a printer that serves the recorded file.
    std::string WalkOfFile() const { return RunningPrinter("--replay " + file).Ask("snmpwalk", ".1").output; }
};

TEST_F(Record, ReplayHasTheSameWalk) {
    const std::string walk = ReadFile(device);
    for (const char* options : {"", "--versions 1", "--fault loss=30", "--largest-reply 484"}) {
        const RunningPrinter printer("--replay " + device + ' ' + options);
        const CommandResult result = Run(printer.Port());
        EXPECT_EQ(result.exitCode, 0) << options << result.output;
        EXPECT_EQ(WalkOfFile(), walk) << options;
        EXPECT_FALSE(std::filesystem::exists(part));
    }
}

TEST_F(Record, ValuesOfAllTypesArrive) {
    const std::string text = "1.3.6.1|2|-7\n1.3.6.2|4|text\n1.3.6.3|4x|20ff\n1.3.6.4|5|\n1.3.6.5|6|1.3.6.4294967295\n"
                             "1.3.6.6|64x|0a0000ff\n1.3.6.7|65|4294967295\n1.3.6.8|66|4294967295\n1.3.6.9|67|1\n"
                             "1.3.6.10|68x|9f78043fc00000\n1.3.6.11|70|18446744073709551615\n";
    const RunningPrinter printer("--replay " + folder.File("types", text));
    EXPECT_EQ(Run(printer.Port(), "--version 2c").exitCode, 0);
    EXPECT_EQ(ReadFile(file), "# 127.0.0.1, SNMPv2c\n" + text);
}

// The objects of marker supplies fail; those before and after are recorded, and the file has a note.
TEST_F(Record, WhatFailsIsPassedOverAndNoted) {
    const std::regex supplies("\\.1\\.3\\.6\\.1\\.2\\.1\\.43\\.11\\.[^\n]*\n");
    const std::string others = std::regex_replace(ReadFile(device), supplies, "");
    for (const std::string fault : {"silence", "error-status=5"}) {
        const RunningPrinter printer("--replay " + device + " --fault " + fault + "@.1.3.6.1.2.1.43.11");
        const CommandResult result = Run(printer.Port());
        EXPECT_EQ(result.exitCode, 0) << result.output;
        EXPECT_EQ(std::regex_replace(WalkOfFile(), supplies, ""), others);
        const std::regex note(
            (fault == "silence" ? "no answer" : "error-status 5")
            + std::string(R"( after \.1\.3\.6\.1\.2\.1\.43\.11\.[0-9.]+: all up to \.1\.3\.6\.1\.2\.1\.43\.12\.)"));
        EXPECT_TRUE(std::regex_search(result.output, note)) << result.output;
        EXPECT_TRUE(std::regex_search(ReadFile(file), note));
    }
}

TEST_F(Record, NothingIsWrittenWithoutAnAnswer) {
    const RunningPrinter printer, damaging("--fault malformed"), elsewhere("--fault wrong-address");
    std::string closed;
    {
        const RunningPrinter other;
        closed = other.Port();
    }
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {closed, "", "simprinter: nothing listens on 127.0.0.1:" + closed + ": "},
        {printer.Port(), "--community x",
         "simprinter: no answer from 127.0.0.1:" + printer.Port() + ": check the address, the community 'x'"},
        {damaging.Port(), "", "simprinter: no usable answer from 127.0.0.1:" + damaging.Port() + ": what came, "},
        {elsewhere.Port(), "", ": an answer came from 127.255.255.254:"},
    };
    for (const auto& [port, options, output] : cases) {
        const CommandResult result = Run(port, options);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_NE(result.output.find(output), std::string::npos) << result.output;
        EXPECT_FALSE(std::filesystem::exists(file) || std::filesystem::exists(part));
    }
}

TEST_F(Record, NamesThatCannotBeWrittenAreRefusedAtOnce) {
    const std::string gone = folder.path + "/gone", link = folder.path + "/link";
    std::filesystem::create_symlink("nowhere", gone);
    std::filesystem::create_symlink(folder.File("target", "old"), link);
    const RunningPrinter printer("--replay " + device);
    const std::pair<std::string, std::string> cases[] = {
        {"-", "simprinter: a recording can't be written to the standard output: write the name of a file\n"},
        {"/dev/null", "simprinter: cannot write '/dev/null': it is not a file but a device or a pipe\n"},
        {folder.path, "simprinter: cannot write '" + folder.path + "': it is a folder\n"},
        {gone, "simprinter: cannot write '" + gone + "': it is a link to a file that does not exist\n"},
        {"/none/x", "simprinter: cannot write '/none/x': there is no folder '/none'\n"},
        {link + "/x", "simprinter: cannot write '" + link + "/x': there is no folder '" + link + "'\n"},
    };
    for (const auto& [name, output] : cases) {
        file = name;
        const CommandResult result = Run(printer.Port());
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.output, output); // nothing is asked before
    }
    file = link;
    EXPECT_EQ(Run(printer.Port()).exitCode, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_GT(ReadFile(folder.path + "/target").size(), 1000U);
}

// A device that falls silent is waited for; only what it gives after that makes the recording complete.
TEST_F(Record, SilentDeviceIsWaitedFor) {
    const std::string pipe = folder.path + "/pipe";
    ASSERT_EQ(RunCommand("mkfifo " + pipe).exitCode, 0);
    const RunningPrinter printer("<>" + pipe + " --replay " + device + " --fault delay=10");
    for (const bool returns : {false, true}) {
        folder.File("out.snmprec", "old");
        std::ofstream(pipe) << "clear\n" << std::flush;
        const CommandResult result = RunCommand(
            "{ sleep 0.6; echo fault silence; sleep 2; echo " + std::string(returns ? "clear" : "show") + "; } >" + pipe
            + " & timeout 60 " SIMPRINTER_PROGRAM " record 127.0.0.1 --version 1 --timeout 0.06 --port "
            + printer.Port() + " -o " + file + "; r=$?; wait; exit $r");
        EXPECT_EQ(result.exitCode, returns ? 0 : 1) << result.output;
        if (returns) {
            EXPECT_EQ(WalkOfFile(), ReadFile(device));
        } else {
            EXPECT_NE(result.output.find("no answer for 3 seconds: the walk ends here\n"), std::string::npos);
            EXPECT_EQ(ReadFile(file), "old");
            EXPECT_GT(ReadFile(part).size(), 500U);
        }
    }
}

TEST_F(Record, WhatIsNotCompleteStaysAPart) {
    const auto next = [](const Oid& name) { return name.size() == 5 ? name[4] + 1 : 1; };
    const OddDevice circling([&](const Oid& name) {
        return VarBind{{1, 3, 6, 1, std::min(next(name), 7U)}, NumberValue(1)};
    });
    const OddDevice large([&](const Oid& name) { // recorded as hexadecimal digits
        return VarBind{{1, 3, 6, 1, next(name)}, TextValue(std::string(50000, '\n'))};
    });
    const OddDevice empty([](const Oid& name) { return VarBind{name, {kEndOfMibView, 0, {}, {}}}; });
    const std::tuple<const OddDevice*, const char*, size_t> cases[] = {
        {&circling, "after .1.3.6.1.7 the device gives .1.3.6.1.7, which does not come later", 7},
        {&large, "the walk ends at the limit of 100000 objects and 8388608 bytes", 83},
        {&empty, "the device '127.0.0.1' has answered, but gives no object", 0},
    };
    for (const auto& [odd, message, objects] : cases) {
        folder.File("out.snmprec", "old");
        const CommandResult result = Run(odd->port);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_NE(result.output.find(message), std::string::npos) << result.output;
        EXPECT_EQ(ReadFile(file), "old");
        EXPECT_EQ(std::filesystem::exists(part), objects != 0);
        if (objects == 0)
            continue;
        const RunningPrinter replay("--replay " + part); // takes it
        EXPECT_EQ(RunCommand("grep -c '^1' " + part).output, std::to_string(objects) + '\n');
        std::filesystem::remove(part);
    }
}

TEST_F(Record, NamesWithoutAValueAreLeftOut) {
    const OddDevice odd([](const Oid& name) {
        const uint32_t last = name.size() == 5 ? name[4] + 1 : 1;
        const Tag tag = last % 3 == 0 ? kNoSuchInstance : last == 5 ? kEndOfMibView : kNull;
        return VarBind{last == 5 ? name : Oid{1, 3, 6, 1, last}, {tag, 0, {}, {}}};
    });
    EXPECT_EQ(Run(odd.port).exitCode, 0);
    EXPECT_EQ(ReadFile(file), "# 127.0.0.1, SNMPv2c\n1.3.6.1.1|5|\n1.3.6.1.2|5|\n1.3.6.1.4|5|\n"
                              "# 1 objects are left out, as the device gives no value; the first is .1.3.6.1.3\n");
}

// What was recorded stays in the part, which no other recorder touches; the old file is untouched.
TEST_F(Record, StoppedWalkKeepsItsPart) {
    const RunningPrinter printer("--replay " + device + " --versions 1 --fault delay=30");
    folder.File("out.snmprec", "old");
    const std::string record =
        SIMPRINTER_PROGRAM " record 127.0.0.1 --version 1 --port " + printer.Port() + " -o " + file;
    const CommandResult result =
        RunCommand("{ sleep 1; " + record + "; echo second $?; } & timeout -s INT 2 " + record + "; wait");
    EXPECT_NE(result.output.find("'" + part + "' is in use by another 'simprinter record', of '127.0.0.1, SNMPv1': "),
              std::string::npos)
        << result.output;
    EXPECT_NE(result.output.find("\nsecond 1\n"), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("simprinter: stopped\n"), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("'" + part + "' (SNMPv1, "), std::string::npos) << result.output;
    EXPECT_EQ(ReadFile(file), "old");
    const std::string walk = RunningPrinter("--replay " + part).Ask("snmpwalk", ".1", "-v1 -c tovask -r0 -t2").output;
    EXPECT_EQ(ReadFile(device).substr(0, walk.find("End of MIB")), walk.substr(0, walk.find("End of MIB")));
    EXPECT_GT(walk.size(), 500U);
}

} // namespace
