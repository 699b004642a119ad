#include "support/Gradient.h"

#include <cmath>
#include <numbers>

namespace vantle {

GradientLine gradientLine(const Size& size, double angle) {
    const double radians = angle * std::numbers::pi / 180;
    const Point direction{std::cos(radians), -std::sin(radians)};
    // The line is as long as the rectangle is in this direction, so that its ends are level with
    // two opposite corners.
    const double half =
        (size.width * std::abs(direction.x) + size.height * std::abs(direction.y)) / 2;
    const Point middle{size.width / 2, size.height / 2};
    return {{middle.x - direction.x * half, middle.y - direction.y * half},
            {middle.x + direction.x * half, middle.y + direction.y * half}};
}

}  // namespace vantle
