// `simprinter record`: what it records of running printers, and what it says it could not get.
#include "running_printer.h"

#include "common/files.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <regex>

namespace {

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
    const RunningPrinter printer;
    std::string closed;
    {
        const RunningPrinter other;
        closed = other.Port();
    }
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {closed, "", "simprinter: nothing listens on '127.0.0.1', UDP port " + closed + ": "},
        {printer.Port(), "--community x",
         "simprinter: no answer from '127.0.0.1', UDP port " + printer.Port()
             + ": check the address, the community 'x'"},
    };
    for (const auto& [port, options, output] : cases) {
        const CommandResult result = Run(port, options);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.output.substr(0, output.size()), output);
        EXPECT_FALSE(std::filesystem::exists(file) || std::filesystem::exists(part));
    }
}

// What was recorded stays in the part; the old file is untouched.
TEST_F(Record, StoppedWalkKeepsItsPart) {
    const RunningPrinter printer("--replay " + device + " --versions 1 --fault delay=30");
    folder.File("out.snmprec", "old");
    const CommandResult result =
        RunCommand("timeout -s INT 2 " SIMPRINTER_PROGRAM " record 127.0.0.1 --version 1 --port " + printer.Port()
                   + " -o " + file);
    EXPECT_NE(result.output.find("simprinter: stopped\n"), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("'" + part + "' (SNMPv1, "), std::string::npos) << result.output;
    EXPECT_EQ(ReadFile(file), "old");
    const std::string walk = RunningPrinter("--replay " + part).Ask("snmpwalk", ".1", "-v1 -c tovask -r0 -t2").output;
    EXPECT_EQ(ReadFile(device).substr(0, walk.find("End of MIB")), walk.substr(0, walk.find("End of MIB")));
    EXPECT_GT(walk.size(), 500U);
}

} // namespace
