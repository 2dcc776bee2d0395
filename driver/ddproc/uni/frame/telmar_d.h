// The public interface of TELMAR_D.DLL, for the driver's generic modules: its exports with their records, the
// context of its dialogs, and the callbacks that it asks of TELMAR_U.DLL. Each header says who owns what, and
// what fails how; docs/using_the_module.md is the way in.
//
// Only the exports can be called; other functions that these headers declare are the module's own.
//
// Two exports are known under a second name each, which has no declaration of its own: MIB_FreeProfileInfo is
// MIB_FreeOverlayInfo, DDProc_FeatureNameValuePtr is DDProc_FeatureNameItemTable.
#ifndef FRAME_TELMAR_D_H
#define FRAME_TELMAR_D_H

#include "devcomm/address/printer_address.h"
#include "devcomm/bidi/device_status.h"
#include "devcomm/queries/printer_queries.h"
#include "dialogs/shared/ui_callbacks.h"
#include "frame/dlg_proc.h"
#include "frame/exports.h"
#include "picture/capabilities/device_capabilities.h"
#include "picture/view/logo.h"
#include "picture/view/printer_view.h"
#include "trays/tray_settings.h"

#endif
