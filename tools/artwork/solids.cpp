// Draws solid bodies in the printer's projection.
#include "solids.h"

Plane FrontPlane(double z) {
    return {At(0, 0, z), {1, 0}, {0, 1}};
}

Plane SidePlane(double x) {
    return {{x, 0}, {1, -1}, {0, 1}};
}

Plane TopPlane(double y) {
    return {{0, y}, {1, 0}, {1, -1}};
}

void AddFace(Scene& scene, const Plane& plane, const Area& area, const Paint& paint, const Outline& edge) {
    scene.Panel(plane, area, Flat(edge.color));
    scene.Panel(
        plane,
        {area.left + edge.width, area.top + edge.width, area.right - edge.width, area.bottom - edge.width},
        paint);
}

void AddSolid(Scene& scene, const Solid& solid, const Material& material) {
    const Outline edge = {material.edge, 0.7};
    AddFace(scene, TopPlane(solid.y.from), {solid.x.from, solid.z.from, solid.x.to, solid.z.to}, material.top,
            edge);
    AddFace(scene, SidePlane(solid.x.to), {solid.z.from, solid.y.from, solid.z.to, solid.y.to}, material.side,
            edge);
    AddFace(scene, FrontPlane(solid.z.from), {solid.x.from, solid.y.from, solid.x.to, solid.y.to},
            material.front, edge);
}

void AddPlate(Scene& scene, const Plate& plate, const Material& material) {
    const auto corner = [](const Point& end, double z, double drop) { return At(end.x, end.y + drop, z); };
    const double front = plate.z.from;
    const double back = plate.z.to;
    scene.Polygon({corner(plate.left, front, 0), corner(plate.left, back, 0), corner(plate.right, back, 0),
                   corner(plate.right, front, 0)},
                  material.top);
    scene.Polygon({corner(plate.right, front, 0), corner(plate.right, back, 0),
                   corner(plate.right, back, plate.thickness), corner(plate.right, front, plate.thickness)},
                  material.side);
    scene.Polygon({corner(plate.left, front, 0), corner(plate.right, front, 0),
                   corner(plate.right, front, plate.thickness), corner(plate.left, front, plate.thickness)},
                  material.front);
}
