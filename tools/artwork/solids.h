// Solid bodies in the printer's view: a parallel projection from the right front, in which depth goes up and
// to the right at 45 degrees. x and y are pixels as they appear at depth 0, z is depth in the same pixels.
#ifndef ARTWORK_SOLIDS_H
#define ARTWORK_SOLIDS_H

#include "shapes.h"

constexpr double kDepth = 9; // of the printer

// Where a point of the space appears.
constexpr Point At(double x, double y, double z) {
    return {x + z, y - z};
}

// Faces: panels on them are given by x and y (front), z and y (right side), x and z (top).
Plane FrontPlane(double z);
Plane SidePlane(double x);
Plane TopPlane(double y);

struct Outline {
    Color color;
    double width;
};

// A panel within its outline.
void AddFace(Scene& scene, const Plane& plane, const Area& area, const Paint& paint, const Outline& edge);

struct Span {
    double from;
    double to;
};

struct Solid {
    Span x;
    Span y;
    Span z;
};

struct Material {
    Paint front;
    Paint side;
    Paint top;
    Color edge; // of the faces' outlines
};

// The three faces that one sees of it, outlined.
void AddSolid(Scene& scene, const Solid& solid, const Material& material);

// A level or sloping sheet or plate: front edge from `left` to `right` at depth z.from, with the thickness of
// its front edge.
struct Plate {
    Point left;
    Point right;
    Span z;
    double thickness;
};
void AddPlate(Scene& scene, const Plate& plate, const Material& material);

#endif
