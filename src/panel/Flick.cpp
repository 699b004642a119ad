#include "panel/Flick.h"

#include <cmath>

namespace vantle {
namespace {

// A flick goes at least this many times as far sideways as up or down.
constexpr double sidewaysRatio = 3;
constexpr double shortestWay = 40;  // points
constexpr double slowest = 700;     // points a second

}  // namespace

Flick::Flick(const Point& point, ScreenSide nearEdge, Instant now)
    : place_(point), towardsEdge_(directionTo(nearEdge)), start_(now) {
    movement_.begin(now);
}

void Flick::move(const Point& point, Instant now) {
    movement_.moveBy({point.x - place_.x, point.y - place_.y}, now);
    place_ = point;
    (void)isPossible(now);
}

bool Flick::isPossible(Instant now) {
    const Point way = movement_.distance();
    const bool isSideways = way.x * towardsEdge_ >= sidewaysRatio * std::abs(way.y);
    if (!isSideways || now - start_ > longest) isPossible_ = false;
    return isPossible_;
}

std::optional<double> Flick::release(Instant now) {
    const double speed = movement_.velocity(now).x;
    const bool isFar = movement_.distance().x * towardsEdge_ >= shortestWay;
    if (!isPossible(now) || !isFar || speed * towardsEdge_ < slowest) return std::nullopt;
    return speed;
}

}  // namespace vantle
