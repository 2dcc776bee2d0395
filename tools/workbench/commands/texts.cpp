// `workbench texts`: the texts and lists of the model's dialogs: the texts of their controls, the colour
// lists, and the lists and columns of the tray-setting dialogs.
#include "workbench/commands/commands.h"
#include "workbench/lib/record_fields.h"

namespace {

const struct {
    const char* entry;
    const ControlTextRecord* rows;
} kControlTexts[] = {
    {"Property_0", propertyTexts},
    {"Dlg_ColorSetting", colorDialogTexts},
    {"Dlg_PaperSourceTraySetting", trayDialogTexts},
};

// Without the unused elements at the end, which are 0.
Document Identifiers(const ControlTextRecord& row) {
    Document identifiers = Show<&ControlTextRecord::identifiers>(&row);
    while (identifiers.Elements().back().Integer() == 0)
        identifiers.Elements().pop_back();
    return identifiers;
}

Document ControlTexts(const ControlTextRecord* texts) {
    Document rows = Document::MakeList();
    for (const ControlTextRecord& row : Listed(texts))
        rows.Add({
            {"identifiers", Identifiers(row)},
            {"key", ToDocument(row.key)},
            {"text", Show<&ControlTextRecord::display>(&row)},
        });
    return rows;
}

// The lists by the entries that fill them. An entry may fill a second, short list with its first items.
void AddColorLists(Document& document) {
    for (size_t i = 0; ColorTableAt(i).entry != nullptr; ++i) {
        const NamedColorTable table = ColorTableAt(i);
        Document& lists = document[table.isDestinationList ? "destinations" : "colorLists"];
        lists[table.entry] = ListDocument(table.items, kNamed<ItemRecord>);
        if (table.shortItems != nullptr)
            lists[std::string(table.entry) + " short"] = ListDocument(table.shortItems, kNamed<ItemRecord>);
    }
}

// By the keys of their columns, of which the first is the tray itself. Null when memory was exhausted.
Document MediaTypes() {
    Document document;
    for (size_t i = 0; mediaTypeLists != nullptr && i < kMediaTypeListCount; ++i)
        document[mediaTypeColumns[i + 1].key] = ListDocument(mediaTypeLists->lists[i], kNamed<ItemRecord>);
    return document;
}

// Each column but the first shows an attribute, which decides whether the column is shown.
Document Columns(const DeviceTable& table) {
    Document rows = Document::MakeList();
    for (size_t i = 0; i <= kMediaTypeListCount; ++i)
        rows.Add({
            {"key", mediaTypeColumns[i].key},
            {"title", ToDocument(mediaTypeColumns[i].title)},
            {"shown", i == 0 || IsColumnShown(&table, static_cast<MediaTypeList>(i - 1))},
        });
    return rows;
}

} // namespace

Document ShowTexts(const FamilyFiles& family) {
    Document document;
    document["files"] = FamilyDocument(family);
    for (const auto& table : kControlTexts)
        document["controlTexts"][table.entry] = ControlTexts(table.rows);
    AddColorLists(document);
    document["mediaTypeLists"] = MediaTypes();
    document["mediaTypeColumns"] = Columns(*family.table);
    return document;
}
