// The export that the frame itself answers. The export table is res/telmar_d.def.
#ifndef FRAME_EXPORTS_H
#define FRAME_EXPORTS_H

#include <windows.h>

// Null, whatever the caller passes. Exported under both names, also as DDProc_FeatureNameValuePtr.
extern "C" void* WINAPI DDProc_FeatureNameItemTable();

#endif
