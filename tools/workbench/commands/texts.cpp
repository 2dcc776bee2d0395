// `workbench texts`: what the dialogs of the model say and offer: the texts of their controls, the colour
// lists, and the lists and columns of the tray settings.
#include "paramdata/color_tables.h"
#include "paramdata/control_texts.h"
#include "paramdata/device_table.h"
#include "trays/media_type_lists.h"
#include "trays/tray_settings.h"
#include "workbench/commands/commands.h"
#include "workbench/lib/record_fields.h"

#include <iterator>

namespace {

const struct {
    const char* entry;
    const ControlTextRecord* rows;
} kControlTexts[] = {
    {"Property_0", propertyTexts},
    {"Dlg_ColorSetting", colorDialogTexts},
    {"Dlg_PaperSourceTraySetting", trayDialogTexts},
};

struct ColorList {
    const char* name; // of the entry; "short": of the table that takes its first two items
    const ItemRecord* items;
};

constexpr ColorList kColorLists[] = {
    {"RGBProf", colorTables.rgbProfiles.items},
    {"Text_RGBProf", colorTables.text.rgbProfiles.items},
    {"Text_RGBProf short", colorTables.text.shortRgbProfiles.items},
    {"Text_RGBColorMatch", colorTables.text.colorMatches.items},
    {"Text_RGBGray", colorTables.text.grays.items},
    {"Text_Halftone", colorTables.text.halftones.items},
    {"Img_RGBProf", colorTables.image.rgbProfiles.items},
    {"Img_RGBProf short", colorTables.image.shortRgbProfiles.items},
    {"Img_RGBColorMatch", colorTables.image.colorMatches.items},
    {"Img_RGBGray", colorTables.image.grays.items},
    {"Img_Halftone", colorTables.image.halftones.items},
    {"Graph_RGBProf", colorTables.graphics.rgbProfiles.items},
    {"Graph_RGBProf short", colorTables.graphics.shortRgbProfiles.items},
    {"Graph_RGBColorMatch", colorTables.graphics.colorMatches.items},
    {"Graph_RGBGray", colorTables.graphics.grays.items},
    {"Graph_Halftone", colorTables.graphics.halftones.items},
    {"SimulationProf", colorTables.simulations.items},
    {"DestinationProf", colorTables.destinations.items},
    {"Simu_CMYKGray", colorTables.simulationGrays.items},
};

constexpr ColorList kDestinationLists[] = {
    {"Text_Destination", colorTables.text.destinations.items},
    {"Img_Destination", colorTables.image.destinations.items},
    {"Graph_Destination", colorTables.graphics.destinations.items},
};

// Without the unused places, which are 0.
Document Identifiers(const ControlTextRecord& row) {
    Document identifiers = Show<&ControlTextRecord::identifiers>(&row);
    while (identifiers.Elements().back().Integer() == 0)
        identifiers.Elements().pop_back();
    return identifiers;
}

Document ControlTexts(const ControlTextRecord* row) {
    Document rows = Document::MakeList();
    for (; row->key[0] != 0; ++row)
        rows.Add({
            {"identifiers", Identifiers(*row)},
            {"key", ToDocument(row->key)},
            {"text", Show<&ControlTextRecord::display>(row)},
        });
    return rows;
}

template <size_t N>
Document ColorLists(const ColorList (&lists)[N]) {
    Document document;
    for (const ColorList& list : lists)
        document[list.name] = ListDocument(list.items, kNamed<ItemRecord>);
    return document;
}

// Under the keys of their columns; the first column is the tray itself. Null without memory for the lists.
Document MediaTypes() {
    Document document;
    for (size_t i = 0; mediaTypeLists != nullptr && i < kMediaTypeListCount; ++i)
        document[mediaTypeColumns[i + 1].key] = ListDocument(mediaTypeLists->lists[i], kNamed<ItemRecord>);
    return document;
}

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
    document["colorLists"] = ColorLists(kColorLists);
    document["destinations"] = ColorLists(kDestinationLists);
    document["mediaTypeLists"] = MediaTypes();
    document["mediaTypeColumns"] = Columns(*family.table);
    return document;
}
