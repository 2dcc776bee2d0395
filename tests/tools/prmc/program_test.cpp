// The program: exit codes, output, and that a failed build leaves the old file unchanged.
#include "engine_support.h"

#include "common/files.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <regex>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// Without warnings.
const std::string kGood = std::regex_replace(kSmallModel, std::regex("key: A"), "key: OpInTrayUnit1");

// Runs prmc in a temporary folder with good.yaml, other.yaml, warned.yaml, bad.yaml, good.PRM and broken.PRM.
struct Program : testing::Test {
    Program() {
        fs::create_directory(folder);
        WriteFileWhole(Path("good.yaml"), kGood);
        WriteFileWhole(Path("other.yaml"), "Country: {value: 8}\n");
        WriteFileWhole(Path("warned.yaml"), "FeatureSetting: {Staple: Enable}\n");
        WriteFileWhole(Path("bad.yaml"), "Countri: {value: 8}\n");
        WriteFileWhole(Path("good.PRM"), Build(kGood));
        WriteFileWhole(Path("broken.PRM"), Build(kGood).substr(1));
    }
    ~Program() override { fs::remove_all(folder); }

    std::string Path(const std::string& name) const { return (folder / name).string(); }

    int Run(const std::string& arguments) const {
        const std::string command =
            "cd '" + folder.string() + "' && " PRMC_PROGRAM " " + arguments + " >stdout.txt 2>stderr.txt";
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    const fs::path folder = fs::path(testing::TempDir()) / ("prmc_test_" + std::to_string(getpid()));
};

TEST_F(Program, ExitCodesAndOutput) {
    // clang-format off
    const std::tuple<const char*, int, const char*, const char*> runs[] = {
        {"build good.yaml -o new.PRM", 0, "", ""},
        {"build bad.yaml -o new.PRM", 1, "", "bad.yaml:1:1: unknown entry 'Countri'"},
        {"build none.yaml -o new.PRM", 2, "", "prmc: cannot read 'none.yaml': No such file or directory"},
        {"build good.yaml -o none/new.PRM", 2, "", "prmc: cannot write 'none/new.PRM': there is no folder 'none'"},
        {"build good.yaml", 2, "", "prmc: --output is required"},
        {"build good.PRM -o new.PRM", 2, "", "prmc: 'good.PRM' is a binary file; this command takes a model"},
        {"dump good.PRM", 0, "Copies: {min: 1, max: 999, default: 5}\n", ""},
        {"dump good.yaml", 0, "Copies: {min: 1, max: 999, default: 5}\n", ""},
        {"dump broken.PRM", 1, "# Problems in the file", ""},
        {"check good.PRM", 0, "", ""},
        {"check bad.yaml", 1, "", "bad.yaml:1:1: "},
        {"check warned.yaml", 0, "", "warned.yaml:1:18: warning: feature 'Staple' is on, but the list 'Staple' is missing or empty"},
        {"check --strict warned.yaml", 1, "", "warned.yaml:1:18: feature 'Staple' is on"},
        {"build warned.yaml -o warned.PRM", 0, "", "warned.yaml:1:18: warning: "},
        {"check stdout.txt", 2, "", "prmc: 'stdout.txt' has an unknown file type"},
        {"diff good.PRM good.yaml", 0, "", ""},
        {"diff good.PRM other.yaml", 1, "Copies: only in the first file\n", ""},
        {"diff good.PRM bad.yaml", 2, "", "bad.yaml:1:1: "},
        {"", 2, "", "prmc: a command is missing; possible: build, watch, dump, check, diff, entries, schema\n"},
        {"dmup good.PRM", 2, "", "prmc: unknown command 'dmup'; possible: build, "},
        {"dump --al good.PRM", 2, "", "prmc: unknown option '--al'"},
        {"dump good.PRM other.PRM", 2, "", "prmc: too many files: 'other.PRM'"},
        {"entries", 0, "FeatureSetting              name/value table  Turns the features", ""},
        {"entries country", 0, "Country\n  The country. ", ""},
        {"entries --json Copies COUNTRY", 0, "[\n  {\n    \"name\": \"Copies\",", ""},
        {"entries --markdown Country", 0, "### Country\n\nThe country. ", ""},
        {"entries Contry", 2, "", "prmc: unknown entry 'Contry'; did you mean 'Country'?\n"},
        {"check --json good.yaml", 0, "[]\n", ""},
        {"check bad.yaml --json", 1, R"([
  {
    "file": "bad.yaml",
    "line": 1,
    "column": 1,
    "severity": "error",
    "message": "unknown entry 'Countri'; did you mean 'Country'?"
  }
]
)", ""},
        {"check broken.PRM --json", 1, "[\n  {\n    \"file\": \"broken.PRM\",\n    \"offset\": ", ""},
        {"build --json bad.yaml -o new.PRM", 1, "[\n  {\n    \"file\": \"bad.yaml\",", ""},
        {"check none.yaml --json", 2, "", "prmc: cannot read 'none.yaml'"},
        {"--version", 0, "prmc " PROJECT_VERSION "\n", ""},
        {"--help", 0, "Compiles a printer model's parameter data", ""},
    };
    // clang-format on
    for (const auto& [arguments, exitCode, out, errors] : runs) {
        EXPECT_EQ(Run(arguments), exitCode) << arguments;
        for (const auto& [file, text] : {std::pair("stdout.txt", out), {"stderr.txt", errors}}) {
            const std::string got = ReadFile(Path(file)), wanted = text;
            EXPECT_EQ(got.substr(0, wanted.size()), wanted) << arguments;
            EXPECT_EQ(got.empty(), wanted.empty()) << arguments << ": " << got;
        }
    }
}

