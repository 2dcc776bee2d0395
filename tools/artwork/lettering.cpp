// Draws the letters. Each is a path on a grid where capitals are 10 high, y downward: M moves to a point, L
// draws a line, H and V draw a quarter of an ellipse that starts horizontally or vertically.
#include "lettering.h"

#include <sstream>
#include <stdexcept>

namespace {

struct Letter {
    char character;
    double width;
    const char* path;
};

// clang-format off
constexpr Letter kLetters[] = {
    {' ', 2.4, ""},
    {'0', 6.4, "M 0 5  V 3.2 0  H 6.4 5  V 3.2 10  H 0 5"},
    {'8', 6.4, "M 3.2 4.7  H 5.9 2.35  V 3.2 0  H 0.5 2.35  V 3.2 4.7  H 6.4 7.35  V 3.2 10  H 0 7.35  V 3.2 4.7"},
    {'A', 8.0, "M 0 10  L 4 0  L 8 10  M 1.4 6.6  L 6.6 6.6"},
    {'E', 5.6, "M 5.6 0  L 0 0  L 0 10  L 5.6 10  M 0 4.9  L 4.8 4.9"},
    {'N', 7.0, "M 0 10  L 0 0  L 7 10  L 7 0"},
    {'O', 8.4, "M 0 5  V 4.2 0  H 8.4 5  V 4.2 10  H 0 5"},
    {'Q', 8.4, "M 0 5  V 4.2 0  H 8.4 5  V 4.2 10  H 0 5  M 5.2 7.2  L 8.2 10.6"},
    {'R', 6.6, "M 0 10  L 0 0  L 3.4 0  H 6.2 2.8  V 3.4 5.6  L 0 5.6  M 3.4 5.6  L 6.6 10"},
    {'U', 7.2, "M 0 0  L 0 6.2  V 3.6 10  H 7.2 6.2  L 7.2 0"},
    {'V', 8.0, "M 0 0  L 4 10  L 8 0"},
    {'a', 6.0, "M 6 6.75  V 3 3.5  H 0 6.75  V 3 10  H 6 6.75  M 6 3.5  L 6 10"},
    {'l', 0.0, "M 0 0  L 0 10"},
    {'m', 9.2, "M 0 10  L 0 3.5  M 0 6  V 2.3 3.5  H 4.6 6  L 4.6 10  M 4.6 6  V 6.9 3.5  H 9.2 6  L 9.2 10"},
    {'o', 6.4, "M 0 6.75  V 3.2 3.5  H 6.4 6.75  V 3.2 10  H 0 6.75"},
    {'r', 3.0, "M 0 10  L 0 3.5  M 0 6.2  V 2.5 3.5  L 3 3.5"},
    {'u', 5.4, "M 0 3.5  L 0 7.2  V 2.7 10  H 5.4 7.2  M 5.4 3.5  L 5.4 10"},
};
// clang-format on

const Letter& FindLetter(char character) {
    for (const Letter& letter : kLetters)
        if (letter.character == character)
            return letter;
    throw std::runtime_error(std::string("the letter '") + character + "' is not defined");
}

constexpr int kArcSteps = 12;

// A quarter of an ellipse; `first` is the axis along which it starts.
void AddArc(std::vector<Point>& points, Point to, bool isHorizontalFirst) {
    const Point from = points.back();
    for (int i = 1; i <= kArcSteps; ++i) {
        const double t = static_cast<double>(i) / kArcSteps;
        const double sine = 2 * t / (1 + t * t); // of an angle from 0 to 90 degrees
        const double rest = 1 - (1 - t * t) / (1 + t * t);
        points.push_back({from.x + (to.x - from.x) * (isHorizontalFirst ? sine : rest),
                          from.y + (to.y - from.y) * (isHorizontalFirst ? rest : sine)});
    }
}

std::vector<std::vector<Point>> Lines(const char* path) {
    std::vector<std::vector<Point>> lines;
    std::istringstream steps(path);
    char step;
    Point to;
    while (steps >> step >> to.x >> to.y) {
        if (step == 'M')
            lines.push_back({to});
        else if (step == 'L')
            lines.back().push_back(to);
        else
            AddArc(lines.back(), to, step == 'H');
    }
    return lines;
}

} // namespace

void AddText(Scene& scene, const std::string& text, Point at, const TextStyle& style) {
    const double scale = style.height / 10;
    for (const char character : text) {
        const Letter& letter = FindLetter(character);
        for (std::vector<Point> line : Lines(letter.path)) {
            for (Point& point : line)
                point = {at.x + point.x * scale, at.y + point.y * scale};
            scene.Stroke(line, style.weight, style.paint);
        }
        at.x += (letter.width + style.tracking) * scale;
    }
}
