// The tables of the SNMP queries: which objects report what. Callers of the module get them through its
// exports.
#ifndef DEVCOMM_QUERIES_QUERY_CATALOGUE_H
#define DEVCOMM_QUERIES_QUERY_CATALOGUE_H

#include "base/records.h"

#include <windows.h>

extern const ModelCheckInfo kModelCheckInfo;
extern const OptionReqInfo kOptionReqInfo;
extern const MrkSupReqInfo kMrkSupReqInfo;
extern const OverlayReqInfo kOverlayReqInfo;
extern const ProfileReqInfo kProfileReqInfo;

// MIB_IsModelOK with a given table (printer_queries.cpp).
bool CheckModel(const ModelCheckInfo& check, const char* agent);

#endif
