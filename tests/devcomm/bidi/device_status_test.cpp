// Host only: the exports of the bidirectional path with a scripted library: how it is found, what each call
// is given, what becomes of each answer and of each failure.
#include "base/records.h"

#include "devcomm/bidi/scripted_bdc_host.h"
#include "win32_control.h"

#include <functional>
#include <gtest/gtest.h>
#include <tuple>

using namespace scripted_bdc;

namespace {

using Words = std::vector<std::string>;

constexpr wchar_t kFullPath[] = L"D:\\Family\\TELMAR_B.DLL";
const std::string kBare = "TELMAR_B.DLL", kFull = "D:\\Family\\" + kBare;

const std::string kSystemLibraries[] = {"KERNEL32.DLL", "WS2_32.DLL", "WSOCK32.DLL"};

void RegisterSystemLibraries(size_t missing = kNone) {
    for (size_t i = 0; i < 3; ++i)
        if (i != missing)
            win32::RegisterLibrary(Widened(kSystemLibraries[i]).data());
}

// A load with its look-ups, the last of which fails when an entry point is missing.
Words Load(const std::string& path, size_t missing = kNone) {
    Words calls = {"load " + path};
    for (size_t i = 0; i < kEntryPointCount && i <= missing; ++i)
        calls.push_back(std::string("find ") + kEntryPoints[i].name);
    if (missing != kNone)
        calls.push_back("free " + path);
    return calls;
}

Words operator+(Words first, const Words& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

// --- Finding the library

struct BdcLoad : testing::Test {
    BdcLoad() { Start(); }

    static void Start() {
        win32::Reset();
        win32::SetModuleFileName(L"D:\\Family\\TELMAR_D.DLL");
        script = {};
    }

    static void ExpectNobodyAnswers() {
        int32_t model = 77;
        EXPECT_EQ(DDProc_IsEnableBdcLib(), FALSE);
        EXPECT_EQ(DDProc_IsCommunicateDevice(kAgent, &model), FALSE);
        EXPECT_EQ(model, 0);
        EXPECT_EQ(Option("OpHDD"), "refused");
        EXPECT_EQ(Tray("InTray1"), "refused");
        EXPECT_TRUE(script.calls.empty());
        EXPECT_EQ(win32::Count().libraryReferences, 0);
        EXPECT_EQ(win32::Count().globalBlocks, 0);
    }

    static Words Checks(size_t missing = kNone) {
        Words calls;
        for (size_t i = 0; i < 3 && i <= missing; ++i)
            calls = calls + Words{"load " + kSystemLibraries[i]}
                    + (i == missing ? Words() : Words{"free " + kSystemLibraries[i]});
        return calls;
    }
};

TEST_F(BdcLoad, ByBareNameThenBesideTheModule) {
    EXPECT_EQ(DDProc_IsEnableBdcLib(), FALSE);
    EXPECT_EQ(win32::LibraryCalls(), Words({"load " + kBare, "load " + kFull}));
    ExpectNobodyAnswers();
    for (const bool bare : {true, false}) {
        Start();
        Register(bare ? kBareName : kFullPath);
        RegisterSystemLibraries();
        EXPECT_EQ(DDProc_IsEnableBdcLib(), TRUE);
        const Words loads = bare ? Load(kBare) : Words{"load " + kBare} + Load(kFull);
        EXPECT_EQ(win32::LibraryCalls(), loads + Checks() + Words{"free " + (bare ? kBare : kFull)});
        EXPECT_TRUE(script.calls.empty()) << "no question is asked";
    }
    EXPECT_EQ(BdcLoadLibrary(nullptr, kBareName), 248);
}

TEST_F(BdcLoad, EachEntryPointIsNeeded) {
    for (size_t missing = 0; missing < kEntryPointCount; ++missing) {
        SCOPED_TRACE(kEntryPoints[missing].name);
        Start();
        RegisterSystemLibraries();
        Register(kBareName, missing);
        ExpectNobodyAnswers();
        Register(kFullPath, missing);
        ExpectNobodyAnswers();

        Start();
        RegisterSystemLibraries();
        Register(kBareName, missing);
        Register(kFullPath);
        EXPECT_EQ(Option("OpMachine"), "OpMachine1");
        EXPECT_EQ(win32::LibraryCalls(), Load(kBare, missing) + Load(kFull) + Words{"free " + kFull});
    }
}

// The questions to a device need none of them.
TEST_F(BdcLoad, EachSystemLibraryIsNeeded) {
    for (size_t missing = 0; missing < 3; ++missing) {
        SCOPED_TRACE(kSystemLibraries[missing]);
        Start();
        Register(kBareName);
        RegisterSystemLibraries(missing);
        EXPECT_EQ(DDProc_IsEnableBdcLib(), FALSE);
        EXPECT_EQ(win32::LibraryCalls(), Load(kBare) + Checks(missing) + Words{"free " + kBare});
        EXPECT_EQ(Option("OpMachine"), "OpMachine1");
    }
}

// --- What is asked

struct BdcStatus : BdcLoad {
    BdcStatus() { Register(kBareName); }

    static Words Fill(const std::string& agent = kAgent) {
        Words calls = {"BdcGetLibVersion, state 1", "BdcGetDevCommInfo " + agent + ", state 1",
                       "BdcGetDevName, state 1"};
        for (const std::string list : {"BdcGetDevFirmwareVersion", "BdcGetDevMemoryCapacity", "BdcGetDevOptionInfo",
                                       "BdcGetDevInputTrayInfoEx, selector 2", "BdcGetDevOutputTrayInfo"})
            calls = calls + Words{list + ", state 1, null", list + ", state 1, 1 items"};
        const std::string finishers = "BdcGetDevFinisherInfo, state 1, ";
        return calls + Words{"BdcGetDevMediaPathInfo, state 1, information", finishers + "null", finishers + "1 items"};
    }
};

TEST_F(BdcStatus, OrderAndArgumentsOfTheFill) {
    const std::string longAgent(70, 'a');
    for (const std::string& agent : {std::string(kAgent), longAgent})
        for (const uint32_t communication : {0x12345678u, 0u}) {
            script = {};
            script.device.communication.status = communication != 0 ? 0 : -1;
            EXPECT_EQ(Option("OpMachine", agent.c_str()), "OpMachine1");
            EXPECT_EQ(CallTexts(), Fill(agent));
            RawBytes record(428);
            record.U32(0, 1).U32(4, 1).Text(8, agent.substr(0, 63)).Text(396, "tovask");
            record.U32(72, communication);
            for (size_t i = 2; i < script.calls.size(); ++i) {
                ASSERT_EQ(script.calls[i].record.size(), 428u);
                EXPECT_EQ(Differences(script.calls[i].record.data(), record), "") << script.calls[i].text;
            }
            script.calls.clear();
            EXPECT_EQ(Tray("InTray1", agent.c_str()), kUnknownTray);
            EXPECT_EQ(CallTexts(), Fill(agent));
        }
}

// Version, communication and name are all that it takes to know whether a device answers.
TEST_F(BdcStatus, IsCommunicateDeviceAsksInOrderUntilOneFails) {
    Answer* const calls[] = {&script.version, &script.device.communication, &script.device.name};
    const Words all = Fill();
    for (size_t i = 0; i < 3; ++i)
        for (const int32_t status : {INT32_MIN, -1, 0, 1, 2}) {
            SCOPED_TRACE(all[i] + ", status " + std::to_string(status));
            const bool fails = status < 0 || (status == 1 && i > 0);
            script.calls.clear();
            calls[i]->status = status;
            int32_t model = 77;
            EXPECT_EQ(DDProc_IsCommunicateDevice(kAgent, &model), fails ? FALSE : TRUE);
            EXPECT_EQ(model, fails ? 0 : 1);
            EXPECT_EQ(CallTexts(), Words(all.begin(), all.begin() + (fails ? static_cast<long>(i) + 1 : 3)));
            EXPECT_EQ(DDProc_IsCommunicateDevice(kAgent, nullptr), fails ? FALSE : TRUE);
            EXPECT_EQ(win32::Count().libraryReferences, 0);
            EXPECT_EQ(Option("OpMachine"), fails && i == 2 ? "refused" : "OpMachine1");
            calls[i]->status = 0;
        }
}

TEST_F(BdcStatus, EachFailureLeavesItsPartEmptyAndStopsNothing) {
    ListAnswer Device::*const lists[] = {&Device::firmware,   &Device::memory,      &Device::options,
                                         &Device::inputTrays, &Device::outputTrays, &Device::finishers};
    BdcList BdcDeviceContext::*const filled[] = {&BdcDeviceContext::firmware,    &BdcDeviceContext::memory,
                                                 &BdcDeviceContext::options,     &BdcDeviceContext::inputTrays,
                                                 &BdcDeviceContext::outputTrays, &BdcDeviceContext::finishers};
    using Count = std::optional<uint32_t>;
    const std::tuple<int32_t, Count, int32_t, Count, uint32_t, size_t> cases[] = {
        // status and count of the first call, of the second; items fetched, calls saved
        // clang-format off
        {1, {}, 0, {}, 2, 0}, {2, {}, 2, {}, 2, 0}, {-1, {}, 0, {}, 0, 1}, // the first call may answer 1
        {0, 0, 0, {}, 0, 1}, {0, {}, 1, {}, 0, 0}, {0, {}, -1, {}, 0, 0}, {0, 1, 0, {}, 1, 0},
        {0, {}, 0, 1000, 2, 0}, {0, {}, 0, 1, 2, 0}, // the second call neither widens nor narrows
        {0, 0xFFFFFFFF, 0, {}, 0, 1}, {0, 1073741825, 0, {}, 0, 1}, // no memory, nor in 32 bits
        // clang-format on
    };
    for (size_t i = 0; i < 6; ++i)
        for (const auto& [firstStatus, firstCount, status, count, fetched, callsSaved] : cases) {
            SCOPED_TRACE(testing::Message() << "list " << i << ", statuses " << firstStatus << ", " << status);
            script = {};
            ListAnswer& list = script.device.*lists[i];
            list.items.bytes.assign(2 * list.itemSize, 0x5A);
            list.firstStatus = firstStatus;
            list.firstCount = firstCount;
            list.status = status;
            list.count = count;
            const Context context = Filled();
            ASSERT_NE(context, nullptr);
            const BdcList& got = (*context).*filled[i];
            ASSERT_EQ(got.items != nullptr, fetched > 0);
            list.items.bytes.resize(fetched * list.itemSize);
            EXPECT_EQ(fetched > 0 ? Differences(got.items, list.items) : "", "");
            EXPECT_EQ(script.calls.size(), Fill().size() - callsSaved);
            for (size_t other = 0; other < 6; ++other)
                EXPECT_EQ(((*context).*filled[other]).count, other == i ? fetched : 1u);
            EXPECT_EQ(context->lastState, kStateAfter);
        }
}

TEST_F(BdcStatus, WhatAFailingCallWroteIsThrownAway) {
    for (const int32_t status : {-1, 0, 1, 2}) {
        SCOPED_TRACE(status);
        const bool kept = status != -1 && status != 1;
        script = {};
        Answer* const answers[] = {&script.version, &script.device.communication, &script.device.name,
                                   &script.device.mediaPath};
        for (Answer* answer : answers)
            answer->status = status;
        const Context context = Filled();
        ASSERT_NE(context, nullptr);
        EXPECT_EQ(Differences(&context->version, status >= 0 ? script.version.octets : RawBytes(16)), "");
        const Device& device = script.device;
        EXPECT_EQ(Differences(&context->communication, kept ? device.communication.octets : RawBytes(336)), "");
        EXPECT_EQ(context->device.communication, kept ? 0x12345678 : 0u);
        EXPECT_EQ(Differences(&context->name, kept ? device.name.octets : RawBytes(324)), "");
        EXPECT_EQ(context->mediaPath.items != nullptr, kept);
        EXPECT_EQ(context->mediaPath.count, kept ? 1u : 0u);
        EXPECT_EQ(CallTexts(), Fill());
    }
}

TEST_F(BdcStatus, AllocationFailures) {
    RegisterSystemLibraries();
    win32::FailAllocations(1);
    EXPECT_EQ(DDProc_IsEnableBdcLib(), FALSE);
    EXPECT_EQ(win32::LibraryCalls(), Words());
    win32::FailAllocations(1);
    EXPECT_EQ(Tray("InTray1"), "refused");
    EXPECT_EQ(win32::LibraryCalls(), Words());

    // The context's block comes first, then those of the firmware, of memory and of five more.
    script.device.memory.items = MemoryItem(3);
    for (unsigned failing = 1; failing <= 9; ++failing) {
        SCOPED_TRACE(failing);
        script.calls.clear();
        win32::FailAllocations(failing);
        EXPECT_EQ(Option("OpHDD"), failing == 1 ? "refused" : failing == 3 ? "DisOpHDD" : "EnaOpHDD");
        win32::FailAllocations(0);
        EXPECT_EQ(win32::Count().globalBlocks, 0);
        EXPECT_EQ(win32::Count().libraryReferences, 0);
        EXPECT_EQ(script.calls.size(), failing == 1 ? 0 : Fill().size() - (failing <= 8 ? 1 : 0));
    }
}

TEST_F(BdcStatus, NullArguments) {
    OptionRequestItem option = {};
    InputTrayStatusItem tray = {};
    const std::function<BOOL()> calls[] = {
        [&] { return DDProc_OptionRequest(nullptr, 1, &option); },
        [] { return DDProc_OptionRequest(kAgent, 1, nullptr); },
        [] { return DDProc_OptionRequest(kAgent, 0, nullptr); },
        [&] { return DDProc_InputTrayStatus(nullptr, 1, &tray); },
        [] { return DDProc_InputTrayStatus(kAgent, 1, nullptr); },
    };
    for (const auto& call : calls) {
        SetLastError(0);
        EXPECT_EQ(call(), FALSE);
        EXPECT_EQ(GetLastError(), 87u);
    }
    int32_t model = 77;
    EXPECT_EQ(DDProc_IsCommunicateDevice(nullptr, &model), FALSE);
    EXPECT_EQ(model, 0);
    EXPECT_EQ(DDProc_IsCommunicateDevice(nullptr, nullptr), FALSE);
    EXPECT_EQ(win32::LibraryCalls(), Words()) << "before anything is loaded";
    EXPECT_EQ(win32::Count().allocations, 0u);
    EXPECT_EQ(DDProc_OptionRequest(kAgent, 0, &option), TRUE);
    EXPECT_EQ(DDProc_InputTrayStatus(kAgent, 0, &tray), TRUE);
}

} // namespace
