#include "panel/Movement.h"

#include <algorithm>

namespace vantle {
namespace {

constexpr Seconds window{0.1};
// Events that arrive together would otherwise look infinitely fast.
constexpr Seconds shortestSpan{0.02};

}  // namespace

void Movement::begin(Instant now) {
    samples_.assign(1, {now, {}});
}

void Movement::moveBy(const Point& delta, Instant now) {
    if (samples_.empty()) begin(now);
    const Point from = distance();
    // One sample from before the window stays, because the first movement inside it began there.
    while (samples_.size() > 1 && samples_[1].at <= now - window) samples_.erase(samples_.begin());
    samples_.push_back({now, {from.x + delta.x, from.y + delta.y}});
}

Point Movement::velocity(Instant now) const {
    if (samples_.empty()) return {};
    const auto isRecent = [&](const Sample& sample) { return sample.at > now - window; };
    const auto recent = std::ranges::find_if(samples_, isRecent);
    const Sample& from = recent == samples_.begin() ? *recent : *(recent - 1);
    const Seconds span = std::max(std::min(now - from.at, window), shortestSpan);
    const Point to = distance();
    return {(to.x - from.place.x) / span.count(), (to.y - from.place.y) / span.count()};
}

}  // namespace vantle
