// `workbench montage`: one sheet of several pictures, each with its file name below, in columns in the order
// of the command line.
#include "workbench/commands/commands.h"
#include "workbench/lib/picture.h"

#include <algorithm>

namespace {

// In pixels.
constexpr LONG kGap = 24; // around pictures
constexpr LONG kCaptionHeight = 22;
constexpr LONG kMaxHeight = 2200; // of a column

struct Column {
    LONG width; // of its widest picture
    LONG left;
    LONG bottom; // of the pictures placed so far
};

struct Placed {
    std::string caption;
    std::unique_ptr<Canvas> picture;
    POINT at;
};

// The last column or, when it has no room for a picture of this height, a new one to its right.
Column& ColumnFor(std::vector<Column>& columns, LONG height) {
    if (columns.empty())
        columns.push_back({0, kGap, kGap});
    else if (columns.back().bottom + height > kMaxHeight)
        columns.push_back({0, columns.back().left + columns.back().width + kGap, kGap});
    return columns.back();
}

std::vector<Placed> Place(const std::vector<std::string>& paths, std::vector<Column>& columns) {
    std::vector<Placed> pictures;
    for (const std::string& path : paths) {
        std::unique_ptr<Canvas> picture = ReadPicture(path);
        const LONG height = picture->size.cy + kCaptionHeight + kGap;
        Column& column = ColumnFor(columns, height);
        const POINT at = {column.left, column.bottom};
        column.bottom += height;
        column.width = std::max(column.width, picture->size.cx);
        pictures.push_back({std::filesystem::u8path(path).stem().u8string(), std::move(picture), at});
    }
    return pictures;
}

} // namespace

Document MakeMontage(const std::vector<std::string>& paths, const std::string& out) {
    std::vector<Column> columns;
    const std::vector<Placed> pictures = Place(paths, columns);
    SIZE size = {columns.back().left + columns.back().width + kGap, 0};
    for (const Column& column : columns)
        size.cy = std::max(size.cy, column.bottom);
    const Canvas sheet(size);
    for (const Placed& placed : pictures) {
        const SIZE part = placed.picture->size;
        BitBlt(sheet.context, placed.at.x, placed.at.y, part.cx, part.cy, placed.picture->context, 0, 0,
               SRCCOPY);
        const LONG bottom = placed.at.y + part.cy;
        DrawLine(sheet.context, {placed.at.x, bottom, placed.at.x + part.cx, bottom + kCaptionHeight},
                 kCaptionStyle, placed.caption.c_str());
    }
    Document written = WritePicture(sheet, out);
    written["pictures"] = pictures.size();
    return {{"picture", written}};
}
