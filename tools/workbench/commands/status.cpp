// `workbench status`: queries a printer through the bidirectional library by the module's exports: whether
// the library is usable, the device responds and is of this model, its options, its input trays.
#include "workbench/commands/commands.h"
#include "workbench/lib/printer_queries.h"
#include "workbench/lib/record_fields.h"

namespace {

// Null where the driver has no key for what the device reports.
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

// What was not checked because a previous check failed is null.
Document AskByLibrary(const FamilyFiles& family, const std::string& agent) {
    const LibraryAccess access = CheckLibraryAccess(family, agent);
    Document document;
    document["printer"] = {
        {"address", agent},
        {"libraryUsable", access.isUsable},
        {"reached", access.isUsable ? Document(access.isReached) : Document()},
        {"thisModel", access.isReached ? Document(access.isThisModel) : Document()},
    };
    if (!access.isThisModel)
        document["printer"]["hint"] = AccessHint(family, access);
    document["options"] = nullptr;
    document["trays"] = nullptr;
    if (access.isThisModel) {
        document["options"] = OptionAnswersDocument(AskOptionsByLibrary(family, agent));
        document["trays"] = RowsDocument(AskTraysByLibrary(family, agent), kTrayFields);
    }
    return document;
}
