// Host only: the exports of the bidirectional path with a scripted library: how it is found, what each call
// is given, what becomes of each answer and of each failure.
#include "devcomm/device_status.h"

#include "devcomm/bdc_device.h"
#include "devcomm/device_tables.h"
#include "devcomm/scripted_bdc.h"
#include "platform_control.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <utility>

using namespace scripted_bdc;

namespace {

using Words = std::vector<std::string>;

constexpr wchar_t kBareName[] = L"TELMAR_B.DLL";
constexpr wchar_t kFullPath[] = L"D:\\Family\\TELMAR_B.DLL";
const std::string kBare = "TELMAR_B.DLL";
const std::string kFull = "D:\\Family\\TELMAR_B.DLL";
constexpr size_t kNone = kEntryPointCount;
constexpr char kAgent[] = "10.0.0.9";
const std::string kModel = "QUORVANE lumora R880";

const char* const kSystemLibraries[] = {"KERNEL32.DLL", "WS2_32.DLL", "WSOCK32.DLL"};
const wchar_t* const kSystemLibrariesWide[] = {L"KERNEL32.DLL", L"WS2_32.DLL", L"WSOCK32.DLL"};

void Register(const wchar_t* path, size_t missing = kNone) {
    std::vector<platform::Export> exports;
    for (size_t i = 0; i < kEntryPointCount; ++i)
        if (i != missing)
            exports.emplace_back(kEntryPoints[i].name, kEntryPoints[i].function);
    platform::RegisterLibrary(path, exports);
}

void RegisterSystemLibraries(size_t missing = kNone) {
    for (size_t i = 0; i < 3; ++i)
        if (i != missing)
            platform::RegisterLibrary(kSystemLibrariesWide[i]);
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

// The answers to these keys, or "refused", with the items as they were.
Words Options(const Words& keys, const char* agent = kAgent) {
    std::vector<OptionRequestItem> items(keys.size());
    memset(items.data(), 0xAB, items.size() * sizeof(OptionRequestItem));
    for (size_t i = 0; i < keys.size(); ++i)
        memcpy(items[i].key, keys[i].c_str(), keys[i].size() + 1);
    const std::vector<OptionRequestItem> before = items;
    if (!DDProc_OptionRequest(agent, static_cast<DWORD>(items.size()), items.data())) {
        EXPECT_EQ(memcmp(items.data(), before.data(), items.size() * sizeof(OptionRequestItem)), 0);
        return {"refused"};
    }
    Words answers;
    for (size_t i = 0; i < keys.size(); ++i) {
        EXPECT_EQ(memcmp(items[i].key, before[i].key, 32), 0);
        answers.emplace_back(items[i].value);
        const RawBytes cleared = RawBytes(32).Text(0, answers.back());
        EXPECT_EQ(Differences(items[i].value, cleared), "") << keys[i];
    }
    return answers;
}

// "size orientation type weight color hole level", or "refused", with the item as it was.
std::string TrayStatus(const std::string& key, const char* agent = kAgent) {
    RawBytes record(228);
    record.U8(0, 0xAB, 228).Text(0, key + '\0');
    const RawBytes before = record;
    auto* item = reinterpret_cast<InputTrayStatusItem*>(record.bytes.data());
    if (!DDProc_InputTrayStatus(agent, 1, item)) {
        EXPECT_EQ(Differences(item, before), "");
        return "refused";
    }
    EXPECT_EQ(memcmp(item, before.bytes.data(), 32), 0);
    std::string answer;
    for (size_t offset = 32; offset < 224; offset += 32) {
        const std::string text = reinterpret_cast<const char*>(&record.bytes[offset]);
        EXPECT_EQ(Differences(&record.bytes[offset], RawBytes(32).Text(0, text)), "");
        answer += text + " ";
    }
    return answer + std::to_string(NumberAt<uint32_t>(item, 224));
}

const std::string kUnknownTray =
    "MediaTypeList_Size_Unknown MediaTypeList_Orient_Unknown MediaTypeList_Type_Unknown "
    "MediaTypeList_Weight_Unknown MediaTypeList_Color_Unknown MediaTypeList_Hole_Unknown 0";

struct Closing {
    void operator()(BdcDeviceContext* context) const { BdcCloseDevice(context); }
};
using Context = std::unique_ptr<BdcDeviceContext, Closing>;

Context Filled() {
    Context context(BdcOpenDevice(kAgent));
    if (context != nullptr)
        BdcFillDevice(*context);
    return context;
}

// --- Finding the library

struct BdcLoad : testing::Test {
    BdcLoad() { Start(); }

    static void Start() {
        platform::Reset();
        platform::SetModuleFileName(L"D:\\Family\\TELMAR_D.DLL");
        script = {};
    }

    static void ExpectNobodyAnswers() {
        int32_t model = 77;
        EXPECT_EQ(DDProc_IsEnableBdcLib(), FALSE);
        EXPECT_EQ(DDProc_IsCommunicateDevice(kAgent, &model), FALSE);
        EXPECT_EQ(model, 0);
        EXPECT_EQ(Options({"OpHDD"}), Words({"refused"}));
        EXPECT_EQ(TrayStatus("InTray1"), "refused");
        EXPECT_TRUE(script.calls.empty());
        EXPECT_EQ(platform::Count().libraryReferences, 0);
        EXPECT_EQ(platform::Count().globalBlocks, 0);
    }

    static Words Checks(size_t missing = kNone) {
        Words calls;
        for (size_t i = 0; i < 3 && i <= missing; ++i)
            calls = calls + Words{std::string("load ") + kSystemLibraries[i]}
                    + (i == missing ? Words() : Words{std::string("free ") + kSystemLibraries[i]});
        return calls;
    }
};

TEST_F(BdcLoad, ByBareNameThenBesideTheModule) {
    EXPECT_EQ(DDProc_IsEnableBdcLib(), FALSE);
    EXPECT_EQ(platform::LibraryCalls(), Words({"load " + kBare, "load " + kFull}));
    ExpectNobodyAnswers();
    for (const bool bare : {true, false}) {
        Start();
        Register(bare ? kBareName : kFullPath);
        RegisterSystemLibraries();
        EXPECT_EQ(DDProc_IsEnableBdcLib(), TRUE);
        const Words loads = bare ? Load(kBare) : Words{"load " + kBare} + Load(kFull);
        EXPECT_EQ(platform::LibraryCalls(), loads + Checks() + Words{"free " + (bare ? kBare : kFull)});
        EXPECT_TRUE(script.calls.empty()) << "no question is asked";
    }
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
        EXPECT_EQ(Options({"OpMachine"}), Words({"OpMachine1"}));
        EXPECT_EQ(platform::LibraryCalls(), Load(kBare, missing) + Load(kFull) + Words{"free " + kFull});
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
        EXPECT_EQ(platform::LibraryCalls(), Load(kBare) + Checks(missing) + Words{"free " + kBare});
        EXPECT_EQ(Options({"OpMachine"}), Words({"OpMachine1"}));
    }
}

TEST_F(BdcLoad, Table) {
    BdcFunctionTable table = {};
    EXPECT_EQ(BdcLoadLibrary(nullptr, kBareName), 248);
    EXPECT_EQ(BdcLoadLibrary(&table, kBareName), 0);
    Register(kBareName);
    EXPECT_EQ(BdcLoadLibrary(&table, kBareName), 1);
    EXPECT_NE(NumberAt<uint64_t>(&table, 0), 0u);
    for (size_t i = 0; i < 30; ++i)
        EXPECT_EQ(NumberAt<uint64_t>(&table, 8 + 8 * i),
                  i < kEntryPointCount ? reinterpret_cast<uint64_t>(kEntryPoints[i].function) : 0)
            << "slot " << i + 1;
    BdcFreeLibrary(table);
    EXPECT_EQ(Differences(&table, RawBytes(248)), "");
}

// --- What is asked

struct BdcStatus : BdcLoad {
    BdcStatus() { Register(kBareName); }

