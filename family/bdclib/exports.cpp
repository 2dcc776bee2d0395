// The functions of the stand-in, and its entry point. The export table is telmar_b.def.
#include "bdclib/exports.h"

#include "base/text.h"
#include "bdclib/device_reader.h"

namespace {

// An empty address is refused: it would be resolved to this machine.
bool HasAgent(const BdcDeviceRecord* device) {
    return device != nullptr && device->agent[0] != 0;
}

int32_t AnswerList(const DeviceList& list, const BdcDeviceRecord* device, uint32_t* count, void* items) {
    if (!HasAgent(device) || count == nullptr)
        return kBdcBadArgument;
    const DeviceSession session(*device);
    uint32_t found = 0;
    if (session.connection.handle == nullptr || !ReadList(session, list, items, *count, found))
        return kBdcNoAnswer;
    *count = found;
    return found != 0 ? kBdcDone : kBdcNothing;
}

} // namespace

// The SNMP entry points are bound as long as the library is loaded. It does not load when they are
// incomplete.
extern "C" BOOL WINAPI DllMain(HINSTANCE /*instance*/, DWORD reason, void* /*reserved*/) {
    if (reason == DLL_PROCESS_ATTACH)
        return SnmpApiBind();
    if (reason == DLL_PROCESS_DETACH)
        SnmpApiRelease();
    return TRUE;
}

int32_t WINAPI BdcGetLibVersion(uint32_t* /*state*/, BdcLibVersion* version) {
    if (version == nullptr)
        return kBdcBadArgument;
    *version = {{PROJECT_VERSION_MAJOR, PROJECT_VERSION_MINOR, PROJECT_VERSION_PATCH, 0}};
    return kBdcDone;
}

int32_t WINAPI BdcGetDevCommInfo(const char* agent, uint32_t* /*state*/, BdcCommInfo* info) {
    if (agent == nullptr || agent[0] == 0 || info == nullptr)
        return kBdcBadArgument;
    const AgentSession session(agent, kReachLimits);
    uint32_t printer = 0;
    if (session.handle == nullptr || !AskForObject(session.handle, kReachObject)
        || !ReadPrinterNumber(session.handle, printer))
        return kBdcNoAnswer;
    *info = {};
    info->communication = printer;
    return kBdcDone;
}

int32_t WINAPI BdcGetDevName(const BdcDeviceRecord* device, uint32_t* /*state*/, BdcNameInfo* info) {
    if (!HasAgent(device) || info == nullptr)
        return kBdcBadArgument;
    const DeviceSession session(*device);
    ObjectText name;
    if (session.connection.handle == nullptr || !ReadModelName(session, name))
        return kBdcNoAnswer;
    *info = {};
    CopyText(info->longName, name);
    CopyText(info->shortName, name);
    return name[0] != 0 ? kBdcDone : kBdcNothing;
}

int32_t WINAPI BdcGetDevMediaPathInfo(const BdcDeviceRecord* device, uint32_t* /*state*/,
                                      BdcMediaPathInfo* info) {
    if (!HasAgent(device) || info == nullptr)
        return kBdcBadArgument;
    const DeviceSession session(*device);
    uint32_t count = 0;
    bool hasDuplex = false;
    if (session.connection.handle == nullptr || !ReadMediaPaths(session, count, hasDuplex))
        return kBdcNoAnswer;
    *info = {};
    info->path = hasDuplex ? 1 : 0;
    return count != 0 ? kBdcDone : kBdcNothing;
}

int32_t WINAPI BdcGetDevFirmwareVersion(const BdcDeviceRecord* device, uint32_t* count, uint32_t* /*state*/,
                                        BdcFirmwareItem* items) {
    return AnswerList(kFirmwareList, device, count, items);
}

int32_t WINAPI BdcGetDevMemoryCapacity(const BdcDeviceRecord* device, uint32_t* count, uint32_t* /*state*/,
                                       BdcMemoryItem* items) {
    return AnswerList(kMemoryList, device, count, items);
}

int32_t WINAPI BdcGetDevOptionInfo(const BdcDeviceRecord* device, uint32_t* count, uint32_t* /*state*/,
                                   BdcOptionItem* items) {
    return AnswerList(kOptionList, device, count, items);
}

int32_t WINAPI BdcGetDevOutputTrayInfo(const BdcDeviceRecord* device, uint32_t* count, uint32_t* /*state*/,
                                       BdcOutputTrayItem* items) {
    return AnswerList(kOutputTrayList, device, count, items);
}

int32_t WINAPI BdcGetDevFinisherInfo(const BdcDeviceRecord* device, uint32_t* count, uint32_t* /*state*/,
                                     BdcFinisherItem* items) {
    return AnswerList(kFinisherList, device, count, items);
}

int32_t WINAPI BdcGetDevInputTrayInfoEx(const BdcDeviceRecord* device, uint32_t* count, uint32_t selector,
                                        uint32_t* /*state*/, BdcInputTrayItem* items) {
    return selector == kBdcTraySelector ? AnswerList(kInputTrayList, device, count, items) : kBdcBadArgument;
}

int32_t WINAPI BdcNotOffered() {
    return kBdcNotSupported;
}
