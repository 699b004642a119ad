#pragma once

namespace vantle {

/// All lengths are in points unless a name says pixels.
struct Point {
    double x = 0;
    double y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
    double width = 0;
    double height = 0;
    friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
    Point origin;
    Size size;

    double minX() const { return origin.x; }
    double minY() const { return origin.y; }
    double maxX() const { return origin.x + size.width; }
    double maxY() const { return origin.y + size.height; }

    friend bool operator==(const Rect&, const Rect&) = default;
};

/// Returns true if the rectangles share any inner point. A rectangle without width or height counts
/// if it is inside the other one.
constexpr bool intersects(const Rect& a, const Rect& b) {
    return a.origin.x < b.origin.x + b.size.width && b.origin.x < a.origin.x + a.size.width &&
           a.origin.y < b.origin.y + b.size.height && b.origin.y < a.origin.y + a.size.height;
}

/// Returns true if the rectangle contains the point, in coordinates whose y grows upwards. Only the
/// left and top edges belong to a rectangle, so that a point between two adjacent screens belongs
/// to one of them.
constexpr bool containsUpwards(const Rect& rect, const Point& point) {
    return point.x >= rect.origin.x && point.x < rect.origin.x + rect.size.width &&
           point.y > rect.origin.y && point.y <= rect.origin.y + rect.size.height;
}

}  // namespace vantle