    static Words Fill(const std::string& agent = kAgent) {
        Words calls = {"BdcGetLibVersion, state 1", "BdcGetDevCommInfo " + agent + ", state 1",
                       "BdcGetDevName, state 1"};
        for (const std::string list :
             {"BdcGetDevFirmwareVersion", "BdcGetDevMemoryCapacity", "BdcGetDevOptionInfo",
              "BdcGetDevInputTrayInfoEx, selector 2", "BdcGetDevOutputTrayInfo"})
            calls = calls + Words{list + ", state 1, null", list + ", state 1, 1 items"};
        const std::string finishers = "BdcGetDevFinisherInfo, state 1, ";
        return calls
               + Words{"BdcGetDevMediaPathInfo, state 1, information", finishers + "null",
                       finishers + "1 items"};
    }
};

TEST_F(BdcStatus, OrderAndArgumentsOfTheFill) {
    const std::string longAgent(70, 'a');
    for (const std::string& agent : {std::string(kAgent), longAgent})
        for (const uint32_t communication : {0x12345678u, 0u}) {
            script = {};
            script.device.communication.status = communication != 0 ? 0 : -1;
            EXPECT_EQ(Options({"OpMachine"}, agent.c_str()), Words({"OpMachine1"}));
            EXPECT_EQ(CallTexts(), Fill(agent));
            RawBytes record(428);
            record.U32(0, 1).U32(4, 1).Text(8, agent.substr(0, 63)).Text(396, "tovask");
            record.U32(72, communication);
            for (size_t i = 2; i < script.calls.size(); ++i) {
                ASSERT_EQ(script.calls[i].record.size(), 428u);
                EXPECT_EQ(Differences(script.calls[i].record.data(), record), "") << script.calls[i].text;
            }
            script.calls.clear();
            EXPECT_EQ(TrayStatus("InTray1", agent.c_str()), kUnknownTray);
            EXPECT_EQ(CallTexts(), Fill(agent));
        }
}

// Version, communication and name are all that it takes to know whether a device answers.
TEST_F(BdcStatus, IsCommunicateDeviceAsksInOrderUntilOneFails) {
    const struct {
        Answer& answer;
        bool oneFails;
    } calls[] = {{script.version, false}, {script.device.communication, true}, {script.device.name, true}};
    const Words all = Fill();
    for (size_t i = 0; i < 3; ++i)
        for (const int32_t status : {INT32_MIN, -1, 0, 1, 2}) {
            SCOPED_TRACE(all[i] + ", status " + std::to_string(status));
            const bool fails = status < 0 || (status == 1 && calls[i].oneFails);
            script.calls.clear();
            calls[i].answer.status = status;
            int32_t model = 77;
            EXPECT_EQ(DDProc_IsCommunicateDevice(kAgent, &model), fails ? FALSE : TRUE);
            EXPECT_EQ(model, fails ? 0 : 1);
            EXPECT_EQ(CallTexts(), Words(all.begin(), all.begin() + (fails ? static_cast<long>(i) + 1 : 3)));
            EXPECT_EQ(DDProc_IsCommunicateDevice(kAgent, nullptr), fails ? FALSE : TRUE);
            EXPECT_EQ(platform::Count().libraryReferences, 0);
            EXPECT_EQ(Options({"OpMachine"}), Words({fails && i == 2 ? "refused" : "OpMachine1"}));
            calls[i].answer.status = 0;
        }
}

TEST_F(BdcStatus, EachFailureLeavesItsPartEmptyAndStopsNothing) {
    ListAnswer Device::*const lists[] = {&Device::firmware,   &Device::memory,      &Device::options,
                                         &Device::inputTrays, &Device::outputTrays, &Device::finishers};
    BdcList BdcDeviceContext::*const filled[] = {
        &BdcDeviceContext::firmware,   &BdcDeviceContext::memory,      &BdcDeviceContext::options,
        &BdcDeviceContext::inputTrays, &BdcDeviceContext::outputTrays, &BdcDeviceContext::finishers};
    const struct {
        int32_t firstStatus;
        std::optional<uint32_t> firstCount;
        int32_t status;
        std::optional<uint32_t> count;
        uint32_t fetched;
        long callsSaved;
    } cases[] = {
        {0, {}, 0, {}, 2, 0},         {1, {}, 0, {}, 2, 0},  // the first call may answer 1
        {2, {}, 2, {}, 2, 0},         {-1, {}, 0, {}, 0, 1}, // whatever count it tells
        {INT32_MIN, {}, 0, {}, 0, 1}, {0, 0, 0, {}, 0, 1},
        {0, {}, 1, {}, 0, 0},         {0, {}, -1, {}, 0, 0},
        {0, {}, 0, 1000, 2, 0}, // the second call widens nothing
        {0, {}, 0, 1, 2, 0},          {0, 1, 0, {}, 1, 0},
        {0, 0xFFFFFFFF, 0, {}, 0, 1}, // no memory for that
        {0, 1073741825, 0, {}, 0, 1}, // 4 octets too many for 32 bits, times item sizes
    };
    for (size_t i = 0; i < 6; ++i)
        for (const auto& c : cases) {
            SCOPED_TRACE("list " + std::to_string(i) + ", case " + std::to_string(&c - cases));
            script = {};
            ListAnswer& list = script.device.*lists[i];
            list.items.bytes.assign(2 * list.itemSize, 0x5A);
            list.firstStatus = c.firstStatus;
            list.firstCount = c.firstCount;
            list.status = c.status;
            list.count = c.count;
            const Context context = Filled();
            ASSERT_NE(context, nullptr);
            const BdcList& got = (*context).*filled[i];
            EXPECT_EQ(got.count, c.fetched);
            ASSERT_EQ(got.items != nullptr, c.fetched > 0);
            if (c.fetched > 0) {
                EXPECT_EQ(memcmp(got.items, list.items.bytes.data(), c.fetched * list.itemSize), 0);
            }
            EXPECT_EQ(script.calls.size(), Fill().size() - static_cast<size_t>(c.callsSaved));
            for (size_t other = 0; other < 6; ++other)
                if (other != i) {
                    EXPECT_EQ(((*context).*filled[other]).count, 1u);
                }
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
        EXPECT_EQ(Differences(&context->communication, kept ? device.communication.octets : RawBytes(336)),
                  "");
        EXPECT_EQ(context->device.communication, kept ? 0x12345678 : 0u);
        EXPECT_EQ(Differences(&context->name, kept ? device.name.octets : RawBytes(324)), "");
        EXPECT_EQ(context->mediaPath.items != nullptr, kept);
        EXPECT_EQ(context->mediaPath.count, kept ? 1u : 0u);
        EXPECT_EQ(CallTexts(), Fill());
    }
}

TEST_F(BdcStatus, ContextBeforeTheFirstQuestion) {
    const Context context(BdcOpenDevice(kAgent));
    ASSERT_NE(context, nullptr);
    HGLOBAL handle = GlobalHandle(context.get());
    EXPECT_TRUE(handle != nullptr && handle != context.get()) << "movable";
    RawBytes names(4 + 10 * 256 + 4 + 10 * 64);
    names.U32(0, 1).Text(4, kModel).U32(2564, 1).Text(2568, kModel);
    EXPECT_EQ(Differences(reinterpret_cast<const uint8_t*>(context.get()) + 248, names), "");
    EXPECT_EQ(
        Differences(&context->version, RawBytes(sizeof(*context) - offsetof(BdcDeviceContext, version))), "");
}

TEST_F(BdcStatus, AllocationFailures) {
    RegisterSystemLibraries();
    platform::FailAllocations(1);
    EXPECT_EQ(DDProc_IsEnableBdcLib(), FALSE);
    EXPECT_EQ(platform::LibraryCalls(), Words());
    platform::FailAllocations(1);
    EXPECT_EQ(TrayStatus("InTray1"), "refused");
    EXPECT_EQ(platform::LibraryCalls(), Words());

    // The context's block comes first, then those of memory (the firmware's before it) and of options.
    script.device.memory.items = MemoryItem(3);
    script.device.options.items = OptionItem(3, "QA-110");
    const Words keys = {"OpHDD", "OpInTrayUnit"};
    const struct {
        unsigned failing;
        Words answers;
    } cases[] = {
        {1, {"refused"}},
        {2, {"EnaOpHDD", "OpInTrayUnit1"}},
        {3, {"DisOpHDD", "OpInTrayUnit1"}},
        {4, {"EnaOpHDD", "DisOpInTrayUnit"}},
        {8, {"EnaOpHDD", "OpInTrayUnit1"}},
        {9, {"EnaOpHDD", "OpInTrayUnit1"}}, // there is no ninth
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.failing);
        script.calls.clear();
        platform::FailAllocations(c.failing);
        EXPECT_EQ(Options(keys), c.answers);
        EXPECT_EQ(platform::Count().globalBlocks, 0);
        EXPECT_EQ(platform::Count().libraryReferences, 0);
        const bool listSpared = c.failing >= 2 && c.failing <= 8;
        EXPECT_EQ(script.calls.size(), c.failing == 1 ? 0 : Fill().size() - (listSpared ? 1 : 0));
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
    EXPECT_EQ(platform::LibraryCalls(), Words()) << "before anything is loaded";
    EXPECT_EQ(platform::Count().allocations, 0u);
    EXPECT_EQ(DDProc_OptionRequest(kAgent, 0, &option), TRUE);
    EXPECT_EQ(DDProc_InputTrayStatus(kAgent, 0, &tray), TRUE);
}

// --- What it means

TEST_F(BdcStatus, ModelTestIsExact) {
    const std::string lower = "quorvane lumora r880";
    const struct {
        std::string longName;
        std::string shortName;
        int32_t model;
    } cases[] = {
        {kModel, kModel, 1},
        {lower, kModel, 0},
        {kModel, lower, 0},
        {"", "", 0},
        {kModel, "", 0},
        {"", kModel, 0},
        {kModel + "0", kModel, 0},
        {kModel, kModel + " ", 0},
        {kModel, "QUORVANE lumora R88", 0},
        {kModel + '\0' + "rest", kModel + '\0' + "rest", 1},
        {kModel + std::string(236, 'x'), kModel, 0}, // fields without terminator
        {kModel, kModel + std::string(44, 'x'), 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.longName + " | " + c.shortName);
        script.device.name.octets = RawBytes(324).Text(4, c.longName).Text(260, c.shortName);
        int32_t model = 77;
        EXPECT_EQ(DDProc_IsCommunicateDevice(kAgent, &model), TRUE);
        EXPECT_EQ(model, c.model);
        EXPECT_EQ(Options({"OpMachine"}), Words({c.model == 1 ? "OpMachine1" : "refused"}));
        EXPECT_EQ(TrayStatus("InTray9"), c.model == 1 ? kUnknownTray : "refused");
        EXPECT_EQ(platform::Count().libraryReferences, 0);
    }
    // The bit is not: it is there for both letter cases, but not for more text.
    const std::pair<std::string, uint32_t> bits[] = {{kModel, 1}, {lower, 1}, {kModel + "0", 0}, {"", 0}};
    const char machine[32] = "OpMachine";
    for (const auto& [name, bit] : bits) {
        script.device.name.octets = RawBytes(324).Text(4, name);
        const BdcDeviceBits derived = BdcDeriveBits(*Filled());
        EXPECT_EQ(derived.words[kModelBits], bit) << name;
        EXPECT_STREQ(BdcApplyRules(machine, derived), bit == 1 ? "OpMachine1" : nullptr);
    }
}

RawBytes Items(const std::vector<RawBytes>& each) {
    RawBytes items(0);
    for (const RawBytes& item : each)
        items.Append(item);
    return items;
}

TEST_F(BdcStatus, Bits) {
    using List = std::vector<RawBytes>;
    const std::string unterminated = "QA-110" + std::string(58, '0');
    const struct {
        List options;
        uint32_t bits;
    } optionCases[] = {
        {{OptionItem(3, "QA-110")}, 0x01},
        {{OptionItem(5, "QB-220")}, 0x02},
        {{OptionItem(6, "QC-330")}, 0x04},
        {{OptionItem(6, "QD-440")}, 0x08},
        {{OptionItem(6, "QE-550")}, 0x10},
        {{OptionItem(6, "QF-660")}, 0x20},
        {{OptionItem(1000, "Bdc_Function_Fax")}, 0x40},
        {{OptionItem(1000, "BDC_FUNCTION_FAX"), OptionItem(6, "qc-330")}, 0x44},
        {{OptionItem(6, "QE-550"), OptionItem(6, "QE-550")}, 0},
        {{OptionItem(6, "QE-550"), OptionItem(6, "qe-550"), OptionItem(6, "QF-660")}, 0x20},
        {{OptionItem(6, "QE-550"), OptionItem(5, "QE-550")}, 0x10}, // the other is of no known type
        {{OptionItem(5, "QA-110"), OptionItem(3, "QA-11"), OptionItem(3, unterminated)}, 0},
        {{OptionItem(3, ""), OptionItem(0, "QA-110"), OptionItem(0x10003, "QA-110")}, 0},
    };
    for (const auto& c : optionCases) {
        script.device.options.items = Items(c.options);
        EXPECT_EQ(BdcDeriveBits(*Filled()).words[kOptionBits], c.bits) << &c - optionCases;
    }
    const struct {
        std::vector<uint32_t> flags;
        uint32_t bits;
    } finisherCases[] = {{{0x10}, 1}, {{0x20}, 2},       {{0x40}, 4},          {{0x24}, 2},
                         {{0x8F}, 0}, {{0xFFFFFFFF}, 7}, {{0x10, 0, 0x40}, 5}, {{0x20, 0x20}, 2}};
    for (const auto& c : finisherCases) {
        List list;
        for (const uint32_t flags : c.flags)
            list.push_back(FinisherItem(flags));
        script.device.finishers.items = Items(list);
        EXPECT_EQ(BdcDeriveBits(*Filled()).words[kFinisherBits], c.bits) << &c - finisherCases;
    }
    const std::pair<std::vector<uint32_t>, uint32_t> memoryCases[] = {
        {{3}, 1}, {{1, 3, 4}, 1}, {{3, 3}, 0}, {{2, 4}, 0}, {{3, 3, 3}, 0}};
    for (const auto& [kinds, bit] : memoryCases) {
        List list;
        for (const uint32_t kind : kinds)
            list.push_back(MemoryItem(kind));
        script.device.memory.items = Items(list);
        EXPECT_EQ(BdcDeriveBits(*Filled()).words[kMemoryBits], bit);
        EXPECT_EQ(Options({"OpHDD"}), Words({bit == 1 ? "EnaOpHDD" : "DisOpHDD"}));
    }
    for (const uint32_t path : {0u, 1u, 2u, 0xFFFFFFFFu})
        for (const int32_t status : {0, 1, -1}) {
            script.device.mediaPath = {RawBytes(8).U32(4, path), status};
            const uint32_t bits = status != 0 || path > 1 ? 0 : path + 1;
            EXPECT_EQ(BdcDeriveBits(*Filled()).words[kMediaPathBits], bits) << path << " " << status;
        }
}

TEST_F(BdcStatus, Rules) {
    const RawBytes a = OptionItem(3, "QA-110"), b = OptionItem(5, "QB-220"), c = OptionItem(6, "QC-330"),
                   d = OptionItem(6, "QD-440"), e = OptionItem(6, "QE-550"), f = OptionItem(6, "QF-660"),
                   fax = OptionItem(1000, "Bdc_Function_Fax");
    const RawBytes other = OptionItem(9, "QX-990");
    const struct {
        const char* key;
        std::vector<RawBytes> options;
        uint32_t finisherFlags;
        const char* item;
    } cases[] = {
        {"OpMachine", {other}, 0, "OpMachine1"},
        {"OpInTrayUnit", {a}, 0, "OpInTrayUnit1"},
        {"OpInTrayUnit", {b, c, d, e, f, fax}, 0x70, "DisOpInTrayUnit"},
        {"OpOutTrayUnit", {b, d}, 0, "OpOutTrayUnit2"},
        {"OpOutTrayUnit", {d}, 0, "OpOutTrayUnit2"},
        {"OpOutTrayUnit", {b}, 0x24, "OpOutTrayUnit1"},
        {"OpOutTrayUnit", {a, c, e, f, fax}, 0x70, "DisOpOutTrayUnit"},
        {"OpPunchKit", {c}, 0x70, "OpPunchKit3"},
        {"OpPunchKit", {c}, 0x30, "OpPunchKit2"},
        {"OpPunchKit", {b, c}, 0x24, "OpPunchKit2"},
        {"OpPunchKit", {c}, 0x10, "OpPunchKit1"},
        {"OpPunchKit", {c}, 0x8F, "DisOpPunchKit"},
        {"OpPunchKit", {b}, 0x24, "DisOpPunchKit"},
        {"OpPunchKit", {a, b, d, e, f, fax}, 0x70, "DisOpPunchKit"},
        {"OpMailBinKit", {e}, 0, "EnaOpMailBinKit"},
        {"OpMailBinKit", {e, e}, 0, "DisOpMailBinKit"},
        {"OpMailBinKit", {a, b, c, d, f, fax}, 0x70, "DisOpMailBinKit"},
        {"OpSaddleKit", {f}, 0, "EnaSaddleKit"},
        {"OpSaddleKit", {a, b, c, d, e, fax}, 0x70, "DisSaddleKit"},
        {"OpFAXUnit", {fax}, 0, "EnaOpFAXKit"},
        {"OpFAXUnit", {a, b, c, d, e, f}, 0x70, "DisOpFAXKit"},
        {"OpHDD", {a, b, c, d, e, f, fax}, 0x70, "DisOpHDD"},
        {"opmachine", {other}, 0, "OpMachine1"},
        {"OPFAXUNIT", {fax}, 0, "EnaOpFAXKit"},
        {"OpMachine1", {other}, 0, ""},
        {"OpBody", {other}, 0, ""},
        {"Op", {other}, 0, ""},
        {"", {other}, 0, ""},
    };
    Words keys, answers;
    for (const auto& each : cases) {
        script.device.options.items = Items(each.options);
        script.device.finishers.items = FinisherItem(each.finisherFlags);
        EXPECT_EQ(Options({each.key}), Words({each.item})) << each.key << " " << &each - cases;
    }
    EXPECT_EQ(Options({"OpHDD", "none", "OpMachine", "OpSaddleKit"}),
              Words({"DisOpHDD", "", "OpMachine1", "DisSaddleKit"}));
    // A key that fills its field.
    OptionRequestItem item = {};
    memset(item.key, 'x', sizeof(item.key));
    memset(item.value, 'x', sizeof(item.value));
    EXPECT_EQ(DDProc_OptionRequest(kAgent, 1, &item), TRUE);
    EXPECT_EQ(Differences(item.value, RawBytes(32)), "");
}

TEST_F(BdcStatus, MediaSizesAndOrientations) {
    const std::pair<unsigned, std::string> sizes[] = {
        {259, "A3"},
        {260, "A4"},
        {261, "A5"},
        {262, "A6"},
        {516, "B4_JIS"},
        {517, "B5_JIS"},
        {518, "B6"},
        {1540, "12x18inch"},
        {1541, "11x17inch"},
        {1547, "8half14"},
        {1551, "8half11"},
        {1559, "7qtr10half"},
        {1560, "5half8half"},
        {2051, "8K"},
        {2052, "16K"},
        {773, "B5_ISO"},
        {1029, "EnvelopeC5"},
        {2826, "EnvelopeDL"},
        {3073, "EnvelopeMonarch"},
        {3074, "Envelope10"},
        {3587, "JpnPostcard"},
        {3602, "4x6PostCard"},
        {1556, "8x13"},
        {1553, "8qtr13"},
        {1549, "8half13"},
        {1285, "220330mm"},
        {1554, "8hq13qtr"},
        {8451, "A3W"},
        {8452, "A4W"},
        {8453, "A5W"},
        {8708, "B4W"},
        {8709, "B5W"},
        {9733, "11x17W"},
        {9743, "8half11W"},
        {9752, "5half8halfW"},
        {0, ""},
        {258, ""},
        {263, ""},
        {65535, ""},
    };
    for (const auto& [code, key] : sizes) {
        script.device.inputTrays.items = TrayItem({1, code});
        EXPECT_EQ(TrayStatus("InTray1"), key + " MediaTypeList_Portrait Plain    0") << code;
    }
    const std::pair<uint32_t, std::string> orientations[] = {{2, "MediaTypeList_Portrait"},
                                                             {3, "MediaTypeList_Landscape"},
                                                             {0, ""},
                                                             {1, ""},
                                                             {4, ""},
                                                             {0x10002, ""}};
    for (const auto& [code, key] : orientations) {
        script.device.inputTrays.items = TrayItem({1, 260, 1, 0, code});
        EXPECT_EQ(TrayStatus("InTray1"), "A4 " + key + " Plain    0") << code;
    }
}

TEST_F(BdcStatus, MediaTypes) {
    const struct {
        uint32_t type, color, secondSide;
        std::string key;
    } cases[] = {
        {1, 15, 0, "Color"},
        {1, 15, 1, "Color"},
        {1, 0, 1, "PlainPaper2nd"},
        {1, 7, 1, "PlainPaper2nd"},
        {1, 0, 0, "Plain"},
        {1, 0, 2, "Plain"},
        {1, 7, 0, ""},
        {177, 15, 1, "Special"},
        {40, 15, 1, "Envelope"},
        {162, 15, 1, "Letterhead"},
        {184, 15, 1, "SingleSided"},
        {225, 15, 1, "Thick1_2nd"},
        {225, 7, 0, "Thick1"},
        {226, 0, 1, "Thick2_2nd"},
        {226, 0, 2, "Thick2"},
        {227, 0, 1, "Thick3_2nd"},
        {227, 0, 0xFFFFFFFF, "Thick3"},
        {228, 0, 1, "Thick4_2nd"},
        {228, 15, 0, "Thick4"},
        {65, 7, 1, "OHP"},
        {234, 0, 1, "Thick1Plus_2nd"},
        {234, 0, 0, "Thick1Plus"},
        {0, 15, 1, ""},
        {2, 0, 0, ""},
        {0xFFFFFFFF, 0, 0, ""},
        {0x10001, 0, 0, ""},
    };
    for (const auto& c : cases) {
        Tray tray;
        tray.type = c.type;
        tray.color = c.color;
        tray.secondSide = c.secondSide;
        script.device.inputTrays.items = TrayItem(tray);
        EXPECT_EQ(TrayStatus("InTray1"), "A4 MediaTypeList_Portrait " + c.key + "    0") << &c - cases;
    }
}

TEST_F(BdcStatus, Trays) {
    const std::pair<std::string, uint32_t> keys[] = {
        {"InTray1", 1},   {"InTray2", 2},       {"InTray3", 3},   {"InTray4", 4},
        {"InTrayLCT", 5}, {"InTrayManual", 6},  {"INTRAYLCT", 5}, {"intray2", 2},
        {"InTray5", 0},   {"InTrayManual1", 0}, {"InTray", 0},    {"", 0}};
    for (const auto& [key, number] : keys) {
        script.device.inputTrays.items = Items({TrayItem({9}), TrayItem({0, 259}), TrayItem({0xFFFFFFFF})});
        EXPECT_EQ(TrayStatus(key), kUnknownTray) << "not reported " << key;
        for (uint32_t tray = 1; tray <= 7; ++tray)
            script.device.inputTrays.items.Append(TrayItem({tray, 260, 1, 100 + tray, 3, 0, 15, 0, 0}));
        script.device.inputTrays.items.Append(TrayItem({number})); // the first of two counts
        EXPECT_EQ(TrayStatus(key),
                  number == 0 ? kUnknownTray
                              : "A4 MediaTypeList_Landscape Color    " + std::to_string(100 + number))
            << key;
    }
    script.device.inputTrays.items = TrayItem({1, 260, 1, 0xFFFF, 2, 7, 0, 7, 0});
    EXPECT_EQ(TrayStatus("InTray1"), "A4 MediaTypeList_Portrait Plain    65535");
    script.device.inputTrays.status = 1;
    EXPECT_EQ(TrayStatus("InTray1"), kUnknownTray);
    script.device.inputTrays.status = 0;

    InputTrayStatusItem items[3] = {};
    memset(items[0].tray, 'I', sizeof(items[0].tray)); // a key that fills its field
    memcpy(items[1].tray, "InTray1", 8);
    memset(&items[2], 0xAB, sizeof(items[2]));
    EXPECT_EQ(DDProc_InputTrayStatus(kAgent, 2, items), TRUE);
    EXPECT_STREQ(items[0].hole, "MediaTypeList_Hole_Unknown");
    EXPECT_STREQ(items[1].mediaSize, "A4");
    EXPECT_EQ(Differences(&items[2], RawBytes(228).U8(0, 0xAB, 228)), "") << "not asked for";
}

} // namespace
