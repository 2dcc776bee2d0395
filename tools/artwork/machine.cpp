// Draws the printer and its units. Units of length are pixels of the common frame of 200 x 200.
#include "machine.h"

#include "solids.h"

#include <initializer_list>

namespace {

constexpr double kFloor = 164;
constexpr Span kAllDepth = {0, kDepth};

// --- Colours and materials --------------------------------------------------------------------------------

constexpr Color kShellEdge = {150, 158, 170};
constexpr Color kGroove = {128, 137, 150};
constexpr Color kDark = {58, 66, 78};
constexpr Color kAccent = {0, 134, 178};

// Light plastic: housings.
const Material kShell = {Down({248, 249, 251}, {219, 224, 231}), Across({178, 186, 197}, {204, 210, 218}),
                         Down({240, 243, 246}, {251, 252, 253}), kShellEdge};

// Dark plastic: feet and frames.
const Material kTrim = {Down({88, 97, 111}, {62, 70, 82}), Flat({52, 59, 70}), Flat({122, 131, 145}), kDark};

// Plates that carry paper.
const Material kTray = {Flat({96, 105, 119}), Flat({80, 88, 101}), Across({168, 176, 187}, {138, 146, 158}),
                        kDark};

// Units in the output bay. Their pixels are combined with the bay's by AND, so their shades use only bits
// that the bay's colours have as well.
const Material kBayUnit = {
    Down({207, 207, 207}, {196, 196, 196}), Flat({192, 192, 192}), Flat({206, 206, 206}), {140, 140, 140}};
const Material kBayTray = {
    Flat({76, 76, 76}), Flat({66, 66, 66}), Across({143, 143, 143}, {130, 130, 130}), {66, 66, 66}};
constexpr Color kBayWall = {207, 207, 207};
constexpr Color kBayFloor = {239, 239, 239};

// --- Details ----------------------------------------------------------------------------------------------

// A horizontal groove in a front.
void AddGroove(Scene& scene, Span x, double y) {
    scene.Panel(FrontPlane(0), {x.from, y - 0.4, x.to, y + 0.4}, Tint(kGroove, 0.7));
}

// The handle of a drawer or a door.
void AddHandle(Scene& scene, Span x, double y, double z = 0) {
    scene.Panel(FrontPlane(z), {x.from, y - 1.1, x.to, y + 1.1}, Down(kDark, {110, 119, 132}), 1.1);
}

// A door, outlined on the front.
void AddDoor(Scene& scene, const Area& area) {
    scene.Panel(FrontPlane(0), area, Tint(kGroove, 0.4), 1.7);
    scene.Panel(FrontPlane(0), {area.left + 0.7, area.top + 0.7, area.right - 0.7, area.bottom - 0.7},
                Down({252, 253, 254}, {226, 230, 237}), 1.2);
}

// A lit edge below the top of a front.
void AddGlow(Scene& scene, Span x, double y) {
    scene.Panel(FrontPlane(0), {x.from, y, x.to, y + 1.2}, Tint({255, 255, 255}, 0.8));
}

// --- Body and cabinet -------------------------------------------------------------------------------------

constexpr Span kBodyX = {96, 146};
constexpr Span kBay = {72, 88};
constexpr double kBayRight = 137; // the paper path to the top is right of it

void AddLowerBody(Scene& scene) {
    AddSolid(scene, {kBodyX, {kBay.to, kCabinetTop}, kAllDepth}, kShell);
    // front door
    AddDoor(scene, {98, 91, 144, 118.5});
    scene.Panel(FrontPlane(0), {102, 110.5, 114, 112}, Flat(kAccent), 0.7);
    scene.Panel(FrontPlane(0), {132, 95, 139, 97}, Down(kDark, {110, 119, 132}), 1);
    // two drawers
    for (const double y : {120.0, 129.0}) {
        AddGroove(scene, kBodyX, y);
        AddGlow(scene, {97, 145}, y + 0.5);
        AddHandle(scene, {113, 129}, y + 4.6);
        scene.Panel(FrontPlane(0), {139.5, y + 3.2, 142, y + 5.7}, Flat({150, 158, 170}), 0.6);
    }
}

// Open at the left, so that the background shows next to the rear wall.
void AddBay(Scene& scene) {
    scene.Panel(FrontPlane(kDepth), {kBodyX.from, kBay.from, kBodyX.to, kBay.to}, Flat(kBayWall));
    scene.Panel(TopPlane(kBay.to), {kBodyX.from, 0, kBayRight, kDepth}, Flat(kBayFloor));
    AddSolid(scene, {{kBayRight, kBodyX.to}, kBay, kAllDepth}, kShell);
}

void AddScanner(Scene& scene) {
    AddSolid(scene, {kBodyX, {65, kBay.from}, kAllDepth}, kShell);
    // document feeder: feeding head and document tray
    AddSolid(scene, {{115, 143}, {62.5, 65}, {2, kDepth}}, kShell);
    AddPlate(scene, {{119, 62}, {144, 59}, {3, 8}, 1.2}, kTray);
    AddSolid(scene, {{97, 119}, {59, 65}, {1, kDepth}}, kShell);
    scene.Panel(FrontPlane(1), {99, 61, 117, 61.8}, Tint(kGroove, 0.6));
    // operation panel, tilted toward the user
    scene.Polygon({{119, 72}, {121.5, 63.5}, {145.5, 63.5}, {146.5, 72}}, Flat({40, 47, 58}));
    scene.Polygon({{121, 71}, {122.8, 64.6}, {138, 64.6}, {138.4, 71}},
                  Down({150, 214, 244}, {36, 132, 196}));
    scene.Polygon({{122, 67}, {122.8, 64.6}, {131, 64.6}, {126, 69}, {121.5, 69}},
                  Tint({255, 255, 255}, 0.35));
    scene.Stroke({{142, 66}, {142.1, 66}}, 2, Flat({96, 200, 96}));
    scene.Stroke({{140.8, 69.5}, {143.6, 69.5}}, 1.2, Flat({140, 150, 164}));
}

void AddManualTray(Scene& scene) {
    AddPlate(scene, {{146, 127}, {176, 118.4}, kAllDepth, 2}, kTray);
}

void AddSideDetails(Scene& scene) {
    scene.Panel(SidePlane(kBodyX.to), {1.5, 92, 7.5, 116}, Tint({255, 255, 255}, 0.35), 1);
    for (int i = 0; i < 4; ++i)
        scene.Panel(SidePlane(kBodyX.to), {2.5, 141.0 + 3 * i, 6.5, 142.2 + 3 * i}, Tint(kDark, 0.45), 0.5);
}

void AddCabinet(Scene& scene) {
    AddSolid(scene, {kBodyX, {159, kFloor}, kAllDepth}, kTrim);
    AddSolid(scene, {kBodyX, {kCabinetTop, 160.5}, kAllDepth}, kShell);
    scene.Panel(FrontPlane(0), {120.6, 139, 121.4, 160}, Tint(kGroove, 0.7));
    AddGlow(scene, {97, 145}, kCabinetTop + 0.7);
    AddGroove(scene, kBodyX, kCabinetTop);
    AddHandle(scene, {103, 114}, 143);
    AddHandle(scene, {128, 139}, 143);
}

// --- Units left of the body -------------------------------------------------------------------------------

constexpr Span kTower = {80, 96};

// A tray left of a wall; its front edge meets the wall at `right`.
void AddTray(Scene& scene, Point left, Point right) {
    AddPlate(scene, {left, right, kAllDepth, 2}, kTray);
}

// The paper path from the body's bay into the unit left of it.
void AddRelay(Scene& scene) {
    AddSolid(scene, {{86, 132}, {76, 87}, {0, 4}}, kBayUnit);
    scene.Panel(FrontPlane(0), {104, 80, 124, 81.5}, Flat({74, 74, 74}), 0.7);
}

// A box with four bins on top of the tower; the higher bins slope more.
void AddMailbin(Scene& scene) {
    AddTray(scene, {53, 68.8}, {71, 70});
    AddTray(scene, {53, 63.1}, {71, 65});
    AddTray(scene, {53, 57.5}, {71, 60});
    AddTray(scene, {53, 51.5}, {71, 54});
    AddSolid(scene, {{71, 96}, {51, 72}, kAllDepth}, kShell);
    AddDoor(scene, {74, 54, 93, 69});
}

// The finisher's base. With the saddle kit it is higher and has a booklet tray.
void AddFinisherBase(Scene& scene, bool hasSaddle) {
    if (hasSaddle)
        AddTray(scene, {43, 152}, {58, 147});
    AddSolid(scene, {{58, 96}, {159, kFloor}, kAllDepth}, kTrim);
    AddSolid(scene, {{58, 96}, {hasSaddle ? 113.0 : 118.0, 160.5}, kAllDepth}, kShell);
    if (!hasSaddle)
        return;
    AddGroove(scene, {58, kTower.from}, 126);
    AddHandle(scene, {63, 74}, 131);
}

void AddTower(Scene& scene, Span x, double top) {
    AddSolid(scene, {x, {top, 160.5}, kAllDepth}, kShell);
    AddDoor(scene, {x.from + 2, 92, x.to - 2, 156});
    scene.Panel(FrontPlane(0), {x.to - 6, 112, x.to - 4.4, 122}, Down(kDark, {110, 119, 132}), 0.8);
}

} // namespace

