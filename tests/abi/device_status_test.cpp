// The bidirectional path through the built module, with a scripted library in its folder. The program lies in
// a folder of its own: what stands beside a program is found by its bare name before anything else.
#include "devcomm/bdc_questions.h"
#include "devcomm/scripted_bdc.h"
#include "product.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>

using namespace scripted_bdc;
namespace fs = std::filesystem;

// Where the entry points of the library (bdc_stub.cpp) lead.
extern "C" __declspec(dllexport) void (*ScriptedBdcEntryPoint(const char* name))() {
    for (const EntryPoint& each : kEntryPoints)
        if (strcmp(each.name, name) == 0)
            return each.function;
    return nullptr;
}

namespace {

using Words = std::vector<std::string>;

constexpr wchar_t kLibrary[] = L"TELMAR_B.DLL";
constexpr char kAgent[] = "10.0.0.9";

// The module in a folder with the library, or one that lacks an entry point.
struct Family {
    explicit Family(const wchar_t* library = L"bdc_stub.dll") : module((Fill(library), folder.path)) {
        script = {};
    }

    void Fill(const wchar_t* library) const {
        folder.Add(L"..\\TELMAR_D.DLL", L"TELMAR_D.DLL");
        if (library != nullptr)
            folder.Add(library, kLibrary);
    }

    BOOL IsEnabled() const { return module.Export<BOOL WINAPI()>("DDProc_IsEnableBdcLib")(); }

    // The model answer, or -1 when the device doesn't answer.
    int Communicates(const char* agent = kAgent) const {
        int32_t model = 77;
        const auto ask = module.Export<BOOL WINAPI(const char*, int32_t*)>("DDProc_IsCommunicateDevice");
        const BOOL result = ask(agent, &model);
        EXPECT_TRUE(result == TRUE || model == 0);
        return result == TRUE ? model : -1;
    }

    auto Query(const char* name) const { return module.Export<BOOL WINAPI(const char*, DWORD, void*)>(name); }

    std::string Option(const std::string& key, const char* agent = kAgent) const {
        return AskOption(Query("DDProc_OptionRequest"), key, agent);
    }

    std::string Tray(const std::string& key, const char* agent = kAgent) const {
        return AskTray(Query("DDProc_InputTrayStatus"), key, agent);
    }

    Words Everything() const {
        return {std::to_string(IsEnabled()), std::to_string(Communicates()), Option("OpMachine"),
                Tray("InTray1")};
    }

    TemporaryFolder folder{L"bdc"};
    LoadedModule module;
};

const Words kNobody = {"0", "-1", "refused", "refused"};
const Words kUsable = {"1", "1", "OpMachine1", kUnknownTray};

TEST(Bdc, IsFoundBesideTheModuleAndFreedAgain) {
    const Family family;
    EXPECT_EQ(family.Everything(), kUsable);
    EXPECT_EQ(LoadedPath(kLibrary), fs::path());
    for (const Call& call : script.calls)
        EXPECT_EQ(call.text.find("unfit"), std::string::npos) << call.text;
    fs::remove(family.folder.path / kLibrary);
    EXPECT_EQ(family.Everything(), kNobody);
}

TEST(Bdc, LacksAnEntryPoint) {
    const Family family(L"bdc_stub_lacking.dll");
    EXPECT_EQ(family.Everything(), kNobody);
    EXPECT_TRUE(script.calls.empty());
    EXPECT_EQ(LoadedPath(kLibrary), fs::path());
}

// One that is found by bare name (here since it is loaded) counts first, and the one beside the module if the
// first is of no use.
TEST(Bdc, BareNameComesFirst) {
    const TemporaryFolder elsewhere(L"bdc_elsewhere");
    for (const bool lacking : {false, true}) {
        const fs::path path = elsewhere.Add(lacking ? L"bdc_stub_lacking.dll" : L"bdc_stub.dll", kLibrary);
        const Family family(lacking ? L"bdc_stub.dll" : L"bdc_stub_lacking.dll");
        HMODULE loaded = LoadLibraryW(path.c_str());
        ASSERT_NE(loaded, nullptr);
        EXPECT_EQ(family.Everything(), kUsable);
        EXPECT_TRUE(fs::equivalent(LoadedPath(kLibrary), path));
        FreeLibrary(loaded);
        EXPECT_EQ(LoadedPath(kLibrary), fs::path());
        fs::remove(path);
    }
}

TEST(Bdc, NothingIsLeftBehind) {
    const Family family;
    const auto round = [&family] {
        script.calls = {}; // its memory would count
        family.Everything();
        script.device.name.status = 1 - script.device.name.status;
        script.calls = {};
    };
    for (int i = 0; i < 10; ++i)
        round();
    const Holdings before = CountHoldings();
    for (int i = 0; i < 250; ++i)
        round(); // four calls each
    const Holdings after = CountHoldings();
    EXPECT_EQ(after.handles, before.handles);
    EXPECT_EQ(after.heapBlocks, before.heapBlocks);
    EXPECT_EQ(LoadedPath(kLibrary), fs::path());
}

// Each thread asks another device, with another level in its tray and the options of its own.
TEST(Bdc, SeveralThreads) {
    const Family family;
    constexpr unsigned kThreads = 4;
    const auto agentOf = [](unsigned i) { return "10.0.1." + std::to_string(i); };
    for (unsigned i = 0; i < kThreads; ++i) {
        Device& device = script.others[agentOf(i)];
        device.inputTrays.items = TrayItem({1, 260, 1, 1000 + i});
        device.memory.items = MemoryItem(i % 2 == 0 ? 3 : 1);
    }
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (unsigned i = 0; i < kThreads; ++i)
        threads.emplace_back([&, i] {
            const std::string agent = agentOf(i);
            const std::string tray = "A4 MediaTypeList_Portrait Plain    " + std::to_string(1000 + i);
            for (int round = 0; round < 50; ++round)
                wrong += family.Tray("InTray1", agent.c_str()) != tray
                         || family.Option("OpHDD", agent.c_str()) != (i % 2 == 0 ? "EnaOpHDD" : "DisOpHDD");
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(LoadedPath(kLibrary), fs::path());
}

} // namespace
