// `workbench defaults`: the default print settings, field by field, as the parameter data file has set them.
#include "workbench/commands/commands.h"
#include "workbench/lib/record_fields.h"
#include "workbench/lib/settings_fields.h"

namespace {

// The slots in use, with the offset of each part.
Document FontTable(const OemDevmode& settings) {
    constexpr UINT kJapanese = 932; // code page of the names
    Document rows = Document::MakeList();
    for (size_t i = 0; i < settings.fontCount; ++i)
        rows.Add({
            {"nameOffset", offsetof(OemDevmode, trueTypeNames) + i * sizeof(settings.trueTypeNames[i])},
            {"trueTypeName", Utf8(settings.trueTypeNames[i], kJapanese)},
            {"printerFontOffset", offsetof(OemDevmode, printerFonts) + i * sizeof(settings.printerFonts[i])},
            {"printerFont", Utf8(settings.printerFonts[i])},
            {"codeOffset", offsetof(OemDevmode, fontCodes) + i},
            {"code", settings.fontCodes[i]},
            {"checksumOffset", offsetof(OemDevmode, fontChecksums) + i * sizeof(settings.fontChecksums[i])},
            {"checksum", uint32_t{settings.fontChecksums[i]}},
        });
    return rows;
}

} // namespace

Document ShowDefaults(const FamilyFiles& family) {
    Document document;
    document["files"] = FamilyDocument(family);
    for (const SettingsField& field : SettingsFields())
        document[field.group].Add({{"name", field.name},
                                   {"offset", field.offset},
                                   {"bytes", field.bytes},
                                   {"value", ShowSetting(field, defaultSettings)}});
    document["fontTable"] = FontTable(defaultSettings);
    return document;
}
