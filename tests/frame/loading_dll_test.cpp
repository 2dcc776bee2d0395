// Loading and freeing the built DLL: where its resource library is loaded from and when it is freed, and that
// nothing is left behind.
#include "support/product.h"
#include "support/rounds.h"

#include <gtest/gtest.h>
#include <map>

namespace fs = std::filesystem;

namespace {

constexpr wchar_t kSibling[] = L"TELMAR_S.DLL";

TEST(Loading, ResourceLibraryIsLoadedFromTheModulesFolderAndFreedWithIt) {
    for (const wchar_t* name : {L"lumora ascii", L"lumora \u00FC\u0416\u30C6\u30B9\u30C8\U0001F5A8"}) {
        const TemporaryFolder folder(name, {"TELMAR_D.DLL", "TELMAR_S.DLL=frame_sibling.dll"});
        ASSERT_TRUE(fs::exists(ProductFolder() / kSibling)) << "where a bare name is found";
        {
            const LoadedModule module(folder.path);
            ASSERT_FALSE(LoadedPath(kSibling).empty());
            EXPECT_TRUE(fs::equivalent(LoadedPath(kSibling), folder.path / kSibling))
                << LoadedPath(kSibling).u8string();
        }
        EXPECT_EQ(LoadedPath(kSibling), fs::path());
    }
}

// The spooler's library stays loaded, as in every host of a printer driver: wine's leaks a handle at each
// load.
struct LoadingOften : testing::Test {
    ~LoadingOften() override { FreeLibrary(spooler); }

    const HMODULE spooler = LoadLibraryW(L"WINSPOOL.DRV");
};
using ParameterFile = LoadingOften;

// The product in its folder, with all its files.
TEST_F(LoadingOften, LeavesNoHeapBlockAndNoHandle) {
    const auto load = [](int rounds) {
        for (int i = 0; i < rounds; ++i)
            LoadedModule{};
    };
    load(10); // the system caches something at the first loads
    const Holdings before = CountHoldings();
    const int rounds = Rounds(200, 1000);
    load(rounds);
    EXPECT_TRUE(HasNoMoreThan(before, static_cast<size_t>(rounds) / 2)) << "less than one for each time";
}

// A missing, an empty and a cut file, and the complete one.
TEST_F(ParameterFile, IsClosedAfterLoadingAndLeavesNothingBehind) {
    constexpr wchar_t kParameterFile[] = L"TELMAR_D.PRM";
    constexpr uintmax_t kMissing = UINTMAX_MAX;
    const uintmax_t complete = fs::file_size(ProductFolder() / kParameterFile);
    std::map<uintmax_t, size_t> heldBlocks; // by size of the file
    for (const uintmax_t size : {kMissing, uintmax_t{0}, uintmax_t{100}, complete / 2, complete}) {
        const TemporaryFolder folder(L"lumora_parameters", {"TELMAR_D.DLL", "TELMAR_D.PRM"});
        const fs::path file = folder.path / kParameterFile;
        if (size == kMissing)
            fs::remove(file);
        else
            fs::resize_file(file, size);
        { const LoadedModule first(folder.path); }
        const Holdings before = CountHoldings();
        {
            const LoadedModule module(folder.path);
            heldBlocks[size] = CountHoldings().heapBlocks - before.heapBlocks;
            HANDLE alone = CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                       FILE_ATTRIBUTE_NORMAL, nullptr);
            EXPECT_EQ(alone == INVALID_HANDLE_VALUE, size == kMissing) << "still open: a file of " << size;
            CloseHandle(alone);
        }
        EXPECT_TRUE(HasNoMoreThan(before, 10)) << "a complete file takes more blocks; its size is " << size;
    }
    EXPECT_GT(heldBlocks[0], heldBlocks[kMissing]) << "the device table";
    EXPECT_GT(heldBlocks[complete / 2], heldBlocks[0]) << "lists of the first half";
    EXPECT_GE(heldBlocks[complete], heldBlocks[0] + 30) << "the model's lists";
}

TEST(ProcessEnd, SucceedsWithTheModuleLoaded) {
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    if (GetFileAttributesA(path) == INVALID_FILE_ATTRIBUTES)
        GTEST_SKIP() << "Google Test starts this program by its path in the code page, which lacks letters of it";
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            LoadLibraryW((ProductFolder() / L"TELMAR_D.DLL").c_str());
            exit(GetModuleHandleW(L"TELMAR_D.DLL") != nullptr ? 42 : 1);
        },
        testing::ExitedWithCode(42), "");
}

} // namespace
