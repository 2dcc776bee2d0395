// Solid bodies in a parallel projection from the front right, with depth going up and right at 45 degrees. x
// and y are pixels at depth 0; z is depth in the same unit.
#ifndef ARTWORK_SOLIDS_H
#define ARTWORK_SOLIDS_H

#include "shapes.h"

constexpr double kDepth = 9; // of the printer

// The projection of a point.
constexpr Point At(double x, double y, double z) {
    return {x + z, y - z};
}

// Faces; panels on them are given in x and y (front), z and y (right side), x and z (top).
Plane FrontPlane(double z);
Plane SidePlane(double x);
Plane TopPlane(double y);

struct Outline {
    Color color;
    double width;
};

// A panel with an outline.
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

// The three visible faces, outlined.
void AddSolid(Scene& scene, const Solid& solid, const Material& material);

// A level or sloping sheet or plate: its front edge runs from `left` to `right` at depth z.from and has a
// thickness.
struct Plate {
    Point left;
    Point right;
    Span z;
    double thickness;
};
void AddPlate(Scene& scene, const Plate& plate, const Material& material);

#endif
