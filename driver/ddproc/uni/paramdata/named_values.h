// Builders of the device table's fields that come from name/value tables: feature switches and device facts.
#ifndef PARAMDATA_NAMED_VALUES_H
#define PARAMDATA_NAMED_VALUES_H

#include "base/records.h"

struct PrmFile;

// "FeatureSetting": the feature switches.
void BuildFeatureSwitches(const PrmFile& file, DeviceTable& table);

// "DevInfo": print rate, stapler, colour, page description languages, encryption.
void BuildDeviceFacts(const PrmFile& file, DeviceTable& table);

// "PaperSizeFigure": the figure type.
void BuildFigureType(const PrmFile& file, DeviceTable& table);

#endif
