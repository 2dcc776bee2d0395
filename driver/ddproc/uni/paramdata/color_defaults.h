// The colour part of the default settings, in the order in which default_settings.cpp takes it.
#ifndef PARAMDATA_COLOR_DEFAULTS_H
#define PARAMDATA_COLOR_DEFAULTS_H

#include "base/records.h"

struct PrmFile;

// Each looks up the default keys of the file in the colour tables as they are at that moment. A key that
// names no item leaves its field unchanged.
void ApplyColorModeDefault(const PrmFile& file, OemDevmode& settings);
// Colour matching, halftone and grey of text, images and graphics.
void ApplyObjectColorDefaults(const PrmFile& file, OemDevmode& settings);
void ApplyRgbSourceDefaults(const PrmFile& file, OemDevmode& settings);
// Destinations and simulation.
void ApplyProfileDefaults(const PrmFile& file, OemDevmode& settings);
// Paper colour and greys of the simulation.
void ApplySimulationDefaults(const PrmFile& file, OemDevmode& settings);

#endif
