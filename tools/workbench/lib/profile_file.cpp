// Reads profile files: which lists and fields they may have, and what is wrong with those that are refused.
#include "workbench/lib/profile_file.h"

#include "common/choices.h"
#include "workbench/lib/document.h"
#include "workbench/lib/files.h"
#include "workbench/lib/json_form.h"
#include "workbench/lib/text.h"

namespace {

constexpr size_t kMaxUnits = std::extent_v<decltype(ProfileEntry::name)> - 1; // UTF-16

constexpr struct {
    const char* name;
    std::vector<ProfileEntry> PrinterProfiles::*entries;
} kProfileLists[] = {
    {"rgbSources", &PrinterProfiles::rgbSources},
    {"simulations", &PrinterProfiles::simulations},
    {"destinations", &PrinterProfiles::destinations},
};

// Each throws when the value is of the wrong type.
void TakeText(const std::string& place, const Document& value, wchar_t (&text)[kMaxUnits + 1]) {
    if (!value.IsText())
        throw Failure(kExitFailed, place + ": " + JsonForm(value) + " is not a text");
    const std::wstring wide = Wide(value.Text());
    if (wide.size() > kMaxUnits)
        throw Failure(kExitFailed, place + ": the text has " + std::to_string(wide.size())
                                       + " UTF-16 units; shorten it to " + std::to_string(kMaxUnits));
    CopyText(text, wide.c_str());
}

void TakeQualifier(const std::string& place, const Document& value, ProfileEntry& entry) {
    TakeText(place, value, entry.qualifier);
}

void TakeName(const std::string& place, const Document& value, ProfileEntry& entry) {
    TakeText(place, value, entry.name);
}

void TakeLocation(const std::string& place, const Document& value, ProfileEntry& entry) {
    if (!value.IsInteger() || value.Integer() < 0 || value.Integer() > UINT32_MAX)
        throw Failure(kExitFailed, place + ": " + JsonForm(value)
                                       + " is not a location; possible: the value of a Prof_Location item, "
                                         "such as 4");
    entry.location = static_cast<uint32_t>(value.Integer());
}

constexpr struct {
    const char* name;
    void (*take)(const std::string& place, const Document& value, ProfileEntry& entry);
} kProfileFields[] = {
    {"name", TakeName},
    {"qualifier", TakeQualifier},
    {"location", TakeLocation},
};

// The row of this name. Throws Failure that lists what is possible.
template <typename Row, size_t N>
const Row& FindRow(const Row (&rows)[N], const std::string& place, const std::string& name) {
    for (const Row& row : rows)
        if (name == row.name)
            return row;
    throw Failure(kExitFailed, place + ": there is no '" + name + "'; "
                                   + Choices(rows, [](const Row& row) { return row.name; }));
}

ProfileEntry TakeEntry(const std::string& place, const Document& value) {
    if (!value.IsObject())
        throw Failure(kExitFailed,
                      place + ": " + JsonForm(value) + " is not a profile; possible: {\"name\": TEXT}");
    ProfileEntry entry = {};
    for (const auto& field : value.Fields())
        FindRow(kProfileFields, place, field.name).take(place + "." + field.name, field.value, entry);
    if (entry.name[0] == 0)
        throw Failure(kExitFailed, place + ": lacks its name");
    return entry;
}

} // namespace

PrinterProfiles ReadPrinterProfiles(const std::string& path) {
    PrinterProfiles profiles;
    const Document document = ParseJson(ReadTextFile(path, "--profiles"), path);
    if (!document.IsObject())
        throw Failure(kExitFailed, path + ": has no lists; possible: {\"rgbSources\": [...]}");
    for (const auto& list : document.Fields()) {
        const auto& row = FindRow(kProfileLists, path, list.name);
        const std::string place = path + ": " + list.name;
        if (!list.value.IsList())
            throw Failure(kExitFailed, place + ": not a list; possible: [...]");
        const Document::List& entries = list.value.Elements();
        for (size_t i = 0; i < entries.size(); ++i)
            (profiles.*row.entries).push_back(TakeEntry(place + "[" + std::to_string(i) + "]", entries[i]));
    }
    return profiles;
}

ProfileLists ListsOf(const PrinterProfiles& profiles) {
    const auto list = [](const std::vector<ProfileEntry>& entries) {
        return ProfileList{entries.data(), static_cast<uint32_t>(entries.size())};
    };
    return {list(profiles.rgbSources), list(profiles.simulations), list(profiles.destinations)};
}
