// A bidirectional library whose entry points lead to the test program that loads it (there: the scripted
// stand-in of tests/devcomm). Built as TELMAR_B.DLL complete and lacking an entry point, by the list of
// exports.
#include <windows.h>

namespace {

// No entry point takes more arguments than five; one that takes fewer lets the rest be.
using EntryPoint = INT_PTR WINAPI(INT_PTR, INT_PTR, INT_PTR, INT_PTR, INT_PTR);
using Finder = EntryPoint*(const char* name);

EntryPoint* InTestProgram(const char* name) {
    FARPROC finder = GetProcAddress(GetModuleHandleW(nullptr), "ScriptedBdcEntryPoint");
    return reinterpret_cast<Finder*>(reinterpret_cast<void (*)()>(finder))(name);
}

} // namespace

#define BDC_ENTRY_POINT(name)                                                                                \
    extern "C" INT_PTR WINAPI name(INT_PTR a, INT_PTR b, INT_PTR c, INT_PTR d, INT_PTR e) {                  \
        return InTestProgram(#name)(a, b, c, d, e);                                                          \
    }

BDC_ENTRY_POINT(BdcGetLibVersion)
BDC_ENTRY_POINT(BdcGetDevIpAddress)
BDC_ENTRY_POINT(BdcGetDevCommInfo)
BDC_ENTRY_POINT(BdcGetDevName)
BDC_ENTRY_POINT(BdcGetDevMemoryCapacity)
BDC_ENTRY_POINT(BdcGetDevFirmwareVersion)
BDC_ENTRY_POINT(BdcGetDevOptionInfo)
BDC_ENTRY_POINT(BdcGetDevInputTrayInfo)
BDC_ENTRY_POINT(BdcGetDevInputTrayInfoEx)
BDC_ENTRY_POINT(BdcGetDevOutputTrayInfo)
BDC_ENTRY_POINT(BdcGetDevMediaPathInfo)
BDC_ENTRY_POINT(BdcGetDevFinisherInfo)
BDC_ENTRY_POINT(BdcGetDevStatus)
BDC_ENTRY_POINT(BdcBeginDevEventNotify)
BDC_ENTRY_POINT(BdcEndDevEventNotify)
BDC_ENTRY_POINT(BdcBeginNotifyPrint)
BDC_ENTRY_POINT(BdcGetDevJobHistoryList)
BDC_ENTRY_POINT(BdcEndNotifyPrint)
BDC_ENTRY_POINT(BdcBeginNotifyJobCompletion)
BDC_ENTRY_POINT(BdcGetReceiveAddress)
BDC_ENTRY_POINT(BdcEndNotifyJobCompletion)
