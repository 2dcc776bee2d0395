// Fields of the private settings as rows of tables: where a value lies, how to read and write it.
#ifndef PARAMDATA_DEVMODE_FIELDS_H
#define PARAMDATA_DEVMODE_FIELDS_H

#include "base/records.h"

#include <cstring>

// A field of the settings; size 0: none.
struct DevmodeField {
    uint16_t offset;
    uint16_t size;
};
#define FIELD(name)                                                                                          \
    { offsetof(OemDevmode, name), sizeof(OemDevmode::name) }

inline void* FieldAt(OemDevmode& settings, DevmodeField field) {
    return reinterpret_cast<uint8_t*>(&settings) + field.offset;
}
inline const void* FieldAt(const OemDevmode& settings, DevmodeField field) {
    return reinterpret_cast<const uint8_t*>(&settings) + field.offset;
}

// Writes the low octets of the value; the field has at most four.
inline void Store(OemDevmode& settings, DevmodeField field, uint32_t value) {
    memcpy(FieldAt(settings, field), &value, field.size);
}

// The value of a field of at most four octets, without sign.
inline uint32_t Load(const OemDevmode& settings, DevmodeField field) {
    uint32_t value = 0;
    memcpy(&value, FieldAt(settings, field), field.size);
    return value;
}

#endif
