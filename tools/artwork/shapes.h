// Scenes: panels, polygons and strokes with a paint, in the order of painting. Coordinates are pixels of the
// picture, y downward; a pixel covers [x, x + 1) x [y, y + 1).
#ifndef ARTWORK_SHAPES_H
#define ARTWORK_SHAPES_H

#include <vector>

struct Point {
    double x;
    double y;
};

// Red, green, blue, each 0 to 255.
struct Color {
    double r;
    double g;
    double b;
};

Color Mix(const Color& a, const Color& b, double shareOfB);

// A gradient from one colour to another, over the height or the width of the painted area. With an opacity
// below 1 it only tints what is below it, and leaves uncovered pixels alone.
struct Paint {
    Color from;
    Color to;
    bool isAcross = false;
    double opacity = 1;
};

Paint Flat(const Color& color);
Paint Down(const Color& top, const Color& bottom);
Paint Across(const Color& left, const Color& right);
Paint Tint(const Color& color, double opacity);

// A flat face as projected into the picture: u runs along `right`, v along `down`.
struct Plane {
    Point origin;
    Point right;
    Point down;
};

struct Area {
    double left;
    double top;
    double right;
    double bottom;
};

enum class ShapeKind { kPanel, kPolygon, kStroke };

struct Shape {
    ShapeKind kind;
    Paint paint;
    Plane plane;   // of a panel
    Area area;     // spanned by the gradient: of a panel in its plane, otherwise around the points
    double radius; // of a panel's corners, or half a stroke's width
    std::vector<Point> points; // of a polygon or a stroke
    Area bounds;               // nothing of the shape is outside
};

// The shape's colour at a point of the picture; false outside the shape.
bool ColorAt(const Shape& shape, Point at, Color& color);

struct Scene {
    std::vector<Shape> shapes; // later ones cover earlier ones

    void Panel(const Plane& plane, const Area& area, const Paint& paint, double radius = 0);
    void Polygon(const std::vector<Point>& points, const Paint& paint);
    void Stroke(const std::vector<Point>& points, double width, const Paint& paint);
    void Add(const Scene& more);
};

#endif
