// Lists the fields of the settings from the record tables of the public header.
#include "workbench/lib/settings_fields.h"

#include "workbench/lib/record_fields.h"

#include <algorithm>
#include <bitset>
#include <type_traits>
#include <vector>

namespace {

// The groups, in the order in which they are shown. The font table is not shown field by field.
enum class Group {
    paper,
    media,
    trays,
    layout,
    finishing,
    covers,
    watermark,
    color,
    profiles,
    fonts,
    fontTable
};
constexpr const char* kGroupNames[] = {"paper",  "media",     "trays", "layout",   "finishing",
                                       "covers", "watermark", "color", "profiles", "fonts"};

// The value or text at this address, which may be unaligned.
template <typename Value>
Document ShowAt(const void* at) {
    Value value;
    memcpy(&value, at, sizeof(value));
    return ToDocument(value);
}

// Adds the fields of a value of this type: the record's own fields, those of each element of an array of
// records, or else one field.
template <typename Value>
void AddFieldsOf(Group group, const std::string& name, size_t offset, std::vector<SettingsField>& fields);

#define ADD_FIELD(R, at, type, field, dimensions)                                                            \
    AddFieldsOf<decltype(R::field)>(group, prefix + #field, base + (at), fields);
#define NO_GAP(R, from, to)
#define ADD_RECORD_FIELDS(R, TABLE)                                                                          \
    void AddRecordFields(const R*, Group group, const std::string& prefix, size_t base,                      \
                         std::vector<SettingsField>& fields) {                                               \
        TABLE(R, ADD_FIELD, NO_GAP)                                                                          \
    }
ADD_RECORD_FIELDS(TelmarTrayPaperDefault, TELMAR_TRAY_PAPER_DEFAULT)
ADD_RECORD_FIELDS(TelmarObjectColor, TELMAR_OBJECT_COLOR)
ADD_RECORD_FIELDS(TelmarProfileEntry, TELMAR_PROFILE_ENTRY)

template <typename Value>
void AddFieldsOf(Group group, const std::string& name, size_t offset, std::vector<SettingsField>& fields) {
    using Element = std::remove_extent_t<Value>;
    if constexpr (std::is_class_v<Value>)
        AddRecordFields(static_cast<Value*>(nullptr), group, name + ".", offset, fields);
    else if constexpr (std::is_class_v<Element>)
        for (size_t i = 0; i < std::extent_v<Value>; ++i)
            AddFieldsOf<Element>(group, name + "[" + std::to_string(i) + "]", offset + i * sizeof(Element),
                                 fields);
    else
        fields.push_back(
            {kGroupNames[static_cast<size_t>(group)], name, offset, sizeof(Value), ShowAt<Value>});
}

std::vector<SettingsField> ListFields() {
    std::vector<SettingsField> fields;
    for (size_t i = 0; i < std::size(kGroupNames); ++i) {
        const Group group = static_cast<Group>(i);
#define ADD_SETTING(R, at, fieldGroup, type, field, dimensions)                                              \
    if (group == Group::fieldGroup)                                                                          \
        AddFieldsOf<decltype(R::field)>(group, #field, at, fields);
        TELMAR_OEM_DEVMODE(TelmarOemDevmode, ADD_SETTING, NO_GAP)
    }
    return fields;
}

const uint8_t* At(const OemDevmode& settings, size_t offset) {
    return reinterpret_cast<const uint8_t*>(&settings) + offset;
}

void AddChange(Document& changes, const Document& name, size_t offset, const Document& before,
               const Document& after) {
    changes.Add({{"name", name}, {"offset", offset}, {"before", before}, {"after", after}});
}

} // namespace

const std::vector<SettingsField>& SettingsFields() {
    static const std::vector<SettingsField> fields = ListFields();
    return fields;
}

Document ShowSetting(const SettingsField& field, const OemDevmode& settings) {
    return field.show(At(settings, field.offset));
}

Document SettingsChanges(const OemDevmode& before, const OemDevmode& after) {
    Document changes = Document::MakeList();
    std::bitset<sizeof(OemDevmode)> named;
    for (const SettingsField& field : SettingsFields()) {
        for (size_t i = 0; i < field.bytes; ++i)
            named.set(field.offset + i);
        if (memcmp(At(before, field.offset), At(after, field.offset), field.bytes) != 0)
            AddChange(changes, field.name, field.offset, ShowSetting(field, before),
                      ShowSetting(field, after));
    }
    for (size_t i = 0; i < sizeof(OemDevmode); ++i)
        if (!named[i] && *At(before, i) != *At(after, i))
            AddChange(changes, nullptr, i, *At(before, i), *At(after, i));
    return changes;
}
