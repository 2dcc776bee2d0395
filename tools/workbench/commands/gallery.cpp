// `workbench gallery`: one sheet with the module's pictures of the printer in all instructive combinations of
// the model's units, paper sources and output destinations, each with a caption.
#include "workbench/commands/commands.h"
#include "workbench/lib/model_name.h"
#include "workbench/lib/picture.h"
#include "workbench/lib/printer_scene.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace {

constexpr size_t kMaxSettings = 5;

struct Row {
    const char* caption;
    const char* settings[kMaxSettings]; // "FEATURE=ITEM"; all others have the model's defaults
    const char* tray = "";
    int outputFlag = 0; // 0: none
    const char* machine = nullptr;
};

constexpr const char* kLct = "OpInTrayUnit=OpInTrayUnit1";
constexpr const char* kNoUnit = "OpOutTrayUnit=DisOpOutTrayUnit";
constexpr const char* kUnit1 = "OpOutTrayUnit=OpOutTrayUnit1";
constexpr const char* kUnit2 = "OpOutTrayUnit=OpOutTrayUnit2";
constexpr const char* kUnit3 = "OpOutTrayUnit=OpOutTrayUnit3";
constexpr const char* kUnit4 = "OpOutTrayUnit=OpOutTrayUnit4";
constexpr const char* kBins = "OpMailBinKit=EnaOpMailBinKit";
constexpr const char* kSaddle = "OpSaddleKit=EnaSaddleKit";
constexpr const char* kDisk = "OpHDD=EnaOpHDD";
constexpr const char* kPrinter = "OpBody=OpBodyPrinter";
constexpr const char* kFirstMachine = "OpMachine=OpMachine1";

// clang-format off

// In the lines of the sheet: installed units, paper sources, output destinations. Mail bins hide the saddle kit.
constexpr Row kRows[] = {
    {"No options",                         {}},
    {"Large-capacity unit",                {kLct}},
    {"Output unit 1",                      {kUnit1}},
    {"Output unit 1, mail bins",           {kUnit1, kBins}},
    {"Output unit 1, saddle kit",          {kUnit1, kSaddle}},
    {"Output unit 2",                      {kUnit2}},
    {"Output unit 2, mail bins",           {kUnit2, kBins}},

    {"Output unit 2, saddle kit",          {kUnit2, kSaddle}},
    {"Output unit 3",                      {kUnit3}},
    {"Output unit 4",                      {kUnit4}},
    {"No unit, still bin 1 (flag 6)",      {kNoUnit}, "", 6},
    {"Hard disk installed",                {kDisk}},
    {"Everything (unit 2)",                {kLct, kUnit2, kBins, kSaddle, kDisk}},
    {"One of several machines",            {}, "", 0, "lumora R880 Pro"},

    {"From tray 1",                        {}, "InTray1"},
    {"From tray 2",                        {}, "InTray2"},
    {"From tray 3",                        {}, "InTray3"},
    {"From tray 4",                        {}, "InTray4"},
    {"From the manual feed",               {}, "InTrayManual"},
    {"From the large-capacity tray",       {kLct}, "InTrayLCT"},
    {"Everything (unit 1), LCT to bin 1",  {kLct, kUnit1, kBins, kSaddle, kDisk}, "InTrayLCT", 6},

    {"Unit 1, upper tray (flag 1)",        {kUnit1}, "", 1},
    {"Unit 1, lower tray (flag 3)",        {kUnit1}, "", 3},
    {"Unit 2, upper tray (flag 1)",        {kUnit2}, "", 1},
    {"Unit 2, middle tray (flag 2)",       {kUnit2}, "", 2},
    {"Unit 2, lower tray (flag 3)",        {kUnit2}, "", 3},
    {"Unit 3 (flag 1)",                    {kUnit3}, "", 1},
    {"Unit 3 (flag 2)",                    {kUnit3}, "", 2},

    {"Unit 3, printer body (flag 1)",      {kUnit3, kPrinter}, "", 1},
    {"Mail bin 1 (flag 6)",                {kUnit1, kBins}, "", 6},
    {"Mail bin 2 (flag 7)",                {kUnit1, kBins}, "", 7},
    {"Mail bin 3 (flag 8)",                {kUnit1, kBins}, "", 8},
    {"Mail bin 4 (flag 9)",                {kUnit1, kBins}, "", 9},
    {"Unit 1, lower tray (flag 5)",        {kUnit1}, "", 5},
    {"Unit 4, nothing marked (flag 1)",    {kUnit4}, "", 1},
};

