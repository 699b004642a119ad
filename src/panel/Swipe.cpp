#include "panel/Swipe.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantle {
namespace {

// A direction is clear after the first distance if one axis prevails, and in any case after the
// second.
constexpr double clearWay = 8;
constexpr double longestUnclearWay = 24;
constexpr double prevailing = 1.5;

// Past this way a gesture dismisses, unless the fingers turn back; a fast one needs only the
// shorter way.
constexpr double cardWay = 100;
constexpr double tileWay = 60;
constexpr double fastWay = 24;
constexpr double fast = 500;          // points a second
constexpr double turningBack = -100;  // points a second

// The farthest that something follows the fingers, however far they go.
constexpr double cardReach = 240;
constexpr double tileReach = 120;
constexpr double stretchedReach = 24;

constexpr Seconds silence{0.15};
// Fingers may rest, but a card must not stay half swiped if the end of a gesture never arrives.
constexpr Seconds longestRest{3};
// No hand lifts its fingers and puts them down again within this time.
constexpr Seconds momentumGap{0.1};

/// Returns how far something follows: exactly at first, and ever less, up to `reach`.
double resisted(double way, double reach) {
    return std::copysign(reach * (1 - std::exp(-std::abs(way) / reach)), way);
}

/// Returns the part of the fingers' speed that the resistance leaves.
double slope(double way, double reach) {
    return std::exp(-std::abs(way) / reach);
}

}  // namespace

Seconds Swipe::patience() const {
    return phase_ == Phase::unknown ? silence : longestRest;
}

Swipe::Decision Swipe::step(const Step& step, const Ground& ground) {
    if (step.phase == Phase::ends) return finish(step.at);
    if (step.phase == Phase::coasts)
        return hasDismissed_ || isUnderWay() || !ground.rowOverflows ? Decision{}
                                                                     : scroll(step.delta);
    if (step.phase == Phase::begins) {
        // The end of the gesture before may have been lost.
        const Decision last = cancel();
        begin(step, ground);
        if (last.action != Action::none) return last;
    } else if (!isUnderWay()) {
        begin(step, ground);
    }
    movement_.moveBy(step.delta, step.at);
    switch (state_) {
        case State::undecided:
            return lock();
        case State::idle:
        case State::spent:
            return {};
        default:
            return follow(step.delta);
    }
}

void Swipe::begin(const Step& step, const Ground& ground) {
    const bool isMomentum = hasDismissed_ && step.at - endedAt_ < momentumGap;
    state_ = isMomentum ? State::spent : State::undecided;
    phase_ = step.phase;
    ground_ = ground;
    movement_.begin(step.at);
}

Swipe::Decision Swipe::lock() {
    const Point moved = movement_.distance();
    const double across = std::abs(moved.x);
    const double along = std::abs(moved.y);
    const double farthest = std::hypot(across, along);
    const bool isClear = std::max(across, along) >= prevailing * std::min(across, along);
    if (farthest < (isClear ? clearWay : longestUnclearWay)) return {};

    isSideways_ = across >= along;
    const bool isTowardsEdge = moved.x * directionTo(ground_.nearEdge) > 0;
    if (isSideways_ && ground_.rowOverflows && (!isTowardsEdge || ground_.rowCanFollow))
        state_ = State::scrolling;
    else if (isSideways_)
        state_ = isTowardsEdge ? State::card : State::stretched;
    else if (!ground_.tile.empty())
        state_ = State::tile;
    else
        state_ = ground_.rowOverflows ? State::scrolling : State::spent;
    return state_ == State::spent ? Decision{} : follow(moved);
}

double Swipe::direction() const {
    if (state_ == State::tile) return movement_.distance().y < 0 ? -1 : 1;
    return directionTo(ground_.nearEdge);
}

double Swipe::way() const {
    const Point moved = movement_.distance();
    return (state_ == State::tile ? moved.y : moved.x) * direction();
}

Swipe::Decision Swipe::follow(const Point& delta) const {
    if (state_ == State::scrolling) return scroll(delta);
    if (state_ == State::tile)
        return {.action = Action::moveTile,
                .offset = direction() * resisted(way(), tileReach),
                .tile = ground_.tile};
    // A gesture that began the other way only stretches, even after it has turned.
    const double shown = state_ == State::stretched ? std::min(way(), 0.0) : way();
    const double reach = shown < 0 ? stretchedReach : cardReach;
    return {.action = Action::moveCard, .offset = direction() * resisted(shown, reach)};
}

Swipe::Decision Swipe::scroll(const Point& delta) const {
    const bool isUnderWay = state_ == State::scrolling;
    const bool usesX = isUnderWay ? isSideways_ : delta.x != 0;
    return {.action = Action::scrollRow, .offset = usesX ? delta.x : delta.y};
}

Swipe::Decision Swipe::finish(Instant now) {
    if (!isUnderWay()) return {};
    const Point speed = movement_.velocity(now);
    const double velocity = state_ == State::tile ? speed.y : speed.x;
    const double towards = velocity * direction();
    const double farEnough = state_ == State::tile ? tileWay : cardWay;
    const bool isFast = way() >= fastWay && towards >= fast;
    const bool isFar = way() >= farEnough && towards > turningBack;
    const bool canDismiss = state_ == State::card || state_ == State::tile;
    const Decision decision =
        canDismiss && (isFast || isFar) ? dismiss(velocity) : release(velocity);
    if (state_ != State::spent)
        hasDismissed_ =
            decision.action == Action::dismissCard || decision.action == Action::dismissTile;
    endedAt_ = now;
    state_ = State::idle;
    return decision;
}

Swipe::Decision Swipe::release(double velocity) const {
    switch (state_) {
        case State::card:
            return {.action = Action::releaseCard,
                    .velocity = velocity * slope(way(), way() < 0 ? stretchedReach : cardReach)};
        case State::stretched:
            return {.action = Action::releaseCard};
        case State::tile:
            return {.action = Action::releaseTile,
                    .velocity = velocity * slope(way(), tileReach),
                    .tile = ground_.tile};
        default:
            return {};
    }
}

Swipe::Decision Swipe::dismiss(double velocity) const {
    if (state_ == State::card) return {.action = Action::dismissCard, .velocity = velocity};
    return {.action = Action::dismissTile,
            .offset = direction() * tileReach,
            .velocity = velocity,
            .tile = ground_.tile};
}

Swipe::Decision Swipe::fallSilent() {
    // Fingers that only rest are still on the touchpad.
    return phase_ == Phase::unknown ? finish(movement_.latest()) : cancel();
}

Swipe::Decision Swipe::cancel() {
    if (!isUnderWay()) return {};
    const Decision decision = release(0);
    // Without phases nothing tells where the rest of the gesture ends, so the next silence does.
    state_ = State::spent;
    return decision;
}

}  // namespace vantle
