// Builds the records and composes the picture from the bitmaps, pixel by pixel.
#include "picture/view/view_model.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <tuple>

namespace {

constexpr size_t kFeatureOctets = 152, kItemOctets = 144;

const ResourceBitmap& Bitmap(HMODULE module, UINT id) {
    static std::map<UINT, ResourceBitmap> read;
    const auto found = read.find(id);
    return found != read.end() ? found->second : read.emplace(id, ResourceBitmap(module, id)).first->second;
}

void Write(HDC dc, POINT place, const std::wstring& caption, bool hasNoFont, int dotsPerInch) {
    LOGFONTW description;
    GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof(description), &description);
    description.lfHeight = dotsPerInch == 96 ? -12 : -24; // 9 points
    description.lfWeight = 700;
    const HFONT font = CreateFontIndirectW(&description);
    const HGDIOBJ before = SelectObject(dc, font);
    if (hasNoFont)
        SelectObject(dc, before);
    TextOutW(dc, place.x, place.y, caption.data(), static_cast<int>(caption.size()));
    SelectObject(dc, before);
    DeleteObject(font);
}

// The first row with the output unit and any of its flags decides.
// clang-format off
const std::tuple<std::set<int>, uint32_t, UINT> kOutputHighlights[] = {
    {{3},       1 << 2,          145}, {{3},       1 << 1,          141}, // 143 on a printer's body
    {{0, 1, 2}, 1 << 6,          159}, {{0, 1, 2}, 1 << 7,          161},
    {{0, 1, 2}, 1 << 8,          163}, {{0, 1, 2}, 1 << 9,          165},
    {{0, 1, 2}, 1 << 1 | 1 << 4, 151}, {{0, 1, 2}, 1 << 3,          155},
    {{1},       1 << 2 | 1 << 5, 155}, {{2},       1 << 2 | 1 << 5, 153},
};
// clang-format on

UINT OutputHighlight(const Choice& choice) {
    for (const auto& [units, flags, bitmap] : kOutputHighlights)
        if (units.count(choice.outputUnit) != 0 && (choice.flags & flags) != 0)
            return bitmap == 141 && choice.printerBody == 1 ? 143 : bitmap;
    return 0;
}

} // namespace

ViewRecords::ViewRecords(const std::vector<Feature>& list)
    : features((list.size() + 1) * kFeatureOctets), settings(list.size()) {
    for (size_t i = 0; i < list.size(); ++i) {
        RawBytes table((list[i].items.size() + 1) * kItemOctets);
        for (size_t k = 0; k < list[i].items.size(); ++k) {
            table.Text(k * kItemOctets + 4, list[i].items[k]);
            if (!list[i].names.empty())
                table.Wide(k * kItemOctets + 48, list[i].names[k].c_str());
        }
        items.push_back(table);
        features.Text(i * kFeatureOctets + 4, list[i].key);
    }
    for (size_t i = 0; i < list.size(); ++i) // now that they no longer move
        features.Pointer(i * kFeatureOctets + 144, items[i].bytes.data());
    request.Pointer(1, features.bytes.data()).Pointer(9, settings.data());
}

void ViewRecords::Draw(const LoadedModule& module, HDC target, const RECT& rectangle) const {
    using Function = void WINAPI(HDC, const RECT*, const void*);
    module.Export<Function>("DrawPrinterView")(target, &rectangle, request.bytes.data());
}

void ViewRecords::Choose(const Choice& choice) {
    const int32_t numbers[] = {choice.printerBody, choice.inputUnit, choice.outputUnit,
                               choice.disk,        choice.mailbin,   choice.saddle};
    std::copy_n(numbers, std::min<size_t>(6, settings.size()), settings.begin());
    request.U8(0, choice.hasPath ? 0x80 : 0).U8(17, 0, 40).Text(17, choice.slot);
    for (uint32_t n = 1; n <= 9; ++n)
        request.U32(53 + 4 * n, (choice.flags >> n & 1) << (3 * n)); // any bit counts
}

