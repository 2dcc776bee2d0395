// Fields of the private print settings as data: position and size, reading and writing.
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

// Stores the low bytes of the value. The field has at most four.
inline void Store(OemDevmode& settings, DevmodeField field, uint32_t value) {
    memcpy(FieldAt(settings, field), &value, field.size);
}

// The unsigned value of a field of at most four bytes.
inline uint32_t Load(const OemDevmode& settings, DevmodeField field) {
    uint32_t value = 0;
    memcpy(&value, FieldAt(settings, field), field.size);
    return value;
}

#endif
