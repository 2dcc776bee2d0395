// The parts of the module that the workbench builds into itself. This is the only file that includes headers
// of the module's sources; all others include this one.
//
// No export gives access to the tables that the module builds from TELMAR_D.PRM: the device table, the
// default settings, the texts and lists of the dialogs. The workbench runs the module's own code that builds
// them in this process (see family_files.h) and reads the result. What an export answers is asked of
// TELMAR_D.DLL.
#ifndef WORKBENCH_LIB_MODULE_PARTS_H
#define WORKBENCH_LIB_MODULE_PARTS_H

// The public header, with the short names of its records, and how texts and lists of records are read.
#include "base/keyed_list.h"
#include "base/records.h"
#include "base/text.h"

// Building and releasing the tables, and the tables.
#include "frame/device_data.h"
#include "paramdata/color_tables.h"
#include "paramdata/control_texts.h"
#include "paramdata/default_settings.h"
#include "paramdata/device_table.h"
#include "trays/media_type_lists.h"

// The parameter data file itself, for the option features, of which the module builds no table.
#include "paramdata/prm_readers.h"

// Facts about the dialogs, their controls and the settings that they edit.
#include "base/dialog_ids.h"
#include "dialogs/color/color_descriptions.h"
#include "paramdata/devmode_fields.h"
#include "trays/tray_dialog.h"
#include "trays/tray_settings.h"

// Which installed units the printer's picture shows.
#include "picture/capabilities/option_summary.h"

// Building and reading SNMP messages, and what makes a printer this model.
#include "devcomm/model.h"
#include "devcomm/snmp/snmp_message.h"
#include "devcomm/snmp/snmp_values.h"

#endif
