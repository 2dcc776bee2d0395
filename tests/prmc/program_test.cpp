// The program as a whole: exit codes, where its output goes, and that a failed build leaves the old file
// alone.
#include "engine_support.h"

#include "common/files.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

// Runs in a folder of its own that holds good.yaml, other.yaml, bad.yaml, good.PRM and broken.PRM.
class Program : public testing::Test {
protected:
    void SetUp() override {
        folder = fs::path(testing::TempDir()) / ("prmc_test_" + std::to_string(getpid()));
        fs::create_directory(folder);
        WriteFileWhole(Path("good.yaml"), kSmallModel);
        WriteFileWhole(Path("other.yaml"), "Country: {value: 8}\n");
        WriteFileWhole(Path("bad.yaml"), "Countri: {value: 8}\n");
        WriteFileWhole(Path("good.PRM"), Build(kSmallModel));
        WriteFileWhole(Path("broken.PRM"), Build(kSmallModel).substr(1));
    }
    void TearDown() override { fs::remove_all(folder); }

    std::string Path(const std::string& name) const { return (folder / name).string(); }

    int Run(const std::string& arguments) const {
        const std::string command =
            "cd '" + folder.string() + "' && " PRMC_PROGRAM " " + arguments + " >stdout.txt 2>stderr.txt";
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    std::string Out() const { return ReadFile(Path("stdout.txt")); }
    std::string Errors() const { return ReadFile(Path("stderr.txt")); }

    fs::path folder;
};

TEST_F(Program, ExitCodesAndOutput) {
    // clang-format off
    const struct {
        const char* arguments;
        int exitCode;
        const char* out;
        const char* errors;
    } runs[] = {
        {"build good.yaml -o new.PRM", 0, "", ""},
        {"build bad.yaml -o new.PRM", 1, "", "bad.yaml:1:1: unknown entry 'Countri'"},
        {"build none.yaml -o new.PRM", 2, "", "prmc: cannot read 'none.yaml': No such file or directory"},
        {"build good.yaml -o none/new.PRM", 2, "", "prmc: cannot write beside 'none/new.PRM': No such file"},
        {"build good.yaml", 2, "", "prmc: --output is required"},
        {"build good.PRM -o new.PRM", 2, "", "prmc: 'good.PRM' is a binary file, wanted is a model (.yaml)"},
        {"dump good.PRM", 0, "Copies: {min: 1, max: 999, default: 5}\n", ""},
        {"dump good.yaml", 2, "", "prmc: 'good.yaml' is a model, wanted is a binary file (.PRM)"},
        {"dump broken.PRM", 1, "# Findings on the binary file", ""},
        {"check good.yaml", 0, "", ""},
        {"check good.PRM", 0, "", ""},
        {"check bad.yaml", 1, "", "bad.yaml:1:1: "},
        {"check stdout.txt", 2, "", "prmc: cannot tell what 'stdout.txt' is"},
        {"diff good.PRM good.yaml", 0, "", ""},
        {"diff good.PRM other.yaml", 1, "Copies: only in the first\n", ""},
        {"diff good.PRM bad.yaml", 2, "", "bad.yaml:1:1: "},
        {"", 2, "", "prmc: no command is given\nCommands are build, dump, check and diff"},
        {"dmup good.PRM", 2, "", "prmc: there is no command 'dmup'; did you mean 'dump'?\nCommands are"},
        {"dump --al good.PRM", 2, "", "prmc: there is no option '--al'"},
        {"dump good.PRM other.PRM", 2, "", "prmc: 'other.PRM' is one file too many"},
        {"--help", 0, "Compiles a printer model's parameter data", ""},
    };
    // clang-format on
    for (const auto& run : runs) {
        EXPECT_EQ(Run(run.arguments), run.exitCode) << run.arguments;
        for (const auto& [got, wanted] : {std::pair(Out(), std::string(run.out)), {Errors(), run.errors}}) {
            EXPECT_EQ(got.substr(0, wanted.size()), wanted) << run.arguments;
            EXPECT_EQ(got.empty(), wanted.empty()) << run.arguments << ": " << got;
        }
    }
}

TEST_F(Program, OutputIsWholeOrUntouched) {
    WriteFileWhole(Path("old.PRM"), "old");
    fs::create_symlink("old.PRM", folder / "link.PRM");
    EXPECT_EQ(Run("build bad.yaml -o old.PRM"), 1);
    EXPECT_EQ(ReadFile(Path("old.PRM")), "old");
    EXPECT_EQ(Run("build good.yaml -o link.PRM"), 0);
    EXPECT_TRUE(fs::is_symlink(folder / "link.PRM"));
    EXPECT_EQ(ReadFile(Path("old.PRM")), ReadFile(Path("good.PRM")));
    EXPECT_EQ(Run("build good.yaml -o /dev/full"), 2);
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
    size_t files = 0;
    for ([[maybe_unused]] const auto& file : fs::directory_iterator(folder))
        ++files;
    EXPECT_EQ(files, 9u); // five to start with, these two and the two outputs: no temporary is left
}

} // namespace
