// Reads a device through the bidirectional library, list by list.
#include "devcomm/bidi/bdc_device.h"

#include "base/entry_point.h"
#include "base/text.h"
#include "devcomm/bidi/locked_block.h"
#include "devcomm/model.h"

#include <cstring>

namespace {

constexpr uint32_t kFirstState = 1;

using MediaPathFunction = int32_t WINAPI(const BdcDeviceRecord* device, uint32_t* state, void* info);
using ListFunction = int32_t WINAPI(const BdcDeviceRecord* device, uint32_t* count, uint32_t* state,
                                    void* items);
using TrayListFunction = int32_t WINAPI(const BdcDeviceRecord* device, uint32_t* count, uint32_t selector,
                                        uint32_t* state, void* items);

template <typename Function>
Function* EntryPoint(const BdcDeviceContext& context, BdcFunction function) {
    return AsFunction<Function>(context.functions.entryPoints[function]);
}

// Calls a function that fills one record, with these arguments before the state word. What a failed call has
// written is discarded.
template <typename Info, typename... Arguments>
bool AskForRecord(BdcDeviceContext& context, BdcFunction function, bool (*isValid)(int32_t status),
                  Info BdcDeviceContext::*record, Arguments... arguments) {
    Info info = {};
    uint32_t state = context.firstState;
    using Function = int32_t WINAPI(Arguments..., uint32_t * state, Info * info);
    if (!isValid(EntryPoint<Function>(context, function)(arguments..., &state, &info)))
        return false;
    context.*record = info;
    context.lastState = state;
    return true;
}

// The lists, in the order of the queries.
struct ListDescription {
    BdcFunction function;
    uint32_t itemSize;
    BdcList BdcDeviceContext::*list;
};
// clang-format off
constexpr ListDescription kLists[] = {
    {kBdcGetDevFirmwareVersion, sizeof(BdcFirmwareItem),   &BdcDeviceContext::firmware},
    {kBdcGetDevMemoryCapacity,  sizeof(BdcMemoryItem),     &BdcDeviceContext::memory},
    {kBdcGetDevOptionInfo,      sizeof(BdcOptionItem),     &BdcDeviceContext::options},
    {kBdcGetDevInputTrayInfoEx, sizeof(BdcInputTrayItem),  &BdcDeviceContext::inputTrays},
    {kBdcGetDevOutputTrayInfo,  sizeof(BdcOutputTrayItem), &BdcDeviceContext::outputTrays},
    {kBdcGetDevMediaPathInfo,   sizeof(BdcMediaPathInfo),  &BdcDeviceContext::mediaPath},
    {kBdcGetDevFinisherInfo,    sizeof(BdcFinisherItem),   &BdcDeviceContext::finishers},
};
// clang-format on

// Calls the library for a list. The input trays take a selector; the media path is one item without a count.
int32_t CallForList(const BdcDeviceContext& context, BdcFunction function, uint32_t& count, uint32_t& state,
                    void* items) {
    const BdcDeviceRecord* device = &context.device;
    switch (function) {
    case kBdcGetDevInputTrayInfoEx:
        return EntryPoint<TrayListFunction>(context, function)(device, &count, kBdcTraySelector, &state,
                                                               items);
    case kBdcGetDevMediaPathInfo:
        return EntryPoint<MediaPathFunction>(context, function)(device, &state, items);
    default:
        return EntryPoint<ListFunction>(context, function)(device, &count, &state, items);
    }
}

// The number of items to read; 0 when it is unknown.
uint32_t QueryCount(BdcDeviceContext& context, BdcFunction function) {
    if (function == kBdcGetDevMediaPathInfo)
        return 1;
    uint32_t count = 0;
    uint32_t state = context.firstState;
    if (!BdcSucceeded(CallForList(context, function, count, state, nullptr)))
        return 0;
    context.lastState = state;
    return count;
}

void FetchList(BdcDeviceContext& context, const ListDescription& description) {
    const uint32_t count = QueryCount(context, description.function);
    if (count == 0)
        return;
    void* items = AllocateLockedBytes(size_t{count} * description.itemSize);
    if (items == nullptr)
        return;
    uint32_t countThen = count; // not used: the block has room for the first count
    uint32_t state = context.firstState;
    if (!BdcHasFilled(CallForList(context, description.function, countThen, state, items))) {
        FreeLocked(items);
        return;
    }
    context.*description.list = {items, count};
    context.lastState = state;
}

void FillRecord(BdcDeviceContext& context) {
    BdcDeviceRecord& device = context.device;
    memcpy(device.flags, context.flags, sizeof(device.flags));
    CopyText(device.agent, context.agent);
    CopyText(device.secondText, context.secondText);
    CopyText(device.community, context.community);
}

// Compares within the fields, with case.
template <size_t kLength>
bool IsOneOf(const BdcNameList<kLength>& list, const char (&name)[kLength]) {
    for (uint32_t i = 0; i < list.count; ++i)
        if (strncmp(list.names[i], name, kLength) == 0)
            return true;
    return false;
}

} // namespace

BdcDeviceContext* BdcOpenDevice(const char* agent) {
    auto* context = AllocateLocked<BdcDeviceContext>();
    if (context == nullptr)
        return nullptr;
    if (!BdcLoadFromAnywhere(context->functions)) {
        FreeLocked(context);
        return nullptr;
    }
    context->longNames.count = 1;
    CopyText(context->longNames.names[0], kModelName);
    context->shortNames.count = 1;
    CopyText(context->shortNames.names[0], kModelName);
    context->firstState = kFirstState;
    context->flags[0] = 1;
    context->flags[1] = 1;
    context->agent = agent;
    context->secondText = "";
    context->community = kCommunity;
    FillRecord(*context);
    return context;
}

void BdcCloseDevice(BdcDeviceContext* context) {
    if (context == nullptr)
        return;
    for (const ListDescription& description : kLists)
        FreeLocked((context->*description.list).items);
    BdcFreeLibrary(context->functions);
    FreeLocked(context);
}

bool BdcAskVersion(BdcDeviceContext& context) {
    return AskForRecord(context, kBdcGetLibVersion, BdcSucceeded, &BdcDeviceContext::version);
}

bool BdcAskCommunication(BdcDeviceContext& context) {
    if (!AskForRecord(context, kBdcGetDevCommInfo, BdcHasFilled, &BdcDeviceContext::communication,
                      context.agent))
        return false;
    context.device.communication = context.communication.communication;
    return true;
}

bool BdcAskName(BdcDeviceContext& context) {
    const BdcDeviceRecord* device = &context.device;
    return AskForRecord(context, kBdcGetDevName, BdcHasFilled, &BdcDeviceContext::name, device);
}

void BdcFillDevice(BdcDeviceContext& context) {
    BdcAskVersion(context);
    BdcAskCommunication(context);
    BdcAskName(context);
    for (const ListDescription& description : kLists)
        FetchList(context, description);
}

bool BdcIsModel(const BdcDeviceContext& context) {
    return IsOneOf(context.longNames, context.name.longName)
           && IsOneOf(context.shortNames, context.name.shortName);
}