// clang-format on

// The sheet, in pixels.
constexpr LONG kAcross = 7;
constexpr LONG kMargin = 24;
constexpr LONG kTitleHeight = 44;
constexpr LONG kCellGap = 10; // around a picture
constexpr LONG kCellCaptionHeight = 26;
constexpr SIZE kCell = {kSceneSize.cx + 2 * kCellGap, kSceneSize.cy + kCellGap + kCellCaptionHeight};

constexpr COLORREF kGridColor = RGB(222, 226, 230);
constexpr COLORREF kTitleColor = RGB(33, 37, 41);

constexpr TextStyle kTitleStyle = {26, FW_BOLD, kTitleColor, DT_LEFT | DT_TOP};

// Whether the model has all that the row shows.
bool IsOfModel(const FamilyFiles& family, const OptionFeatures& options, const Row& row) {
    const auto isSet = [&](const char* setting) {
        return setting == nullptr || FindOption(options, setting) != nullptr;
    };
    return std::all_of(std::begin(row.settings), std::end(row.settings), isSet)
           && (row.tray[0] == 0 || FindByKey(family.table->inputTrays, row.tray) != nullptr)
           && (row.machine == nullptr || FindOption(options, kFirstMachine) != nullptr);
}

std::vector<const Row*> RowsOf(const FamilyFiles& family) {
    const OptionFeatures options = ReadOptionFeatures(family);
    std::vector<const Row*> rows;
    for (const Row& row : kRows)
        if (IsOfModel(family, options, row))
            rows.push_back(&row);
    return rows;
}

std::string TitleOf(const FamilyFiles& family) {
    const std::string name = ModelName(family);
    return (name.empty() ? "" : name + ": ") + "the printer's picture";
}

PrinterScene SceneOf(const FamilyFiles& family, const Row& row) {
    PrinterScene scene = {ReadOptionFeatures(family), true, row.tray, {}};
    if (row.machine != nullptr)
        AddMachine(scene.options, row.machine);
    for (const char* setting : row.settings)
        if (setting != nullptr)
            SetOption(scene.options, setting);
    if (row.outputFlag != 0)
        scene.outputFlags.push_back(row.outputFlag);
    return scene;
}

void DrawCell(const FamilyFiles& family, const Row& row, HDC to, POINT at) {
    // Adjacent cells share an edge.
    const RECT edge = {at.x, at.y, at.x + kCell.cx + 1, at.y + kCell.cy + 1};
    SetDCBrushColor(to, kGridColor);
    FrameRect(to, &edge, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    DrawLine(to, {at.x + 1, edge.bottom - kCellCaptionHeight, edge.right - 1, edge.bottom - 1}, kCaptionStyle,
             row.caption);
    // The module draws at the origin.
    SetViewportOrgEx(to, at.x + kCellGap, at.y + kCellGap, nullptr);
    DrawScene(family, SceneOf(family, row), to, kSceneSize);
    SetViewportOrgEx(to, 0, 0, nullptr);
}

} // namespace

Document DrawGallery(const FamilyFiles& family, const std::string& out) {
    const std::vector<const Row*> rows = RowsOf(family);
    const LONG down = (static_cast<LONG>(rows.size()) + kAcross - 1) / kAcross;
    const Canvas sheet(
        {kAcross * kCell.cx + 2 * kMargin + 1, kTitleHeight + down * kCell.cy + 2 * kMargin + 1});
    DrawLine(sheet.context, {kMargin, kMargin, kMargin + kAcross * kCell.cx, kMargin + kTitleHeight},
             kTitleStyle, TitleOf(family).c_str());
    POINT place = {0, 0}; // in cells
    for (const Row* row : rows) {
        DrawCell(family, *row, sheet.context,
                 {kMargin + place.x * kCell.cx, kMargin + kTitleHeight + place.y * kCell.cy});
        place = place.x + 1 < kAcross ? POINT{place.x + 1, place.y} : POINT{0, place.y + 1};
    }
    Document picture = WritePicture(sheet, out);
    picture["printers"] = rows.size();
    return {{"files", FamilyDocument(family)}, {"picture", picture}};
}
