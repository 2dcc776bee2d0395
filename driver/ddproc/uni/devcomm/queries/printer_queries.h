// The MIB_ family of exports: what a printer answers to SNMP requests. Every one that asks opens a session of
// its own and closes it before it returns; with an SNMP entry point missing it fails at once, the last error
// as it was. An agent is a dotted IPv4 address or a host name. No argument may be null: the last error is
// then 87.
#ifndef DEVCOMM_QUERIES_PRINTER_QUERIES_H
#define DEVCOMM_QUERIES_PRINTER_QUERIES_H

#include "devcomm/queries/query_tables.h"

#include <windows.h>

extern "C" {

// The static tables that drive the queries: never null, not to be changed or freed.
const ModelCheckInfo* WINAPI MIB_ModelCheckInfo();
const OptionReqInfo* WINAPI MIB_OptionReqInfo();
const MrkSupReqInfo* WINAPI MIB_MrkSupReqInfo();
const MrkSupItem* WINAPI GET_MrkSupItemList();
const OverlayReqInfo* WINAPI MIB_OvlReqInfo();
const ProfileReqInfo* WINAPI MIB_CMProfReqInfo();

// Whether the agent answers, with whatever. An empty agent is refused as a null one.
BOOL WINAPI MIB_IsAccessOK(const char* agent);

// Whether the device is this model; TRUE without asking while the model check is off.
BOOL WINAPI MIB_IsModelOK(const char* agent);

// Answers each item by the key of the installed option's item; empty when the key is unknown or the device
// did not answer. FALSE when the session can't be opened: the last error tells why, the items are untouched.
// With a session the last error stays as it was.
BOOL WINAPI MIB_OptionRequest(const char* agent, DWORD count, OptionRequestItem* items);

// Answers each item by the supply's state, value and colour; all 0 when they are not to be had. FALSE when
// the session can't be opened, and at the first name that is not in the list: that item is cleared, those
// behind it are untouched. The last error as for options.
BOOL WINAPI MIB_MrkSupRequest(const char* agent, DWORD count, MrkSupRequestItem* items);

// The overlays (storage 0 or 1) or the colour profiles that the printer stores, in one block that the caller
// releases by MIB_FreeOverlayInfo or MIB_FreeProfileInfo. Null when the session can't be opened or a request
// fails, the last error telling why, for another storage (87) and without memory.
OverlayInfo* WINAPI MIB_OverlayRequest(const char* agent, int32_t storage);
ProfileInfo* WINAPI MIB_ProfileRequest(const char* agent);

// Releases a block that MIB_OverlayRequest or MIB_ProfileRequest handed out; null is accepted. Exported under
// both names, also as MIB_FreeProfileInfo.
void WINAPI MIB_FreeOverlayInfo(void* block);
}

#endif
