// The colour part of the default settings, in the order in which default_settings.cpp takes it.
#ifndef PARAMDATA_COLOR_DEFAULTS_H
#define PARAMDATA_COLOR_DEFAULTS_H

#include "base/records.h"

struct PrmFile;

// Each takes the file's default keys and looks them up in the colour tables as they are now; a key that names
// no item leaves its field.
void ApplyColorModeDefault(const PrmFile& file, OemDevmode& settings);
void ApplyObjectColorDefaults(const PrmFile& file,
                              OemDevmode& settings); // matching, halftone, grey; what graphics follow
void ApplyRgbSourceDefaults(const PrmFile& file, OemDevmode& settings);
void ApplyProfileDefaults(const PrmFile& file, OemDevmode& settings);    // destinations, simulation
void ApplySimulationDefaults(const PrmFile& file, OemDevmode& settings); // paper colour, simulated greys

#endif
