#include "panel/PreviewKeyRule.h"

#include <cmath>
#include <utility>

namespace vantle {

PreviewKeyRule::PreviewKeyRule(Scheduler& scheduler, std::function<void(bool)> onChange)
    : scheduler_(scheduler), onChange_(std::move(onChange)) {}

PreviewKeyRule::~PreviewKeyRule() {
    if (rest_) rest_->cancel();
}

void PreviewKeyRule::tileChanged(const Tile& tile) {
    if (tile == tile_) return;
    tile_ = tile;
    const bool wasReached = movedAt_ && scheduler_.now() - *movedAt_ <= arrivalTime;
    if (!wasReached) movedAt_.reset();
    update();
}

void PreviewKeyRule::pointerEntered(const Point& place) {
    place_ = place;
}

void PreviewKeyRule::pointerMoved(const Point& place) {
    if (!place_) return pointerEntered(place);
    if (std::hypot(place.x - place_->x, place.y - place_->y) < minimumDistance) return;
    place_ = place;
    movedAt_ = scheduler_.now();
    update();
}

void PreviewKeyRule::interrupted() {
    movedAt_.reset();
    update();
}

void PreviewKeyRule::setHasKeyboard(bool hasKeyboard) {
    hasKeyboard_ = hasKeyboard;
    interrupted();
}

PreviewKeyRule::Tile PreviewKeyRule::press() {
    if (!isTaken_) return {};
    interrupted();
    return tile_;
}

bool PreviewKeyRule::isRecent() const {
    return movedAt_ && scheduler_.now() - *movedAt_ < validity;
}

void PreviewKeyRule::update() {
    const bool isWanted = !tile_.empty() && !hasKeyboard_ && isRecent();
    if (isWanted) waitForRest();
    if (!isWanted && rest_) rest_->cancel();
    if (isWanted != std::exchange(isTaken_, isWanted)) onChange_(isWanted);
}

void PreviewKeyRule::waitForRest() {
    // Not started again by each movement: the timer looks for itself how long the pointer rests.
    if (rest_ && rest_->isValid()) return;
    rest_ = scheduler_.after(*movedAt_ + validity - scheduler_.now(), [this] { update(); });
}

}  // namespace vantle
