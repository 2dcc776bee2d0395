// `workbench montage`: one sheet of several pictures, each with its file name below. Pictures of the same
// width are placed in one column, in the order of the command line.
#include "workbench/commands/commands.h"
#include "workbench/lib/picture.h"

#include <algorithm>

namespace {

// In pixels.
constexpr LONG kGap = 24; // around pictures
constexpr LONG kCaptionHeight = 22;

struct Column {
    LONG width;
    LONG left;
    LONG bottom; // of the pictures placed so far
};

struct Placed {
    std::string caption;
    std::unique_ptr<Canvas> picture;
    POINT at;
};

// The column for pictures of this width, added on the right if there is none yet.
Column& ColumnFor(std::vector<Column>& columns, LONG width) {
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [width](const Column& column) { return column.width == width; });
    if (found != columns.end())
        return *found;
    const LONG left = columns.empty() ? kGap : columns.back().left + columns.back().width + kGap;
    columns.push_back({width, left, kGap});
    return columns.back();
}

std::vector<Placed> Place(const std::vector<std::string>& paths, std::vector<Column>& columns) {
    std::vector<Placed> pictures;
    for (const std::string& path : paths) {
        std::unique_ptr<Canvas> picture = ReadPicture(path);
        Column& column = ColumnFor(columns, picture->size.cx);
        const POINT at = {column.left, column.bottom};
        column.bottom += picture->size.cy + kCaptionHeight + kGap;
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
