// Answers the calls of the bidirectional library as scripted, and records them.
#include "devcomm/bidi/scripted_bdc.h"

#include <algorithm>
#include <cstring>
#include <windows.h>

namespace scripted_bdc {

Script script;

namespace {

constexpr size_t kRecordSize = 428;

void Record(const std::string& text, const void* record) {
    const auto* octets = static_cast<const uint8_t*>(record);
    script.calls.push_back(
        {text, octets != nullptr ? std::vector<uint8_t>(octets, octets + kRecordSize) : std::vector<uint8_t>()});
}

// Names the state word passed, and replaces it.
std::string State(uint32_t* state) {
    const std::string text = ", state " + std::to_string(*state);
    *state = kStateAfter;
    return text;
}

int32_t Give(const Answer& answer, void* buffer) {
    memcpy(buffer, answer.octets.bytes.data(), answer.octets.bytes.size());
    return answer.status;
}

// Whether the module has allocated it as it must: movable, locked, all zero.
bool IsFit(const void* block, size_t size) {
    HGLOBAL handle = GlobalHandle(block);
    const bool fit = handle != nullptr && handle != block;
    const auto* octets = static_cast<const uint8_t*>(block);
    return fit && std::all_of(octets, octets + size, [](uint8_t octet) { return octet == 0; });
}

std::string Block(const void* block, size_t size, const std::string& contents) {
    if (block == nullptr)
        return ", null";
    return ", " + contents + (IsFit(block, size) ? "" : " unfit");
}

int32_t GiveList(const char* name, const ListAnswer& answer, const void* record, uint32_t* count, uint32_t* state,
                 void* block) {
    const size_t room = block != nullptr ? *count * answer.itemSize : 0;
    Record(name + State(state) + Block(block, room, std::to_string(*count) + " items"), record);
    if (block == nullptr) {
        const auto there = static_cast<uint32_t>(answer.items.bytes.size() / answer.itemSize);
        *count = answer.firstCount.value_or(there);
        return answer.firstStatus;
    }
    *count = answer.count.value_or(*count);
    memcpy(block, answer.items.bytes.data(), std::min(room, answer.items.bytes.size()));
    return answer.status;
}

int32_t WINAPI GetLibVersion(uint32_t* state, void* buffer) {
    Record("BdcGetLibVersion" + State(state), nullptr);
    return Give(script.version, buffer);
}

int32_t WINAPI GetDevCommInfo(const char* agent, uint32_t* state, void* buffer) {
    Record("BdcGetDevCommInfo " + std::string(agent) + State(state), nullptr);
    return Give(script.device.communication, buffer);
}

int32_t WINAPI GetDevName(const void* record, uint32_t* state, void* buffer) {
    Record("BdcGetDevName" + State(state), record);
    return Give(script.device.name, buffer);
}

int32_t WINAPI GetDevMediaPathInfo(const void* record, uint32_t* state, void* block) {
    const Answer& answer = script.device.mediaPath;
    Record("BdcGetDevMediaPathInfo" + State(state) + Block(block, answer.octets.bytes.size(), "information"), record);
    return Give(answer, block);
}

// A list's query, named as its entry point.
template <size_t kEntryPoint, ListAnswer Device::*kList>
int32_t WINAPI GetList(const void* record, uint32_t* count, uint32_t* state, void* items) {
    return GiveList(kEntryPoints[kEntryPoint].name, script.device.*kList, record, count, state, items);
}

int32_t WINAPI GetDevInputTrayInfoEx(const void* record, uint32_t* count, uint32_t selector, uint32_t* state,
                                     void* items) {
    const std::string name = "BdcGetDevInputTrayInfoEx, selector " + std::to_string(selector);
    return GiveList(name.c_str(), script.device.inputTrays, record, count, state, items);
}

int32_t WINAPI Unused() {
    Record("an entry point that the module does not use", nullptr);
    return -1;
}

template <typename Function>
EntryPoint Named(const char* name, Function* function) {
    return {name, reinterpret_cast<void (*)()>(function)};
}

} // namespace

// clang-format off
const EntryPoint kEntryPoints[kEntryPointCount] = {
    Named("BdcGetLibVersion", GetLibVersion), Named("BdcGetDevIpAddress", Unused),
    Named("BdcGetDevCommInfo", GetDevCommInfo), Named("BdcGetDevName", GetDevName),
    Named("BdcGetDevMemoryCapacity", GetList<4, &Device::memory>),
    Named("BdcGetDevFirmwareVersion", GetList<5, &Device::firmware>),
    Named("BdcGetDevOptionInfo", GetList<6, &Device::options>),
    Named("BdcGetDevInputTrayInfo", Unused), Named("BdcGetDevInputTrayInfoEx", GetDevInputTrayInfoEx),
    Named("BdcGetDevOutputTrayInfo", GetList<9, &Device::outputTrays>),
    Named("BdcGetDevMediaPathInfo", GetDevMediaPathInfo),
    Named("BdcGetDevFinisherInfo", GetList<11, &Device::finishers>),
    Named("BdcGetDevStatus", Unused), Named("BdcBeginDevEventNotify", Unused),
    Named("BdcEndDevEventNotify", Unused), Named("BdcBeginNotifyPrint", Unused),
    Named("BdcGetDevJobHistoryList", Unused), Named("BdcEndNotifyPrint", Unused),
    Named("BdcBeginNotifyJobCompletion", Unused), Named("BdcGetReceiveAddress", Unused),
    Named("BdcEndNotifyJobCompletion", Unused),
};
// clang-format on

RawBytes OptionItem(uint32_t type, const std::string& model) {
    return RawBytes(72).U32(4, type).Text(8, model);
}

RawBytes MemoryItem(uint32_t kind) {
    return RawBytes(12).U32(8, kind);
}

RawBytes FinisherItem(uint32_t flags) {
    return RawBytes(140).U32(136, flags);
}

RawBytes TrayItem(const TrayState& tray) {
    return RawBytes(108)
        .U8(0, 0xEE, 108)
        .U32(4, tray.number)
        .U16(12, tray.size)
        .U32(16, tray.type)
        .U16(20, tray.level)
        .U32(88, tray.orientation)
        .U32(92, tray.weight)
        .U32(96, tray.color)
        .U32(100, tray.hole)
        .U32(104, tray.secondSide);
}

std::vector<std::string> CallTexts() {
    std::vector<std::string> texts;
    for (const Call& call : script.calls)
        texts.push_back(call.text);
    return texts;
}

} // namespace scripted_bdc
