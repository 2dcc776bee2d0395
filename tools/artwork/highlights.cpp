// Draws the highlights. One row per sheet or stack of paper; rows with the same id make up one highlight.
// Units are pixels of the common frame.
#include "highlights.h"

#include "solids.h"

namespace {

const Paint kSheet = Across({255, 158, 48}, {246, 120, 22});
const Paint kStackFront = Down({240, 112, 20}, {222, 92, 14});
constexpr Outline kEdge = {{255, 218, 168}, 1.3};
constexpr double kSheetsDrawn = 3.6; // distance of the sheets drawn in a high stack

constexpr double kAnywhere = 1000;

// Paper from its left to its right end, at depths `z`. The front of a stack is visible too.
struct Paper {
    int id;
    const char* name;
    Point left; // of the upper front edge
    Point right;
    Span z;
    double height; // of a stack
    Span visible;  // the rest is hidden
};

constexpr Span kInside = {0, kDepth};
constexpr Span kDrawnOut = {-kDepth, kDepth};
constexpr Span kAll = {0, kAnywhere};

// clang-format off
constexpr Paper kPaper[] = {
    // id  name                   left          right          depth       height  visible
    {111, "in_tray_1",            {96, 129},    {147, 129},    kInside,    0,      kAll},
    {113, "in_tray_2",            {96, 138},    {147, 138},    kInside,    0,      kAll},
    {115, "in_tray_3",            {95, 147},    {119, 147},    kDrawnOut,  5,      kAll},
    {117, "in_tray_4",            {130, 147},   {148, 147},    kDrawnOut,  5,      kAll},
    {119, "in_tray_manual",       {146, 123},   {176, 114.4},  kInside,    3.6,    {155, kAnywhere}},
    {121, "in_tray_lct",          {157, 137},   {180, 137},    kInside,    23,     kAll},
    {121, "in_tray_lct",          {155, 122},   {184, 132},    kInside,    0,      kAll},
    {141, "unit_3_upper",         {72, 82},     {113, 82},     kInside,    0,      kAll},
    {143, "unit_3_upper_printer", {72, 82},     {113, 82},     kInside,    0,      kAll},
    {145, "unit_3_lower",         {84, 88},     {113, 88},     kInside,    0,      kAll},
    {151, "upper_tray",           {42, 76},     {80, 88},      kInside,    0,      {0, 80}},
    {153, "middle_tray",          {42, 86},     {80, 98},      kInside,    0,      {0, 80}},
    {155, "lower_tray",           {42, 96},     {80, 108},     kInside,    0,      {0, 80}},
    {159, "bin_1",                {42, 68},     {71, 70},      kInside,    0,      {0, 71}},
    {161, "bin_2",                {42, 62},     {71, 65},      kInside,    0,      {0, 71}},
    {163, "bin_3",                {42, 56},     {71, 60},      kInside,    0,      {0, 71}},
    {165, "bin_4",                {42, 50},     {71, 54},      kInside,    0,      {0, 71}},
};
// clang-format on

Scene Draw(const Paper& paper) {
    Scene scene;
    const double length = paper.right.x - paper.left.x;
    const Point along = {1, (paper.right.y - paper.left.y) / length};
    const Point front = At(paper.left.x, paper.left.y, paper.z.from);
    AddFace(scene, {front, along, {1, -1}}, {0, 0, length, paper.z.to - paper.z.from}, kSheet, kEdge);
    if (paper.height == 0)
        return scene;
    const Plane face = {front, along, {0, 1}};
    AddFace(scene, face, {0, 0, length, paper.height}, kStackFront, kEdge);
    for (int sheet = 1; sheet * kSheetsDrawn < paper.height - kEdge.width; ++sheet) {
        const double y = sheet * kSheetsDrawn;
        scene.Panel(face, {kEdge.width, y, length - kEdge.width, y + 0.9}, Tint(kEdge.color, 0.55));
    }
    const Point end = At(paper.right.x, paper.right.y, paper.z.from);
    AddFace(scene, {end, {1, -1}, {0, 1}}, {0, 0, paper.z.to - paper.z.from, paper.height}, kStackFront,
            kEdge);
    return scene;
}

void Show(const Paper& paper, Highlight& highlight) {
    const Raster<Sample> samples = Render(Draw(paper), highlight.image.width, highlight.image.height);
    for (int y = 0; y < samples.height; ++y)
        for (int x = 0; x < samples.width; ++x) {
            const Sample& sample = samples.At(x, y);
            if (sample.coverage < 0.4 || x < paper.visible.from || x >= paper.visible.to)
                continue;
            highlight.image.At(x, y) = Round(sample.color);
            highlight.mask.At(x, y) = kBlack;
        }
}

} // namespace

std::vector<Highlight> DrawHighlights(int width, int height) {
    std::vector<Highlight> highlights;
    for (const Paper& paper : kPaper) {
        if (highlights.empty() || highlights.back().id != paper.id)
            highlights.push_back(
                {paper.id, paper.name, Picture(width, height, kBlack), Picture(width, height, kWhite)});
        Show(paper, highlights.back());
    }
    return highlights;
}
