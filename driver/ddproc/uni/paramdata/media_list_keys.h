// The media type lists and the keys of the texts that the parameter data file gives to them. The module's
// lists and the compiler of parameter data files both take them from here.
#ifndef PARAMDATA_MEDIA_LIST_KEYS_H
#define PARAMDATA_MEDIA_LIST_KEYS_H

#include <cstddef>
#include <cstdint>

// Positions of the lists.
enum MediaTypeList { kMediaSize, kMediaOrientation, kMediaType, kMediaWeight, kMediaColor, kMediaPrePunched };
constexpr size_t kMediaTypeListCount = 6;

// The entries with the texts, by position of the list.
inline constexpr const char* kMediaTypeListEntries[kMediaTypeListCount] = {
    "MediaTypeList_Size",   "MediaTypeList_Orient", "MediaTypeList_Type",
    "MediaTypeList_Weight", "MediaTypeList_Color",  "MediaTypeList_Hole",
};

// Items that a list has if the file has a text for them, in this order after those of the device table.
struct MediaTextItem {
    MediaTypeList list;
    const char* key;
    uint32_t value;
};
constexpr uint32_t kMediaUnknown = UINT32_MAX;
inline constexpr MediaTextItem kMediaTextItems[] = {
    // clang-format off
    {kMediaSize,        "MediaTypeList_Size_Unknown",   kMediaUnknown},
    {kMediaOrientation, "MediaTypeList_Portrait",       1},
    {kMediaOrientation, "MediaTypeList_Landscape",      2},
    {kMediaOrientation, "MediaTypeList_Orient_Unknown", kMediaUnknown},
    {kMediaType,        "MediaTypeList_Type_Unknown",   kMediaUnknown},
    {kMediaWeight,      "MediaTypeList_Weight_Unknown", kMediaUnknown},
    {kMediaColor,       "MediaTypeList_Color_Unknown",  kMediaUnknown},
    {kMediaPrePunched,        "MediaTypeList_Hole_Unknown",   kMediaUnknown},
    // clang-format on
};

#endif