Scene Base() {
    Scene scene;
    AddCabinet(scene);
    AddLowerBody(scene);
    AddBay(scene);
    AddScanner(scene);
    AddSideDetails(scene);
    AddManualTray(scene);
    return scene;
}

Unit InputUnit() {
    Unit unit;
    AddSolid(unit.before, {{155, 181}, {159, kFloor}, kAllDepth}, kTrim);
    AddSolid(unit.before, {{155, 181}, {132, 160.5}, kAllDepth}, kShell);
    AddDoor(unit.before, {157, 134, 179, 158});
    AddHandle(unit.before, {163, 173}, 138);
    return unit;
}

Unit Finisher(bool hasMiddleTray, Kit kit) {
    Unit unit;
    Scene& scene = unit.behind;
    AddFinisherBase(scene, kit == Kit::kSaddle);
    for (const int tray : {2, 1, 0})
        if (tray != 1 || hasMiddleTray)
            AddTray(scene, {54, 79.8 + 10 * tray}, {80, 88.0 + 10 * tray});
    AddTower(scene, kTower, kit == Kit::kSaddle ? 60 : 63);
    if (kit == Kit::kMailbin)
        AddMailbin(scene);
    AddRelay(unit.before);
    return unit;
}

Unit JobSeparator() {
    Unit unit;
    AddSolid(unit.before, {{119, 127}, {82, 87}, kAllDepth}, kBayUnit);
    AddPlate(unit.before, {{85, 82}, {127, 82}, kAllDepth, 2}, kBayTray);
    return unit;
}

Unit OutputRack() {
    Unit unit;
    Scene& scene = unit.behind;
    // a rack with three shelves
    for (const double z : {kDepth - 1.5, 0.0}) {
        if (z == 0)
            for (const double y : {152.0, 128.0, 104.0})
                AddTray(scene, {38, y}, {70, y});
        AddSolid(scene, {{37, 39.5}, {94, kFloor}, {z, z + 1.5}}, kTrim);
    }
    AddSolid(scene, {{71, 96}, {159, kFloor}, kAllDepth}, kTrim);
    AddTower(scene, {70, 96}, 78);
    AddRelay(unit.before);
    return unit;
}
