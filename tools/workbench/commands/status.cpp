// `workbench status`: asks a printer through the bidirectional library, by the module's exports: whether the
// library is usable and the device answers and is this model, its options, its input trays.
#include "workbench/commands/commands.h"
#include "workbench/lib/device_options.h"
#include "workbench/lib/record_fields.h"

namespace {

// Null where the driver has no word for what the device tells.
template <auto kField>
Document ShowKey(const void* record) {
    const Document key = Show<kField>(record);
    return key.Text().empty() ? Document() : key;
}

constexpr Field kTrayFields[] = {
    {"tray", Show<&InputTrayStatusItem::tray>},
    {"size", ShowKey<&InputTrayStatusItem::mediaSize>},
    {"orientation", ShowKey<&InputTrayStatusItem::orientation>},
    {"type", ShowKey<&InputTrayStatusItem::mediaType>},
    {"level", Show<&InputTrayStatusItem::level>},
    {"weight", ShowKey<&InputTrayStatusItem::weight>},
    {"color", ShowKey<&InputTrayStatusItem::color>},
    {"hole", ShowKey<&InputTrayStatusItem::hole>},
};

} // namespace

// A question that depends on one that was answered by no is not asked: null.
Document AskByLibrary(const FamilyFiles& family, const std::string& agent) {
    const LibraryRoad road = TryLibraryRoad(family, agent);
    Document document;
    document["printer"] = {
        {"address", agent},
        {"libraryUsable", road.isUsable},
        {"reached", road.isUsable ? Document(road.isReached) : Document()},
        {"thisModel", road.isReached ? Document(road.isThisModel) : Document()},
    };
    if (!road.isThisModel)
        document["printer"]["hint"] = Hint(family, road);
    document["options"] = nullptr;
    document["trays"] = nullptr;
    if (road.isThisModel) {
        document["options"] = OptionAnswersDocument(AskOptionsByLibrary(family, agent));
        document["trays"] = RowsDocument(AskTraysByLibrary(family, agent), kTrayFields);
    }
    return document;
}
