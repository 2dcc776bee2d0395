// The printer's picture as the tests see it: records laid out byte by byte, and what is to be drawn for them.
#ifndef PICTURE_TEST_VIEW_MODEL_H
#define PICTURE_TEST_VIEW_MODEL_H

#include "support/canvas.h"
#include "support/product.h"
#include "support/raw_bytes.h"

#include <string>

// One feature of a table; a display name for each item, or none at all.
struct Feature {
    std::string key;
    std::vector<std::string> items;
    std::vector<std::wstring> names;
};

// What to install and which way the paper takes.
struct Choice {
    int32_t outputUnit, inputUnit, disk, mailbin, saddle, printerBody;
    bool hasPath;
    std::string slot;
    uint32_t flags; // bit n: output flag n
};

// A request with its feature table and settings. Keep it where it is: its records point at each other.
struct ViewRecords {
    explicit ViewRecords(const std::vector<Feature>& list);
    ViewRecords(const ViewRecords&) = delete;
    ViewRecords& operator=(const ViewRecords&) = delete;

    // Fills the request in, and the settings where the table is UnitFeatures() with whatever behind.
    void Choose(const Choice& choice);
    void Draw(const LoadedModule& module, HDC target, const RECT& rectangle) const;

    std::vector<RawBytes> items; // one table for each feature
    RawBytes features;
    std::vector<int32_t> settings;
    RawBytes request = RawBytes(93);
};

// The option features, each with its items in the order of Choice's numbers, and more behind them.
std::vector<Feature> UnitFeatures(const std::vector<Feature>& more = {});

// The bitmaps to load in order: parts, then mask and image of each highlight, then the badge to measure and
// the badge to draw.
std::vector<UINT> WantedIds(const Choice& choice);

// What goes wrong on the way.
struct Mishap {
    size_t skipped = SIZE_MAX; // position among the bitmaps of the one that is not drawn, or not measured
    bool isStraight = false;   // there is no memory to draw in
    bool hasNoFont = false;
};

// Draws on the canvas what DrawPrinterView is to draw.
void DrawWanted(HMODULE module, Canvas& target, const RECT& rectangle, const std::vector<UINT>& ids,
                const std::wstring& caption, const Mishap& mishap = {}, int dotsPerInch = 96);

#endif
