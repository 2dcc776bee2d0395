// An independent model of the printer's picture: request records laid out byte by byte, and the picture that
// the module must draw for them.
#ifndef PICTURE_TEST_VIEW_MODEL_H
#define PICTURE_TEST_VIEW_MODEL_H

#include "support/canvas.h"
#include "support/product.h"
#include "support/raw_bytes.h"

#include <string>

// One feature of a table. Either every item has a display name or none has.
struct Feature {
    std::string key;
    std::vector<std::string> items;
    std::vector<std::wstring> names = {};
};

// The installed options and the paper path.
struct Choice {
    int32_t outputUnit, inputUnit, disk, mailbin, saddle, printerBody;
    bool hasPath;
    std::string slot;
    uint32_t flags; // bit n: output flag n
};

// A request with its feature table and settings. Not to be moved: its records point at each other.
struct ViewRecords {
    explicit ViewRecords(const std::vector<Feature>& list);
    ViewRecords(const ViewRecords&) = delete;
    ViewRecords& operator=(const ViewRecords&) = delete;

    // Sets the request and the settings. The table must begin with UnitFeatures().
    void Choose(const Choice& choice);
    void Draw(const LoadedModule& module, HDC target, const RECT& rectangle) const;

    std::vector<RawBytes> items; // one table for each feature
    RawBytes features;
    std::vector<int32_t> settings;
    RawBytes request = RawBytes(93);
};

// The option features, each with its items in the order of Choice's numbers, then the others.
std::vector<Feature> UnitFeatures(const std::vector<Feature>& more = {});

// The bitmaps to load in order: parts, then mask and image of each highlight, then the badge to measure and
// the badge to draw.
std::vector<UINT> WantedIds(const Choice& choice);

// Which part of the picture a failed system call costs.
struct Failure {
    size_t skipped = SIZE_MAX; // position of the bitmap that is not drawn, or not measured
    bool isStraight = false;   // drawn to the target, without a memory bitmap
    bool hasNoFont = false;
};

// Draws on the canvas what DrawPrinterView must draw.
void DrawWanted(HMODULE module, Canvas& target, const RECT& rectangle, const std::vector<UINT>& ids,
                const std::wstring& caption, const Failure& failure = {}, int dotsPerInch = 96);

#endif
