// The font substitution table of the private print settings: the printer font for each TrueType font.
#ifndef PARAMDATA_FONT_TABLE_H
#define PARAMDATA_FONT_TABLE_H

#include "base/records.h"
#include "base/text.h"

struct FontSubstitution {
    const char* trueTypeName; // 8-bit; the Japanese names in code page 932
    const char* printerFont;
    uint8_t code; // of the printer font
};

inline constexpr FontSubstitution kFontSubstitutions[] = {
    // clang-format off
    {"Arial",                                                      "Arial",           5},
    {"Courier New",                                                "Courier",         11},
    {"Times New Roman",                                            "Times New Roman", 23},
    {"Symbol",                                                     "Symbol",          20},
    {"Wingdings",                                                  "Wingdings",       26},
    {"\x82\x6C\x82\x72 \x83\x53\x83\x56\x83\x62\x83\x4E",         "HGGothic-Bold",   29}, // MS Gothic
    {"\x82\x6C\x82\x72 \x82\x6F\x83\x53\x83\x56\x83\x62\x83\x4E", "HGPGothic-Bold",  30}, // MS PGothic
    {"\x82\x6C\x82\x72 \x96\xBE\x92\xA9",                         "HGMincho-Light",  31}, // MS Mincho
    {"\x82\x6C\x82\x72 \x82\x6F\x96\xBE\x92\xA9",                 "HGPMincho-Light", 32}, // MS PMincho
    // clang-format on
};

// Clears the table's fields and fills a slot for each row above.
constexpr void FillFontTable(OemDevmode& settings) {
    for (size_t i = 0; i < TELMAR_FONT_COUNT; ++i) {
        for (size_t at = 0; at < sizeof(settings.trueTypeNames[i]); ++at)
            settings.trueTypeNames[i][at] = settings.printerFonts[i][at] = 0;
        settings.fontChecksums[i] = 0;
    }
    for (uint8_t& code : settings.fontCodes)
        code = 0;
    settings.fontField = 0;
    settings.fontFlag = 0;
    settings.fontCount = 0;
    for (const FontSubstitution& font : kFontSubstitutions) {
        const size_t slot = settings.fontCount++;
        CopyText(settings.trueTypeNames[slot], font.trueTypeName);
        CopyText(settings.printerFonts[slot], font.printerFont);
        settings.fontCodes[slot] = font.code;
        for (const char c : settings.trueTypeNames[slot])
            settings.fontChecksums[slot] += static_cast<unsigned char>(c);
    }
}

#endif
