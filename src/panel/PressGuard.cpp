#include "panel/PressGuard.h"

#include <cmath>
#include <utility>

namespace vantle {
namespace {

// The springs of the card are at rest after this time.
constexpr Seconds settling{1};

}  // namespace

bool PressGuard::isNear(const Point& a, const Point& b) const {
    return std::hypot(a.x - b.x, a.y - b.y) <= limits_.distance;
}

bool PressGuard::isSettling(Instant now) const {
    return contentChangedAt_ && now - *contentChangedAt_ < settling;
}

void PressGuard::contentChanges(Instant now, const std::optional<Point>& pointer) {
    contentChangedAt_ = now;
    pointerThen_ = pointer;
}

void PressGuard::pointerEnters(const Point& point, const Target& target, Instant now) {
    rest_ = point;
    target_ = target;
    // The window may have come to the pointer, not the pointer to the window.
    const bool hasMoved = pointerThen_ && !isNear(point, *pointerThen_);
    slidUnderAt_ = isSettling(now) && !hasMoved ? std::optional(now) : std::nullopt;
}

void PressGuard::pointerMoves(const Point& point, const Target& target) {
    target_ = target;
    // A hand that clicks is never quite still, so small movements do not count.
    if (rest_ && isNear(point, *rest_)) return;
    rest_ = point;
    slidUnderAt_.reset();
}

void PressGuard::targetBecomes(const Target& target, Instant now) {
    if (target == target_) return;
    target_ = target;
    if (isSettling(now)) slidUnderAt_ = now;
}

bool PressGuard::isSecondClickElsewhere(const Press& press) const {
    return previous_ && press.at - previous_->at < limits_.interval &&
           isNear(press.point, previous_->point) && press.target != previous_->target;
}

bool PressGuard::allowsPress(const Point& point, const Target& target, Instant now) {
    if (rest_ && isNear(point, *rest_)) targetBecomes(target, now);
    pointerMoves(point, target);
    Press press{now, point, target};
    const bool isElsewhere = isSecondClickElsewhere(press);
    const bool hasSlidUnder = slidUnderAt_ && now - *slidUnderAt_ < limits_.interval;
    previous_ = std::move(press);
    return !isElsewhere && !hasSlidUnder;
}

}  // namespace vantle
