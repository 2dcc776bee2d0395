// Shapes and their colours. Uses only addition, multiplication and division, so that the result is the same
// on every machine.
#include "shapes.h"

#include <algorithm>

namespace {

// A point in the coordinates of a plane.
Point ToPlane(const Plane& plane, Point at) {
    const double x = at.x - plane.origin.x;
    const double y = at.y - plane.origin.y;
    const double determinant = plane.right.x * plane.down.y - plane.right.y * plane.down.x;
    return {(x * plane.down.y - y * plane.down.x) / determinant,
            (plane.right.x * y - plane.right.y * x) / determinant};
}

Point FromPlane(const Plane& plane, double u, double v) {
    return {plane.origin.x + u * plane.right.x + v * plane.down.x,
            plane.origin.y + u * plane.right.y + v * plane.down.y};
}

double Square(double value) {
    return value * value;
}

bool IsInArea(const Area& area, Point at) {
    return at.x >= area.left && at.x < area.right && at.y >= area.top && at.y < area.bottom;
}

bool IsInRoundedArea(const Area& area, double radius, Point at) {
    if (!IsInArea(area, at))
        return false;
    const double x = std::max({area.left + radius - at.x, at.x - area.right + radius, 0.0});
    const double y = std::max({area.top + radius - at.y, at.y - area.bottom + radius, 0.0});
    return x == 0 || y == 0 || Square(x) + Square(y) <= Square(radius);
}

bool IsInPolygon(const std::vector<Point>& points, Point at) {
    bool isInside = false;
    for (size_t i = 0, before = points.size() - 1; i < points.size(); before = i++) {
        const Point& a = points[i];
        const Point& b = points[before];
        if ((a.y > at.y) != (b.y > at.y) && at.x < a.x + (b.x - a.x) * (at.y - a.y) / (b.y - a.y))
            isInside = !isInside;
    }
    return isInside;
}

double SquaredDistance(Point at, Point from, Point to) {
    const double x = to.x - from.x;
    const double y = to.y - from.y;
    const double length = Square(x) + Square(y);
    const double along =
        length == 0 ? 0 : std::clamp(((at.x - from.x) * x + (at.y - from.y) * y) / length, 0.0, 1.0);
    return Square(at.x - from.x - along * x) + Square(at.y - from.y - along * y);
}

bool IsOnStroke(const Shape& shape, Point at) {
    for (size_t i = 0; i + 1 < shape.points.size(); ++i)
        if (SquaredDistance(at, shape.points[i], shape.points[i + 1]) <= Square(shape.radius))
            return true;
    return false;
}

Area Around(const std::vector<Point>& points, double margin) {
    Area area = {points[0].x, points[0].y, points[0].x, points[0].y};
    for (const Point& point : points)
        area = {std::min(area.left, point.x), std::min(area.top, point.y), std::max(area.right, point.x),
                std::max(area.bottom, point.y)};
    return {area.left - margin, area.top - margin, area.right + margin, area.bottom + margin};
}

bool IsIn(const Shape& shape, Point at) {
    switch (shape.kind) {
    case ShapeKind::kPanel:
        return IsInRoundedArea(shape.area, shape.radius, at);
    case ShapeKind::kPolygon:
        return IsInPolygon(shape.points, at);
    case ShapeKind::kStroke:
        return IsOnStroke(shape, at);
    }
    return false;
}

} // namespace

Color Mix(const Color& a, const Color& b, double shareOfB) {
    return {a.r + (b.r - a.r) * shareOfB, a.g + (b.g - a.g) * shareOfB, a.b + (b.b - a.b) * shareOfB};
}

Paint Flat(const Color& color) {
    return {color, color};
}

Paint Down(const Color& top, const Color& bottom) {
    return {top, bottom};
}

Paint Across(const Color& left, const Color& right) {
    return {left, right, true};
}

Paint Tint(const Color& color, double opacity) {
    return {color, color, false, opacity};
}

bool ColorAt(const Shape& shape, Point at, Color& color) {
    if (!IsInArea(shape.bounds, at))
        return false;
    const Point place = shape.kind == ShapeKind::kPanel ? ToPlane(shape.plane, at) : at;
    if (!IsIn(shape, place))
        return false;
    const Area& area = shape.area;
    const double share = shape.paint.isAcross ? (place.x - area.left) / (area.right - area.left)
                                              : (place.y - area.top) / (area.bottom - area.top);
    color = Mix(shape.paint.from, shape.paint.to, share);
    return true;
}

void Scene::Panel(const Plane& plane, const Area& area, const Paint& paint, double radius) {
    const std::vector<Point> corners = {
        FromPlane(plane, area.left, area.top), FromPlane(plane, area.right, area.top),
        FromPlane(plane, area.left, area.bottom), FromPlane(plane, area.right, area.bottom)};
    shapes.push_back({ShapeKind::kPanel, paint, plane, area, radius, {}, Around(corners, 0)});
}

void Scene::Polygon(const std::vector<Point>& points, const Paint& paint) {
    const Area area = Around(points, 0);
    shapes.push_back({ShapeKind::kPolygon, paint, {}, area, 0, points, area});
}

void Scene::Stroke(const std::vector<Point>& points, double width, const Paint& paint) {
    const Area area = Around(points, width / 2);
    shapes.push_back({ShapeKind::kStroke, paint, {}, area, width / 2, points, area});
}

void Scene::Add(const Scene& more) {
    shapes.insert(shapes.end(), more.shapes.begin(), more.shapes.end());
}
