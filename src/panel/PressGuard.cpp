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

void PressGuard::contentChanged(Instant now, const std::optional<Point>& pointer) {
    contentChangedAt_ = now;
    pointerAtChange_ = pointer;
}

void PressGuard::pointerEntered(const Point& point, const Target& target, Instant now) {
    restPoint_ = point;
    target_ = target;
    // The window may have come to the pointer, not the pointer to the window.
    const bool hasMoved = pointerAtChange_ && !isNear(point, *pointerAtChange_);
    targetMovedAt_ = isSettling(now) && !hasMoved ? std::optional(now) : std::nullopt;
}

void PressGuard::pointerMoved(const Point& point, const Target& target) {
    target_ = target;
    // A hand that clicks is never quite still, so small movements do not count.
    if (restPoint_ && isNear(point, *restPoint_)) return;
    restPoint_ = point;
    targetMovedAt_.reset();
}

void PressGuard::targetChanged(const Target& target, Instant now) {
    if (target == target_) return;
    target_ = target;
    if (isSettling(now)) targetMovedAt_ = now;
}

bool PressGuard::isSecondClickOnOtherTarget(const Press& press) const {
    return previous_ && press.at - previous_->at < limits_.interval &&
           isNear(press.point, previous_->point) && press.target != previous_->target;
}

bool PressGuard::allowsPress(const Point& point, const Target& target, Instant now) {
    if (restPoint_ && isNear(point, *restPoint_)) targetChanged(target, now);
    pointerMoved(point, target);
    Press press{now, point, target};
    const bool isElsewhere = isSecondClickOnOtherTarget(press);
    const bool hasSlidUnder = targetMovedAt_ && now - *targetMovedAt_ < limits_.interval;
    previous_ = std::move(press);
    return !isElsewhere && !hasSlidUnder;
}

}  // namespace vantle
