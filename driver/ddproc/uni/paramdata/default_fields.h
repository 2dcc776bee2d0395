// The default of an entry, for default_settings.cpp and color_defaults.cpp.
#ifndef PARAMDATA_DEFAULT_FIELDS_H
#define PARAMDATA_DEFAULT_FIELDS_H

#include "paramdata/devmode_fields.h"
#include "paramdata/prm_readers.h"

// Reads the default record of an entry. False when the entry is missing, has none, or has it beyond the end
// of the file.
template <typename Record>
bool ReadDefault(const PrmFile& file, const char* entry, Record& record) {
    PrmItems items;
    if (!PrmFindEntryInfo(file, entry, items) || items.defaultRecord == 0)
        return false;
    record = {};
    return PrmReadRecord(file, items.defaultRecord, record);
}

// Reads the key of an entry's default item. It may be empty.
using DefaultKey = char[128];
inline bool ReadDefaultKey(const PrmFile& file, const char* entry, DefaultKey& key) {
    return PrmReadStringValue(file, entry, key, sizeof(key));
}

#endif