std::vector<Feature> UnitFeatures(const std::vector<Feature>& more) {
    std::vector<Feature> list = {
        {"OpBody", {"OpBodyCopier", "OpBodyPrinter"}},
        {"OpInTrayUnit", {"DisOpInTrayUnit", "OpInTrayUnit1", "OpInTrayUnit2"}},
        {"OpOutTrayUnit", {"DisOpOutTrayUnit", "OpOutTrayUnit1", "OpOutTrayUnit2", "OpOutTrayUnit3", "OpOutTrayUnit4"}},
        {"OpHDD", {"DisOpHDD", "EnaOpHDD"}},
        {"OpMailBinKit", {"DisOpMailBinKit", "EnaOpMailBinKit"}},
        {"OpSaddleKit", {"DisSaddleKit", "EnaSaddleKit"}},
    };
    list.insert(list.end(), more.begin(), more.end());
    return list;
}

std::vector<UINT> WantedIds(const Choice& choice) {
    std::vector<UINT> ids = {101, 103};
    if (choice.inputUnit == 1)
        ids.push_back(104);
    const int unit = choice.outputUnit;
    if (unit == 1 || unit == 2)
        ids.push_back((choice.mailbin ? 132u : choice.saddle ? 134u : 130u) + static_cast<UINT>(unit));
    else if (unit != 0)
        ids.push_back(unit == 3 ? 137 : 138);
    const auto highlight = [&ids](UINT image) { ids.insert(ids.end(), {image + 1, image}); };
    static const std::map<std::string, UINT> kSlots = {{"InTray1", 111},      {"InTray2", 113},  {"InTray3", 115},
                                                       {"InTray4", 117},      {"intray4", 117},  {"INTRAY1", 111},
                                                       {"InTrayManual", 119}, {"InTrayLCT", 121}};
    if (choice.hasPath && kSlots.count(choice.slot) != 0)
        highlight(kSlots.at(choice.slot));
    if (choice.hasPath && OutputHighlight(choice) != 0)
        highlight(OutputHighlight(choice));
    ids.insert(ids.end(), 2, choice.disk == 1 ? 202 : 201);
    return ids;
}

void DrawWanted(HMODULE module, Canvas& target, const RECT& rectangle, const std::vector<UINT>& ids,
                const std::wstring& caption, const Failure& failure, int dotsPerInch) {
    const LONG width = std::abs(rectangle.right - rectangle.left), height = std::abs(rectangle.bottom - rectangle.top);
    Canvas memory(width, height, 0);
    Canvas& canvas = failure.isStraight ? target : memory;
    FillRect(canvas.dc, &rectangle, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    for (size_t i = 0; i < ids.size(); ++i) {
        const bool isBadge = i + 2 >= ids.size();
        if (i == failure.skipped || i + 2 == ids.size())
            continue;
        const ResourceBitmap& bitmap = Bitmap(module, ids[i]);
        const bool isImage = ids[i] % 2 != 0 && ids[i] > 110 && (ids[i] < 130 || ids[i] > 140) && !isBadge;
        POINT corner = {rectangle.left + width / 2 - 100, rectangle.top + height / 2 - 100};
        if (isBadge) // 39 x 17; its place follows from its size, 0 when that could not be read
            corner = failure.skipped + 2 == ids.size() ? POINT{rectangle.right - 8 - 19, rectangle.top + 8 - 8}
                                                       : POINT{rectangle.right - 19 - 8 - 19, rectangle.top + 8};
        canvas.Combine(bitmap, corner, isImage ? SRCINVERT : SRCAND);
    }
    if (!caption.empty())
        Write(canvas.dc, {rectangle.left + 4, rectangle.top + 4}, caption, failure.hasNoFont, dotsPerInch);
    if (!failure.isStraight)
        target.Combine(memory.Content(), {0, 0}, SRCCOPY);
}