TEST_F(Program, OutputIsWholeOrUntouched) {
    WriteFileWhole(Path("old.PRM"), "old");
    fs::create_symlink("old.PRM", folder / "link.PRM");
    EXPECT_EQ(Run("build bad.yaml -o old.PRM"), 1);
    EXPECT_EQ(Run("build warned.yaml --strict -o old.PRM"), 1);
    EXPECT_EQ(ReadFile(Path("old.PRM")), "old");
    EXPECT_EQ(Run("build good.yaml -o link.PRM"), 0);
    EXPECT_TRUE(fs::is_symlink(folder / "link.PRM"));
    EXPECT_EQ(ReadFile(Path("old.PRM")), ReadFile(Path("good.PRM")));
    EXPECT_EQ(Run("build good.yaml -o /dev/full"), 2);
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    // six to start with, these two and the two outputs: no temporary is left
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), fs::directory_iterator()), 10);
}

// A shell saves the files one after the other, each after the previous one has been seen.
TEST_F(Program, WatchBuildsAtEachSave) {
    WriteFileWhole(Path("derived.yaml"), "base: good.yaml\n");
    WriteFileWhole(Path("save.sh"),
                   R"sh(PRMC watch derived.yaml -o new.PRM --report 'echo reported' >out.txt 2>err.txt & watch=$!
seen() { i=0; until [ "$(grep -c "$2" "$1")" -ge "$3" ] || [ $((i += 1)) -gt 100 ]; do sleep 0.1; done;
}
seen out.txt reported 1
echo 'Country: {value: x}' >>derived.yaml
seen err.txt derived.yaml:2:18 1
sed -i '$d' derived.yaml
seen out.txt reported 2
echo 'Countri: {value: 1}' >>good.yaml
seen err.txt good.yaml:18:1 1
kill $watch
)sh");
    const std::string script = std::regex_replace(ReadFile(Path("save.sh")), std::regex("PRMC"), PRMC_PROGRAM);
    WriteFileWhole(Path("save.sh"), script);
    EXPECT_EQ(std::system(("cd '" + folder.string() + "' && sh save.sh").c_str()), 0);
    const std::string out = std::regex_replace(ReadFile(Path("out.txt")), std::regex("[0-9:]{8}"), "TIME");
    EXPECT_EQ(out, "TIME written: new.PRM\nreported\nTIME errors; nothing is written\n"
                   "TIME written: new.PRM\nreported\nTIME errors; nothing is written\n");
    EXPECT_EQ(ReadFile(Path("err.txt")),
              "derived.yaml:2:18: 'value' must be a whole number such as 42, -42 or 0x2A, not 'x'\n"
              "good.yaml:18:1: unknown entry 'Countri'; did you mean 'Country'?\n");
    EXPECT_EQ(ReadFile(Path("new.PRM")), ReadFile(Path("good.PRM")));
}

} // namespace
