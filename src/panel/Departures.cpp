#include "panel/Departures.h"

#include <algorithm>
#include <utility>

namespace vantle {
namespace {

/// Enough to show a capture whose file is gone, as the tray's menu shows it.
constexpr int smallPixelsWide = 108;
constexpr int smallPixelsHigh = 72;

}  // namespace

void Departures::add(Departure departure) {
    if (departure.captures.empty()) return;
    std::erase_if(departures_,
                  [&](const Departure& old) { return departure.time - old.time >= memory; });
    departures_.push_back(std::move(departure));
}

void Departures::captureAppeared(const Capture& capture) {
    if (!newest_ || capture.date() > *newest_) {
        newest_ = capture.date();
        departures_.clear();
        return;
    }
    for (Departure& departure : departures_)
        std::erase_if(departure.captures,
                      [&](const Departed& departed) { return *departed.capture == capture; });
    std::erase_if(departures_,
                  [](const Departure& departure) { return departure.captures.empty(); });
}

void Departures::shrinkThumbnails() {
    for (Departure& departure : departures_) {
        if (!std::exchange(departure.areThumbnailsWhole, false)) continue;
        for (Departed& departed : departure.captures)
            departed.capture =
                departed.capture->withSmallThumbnail(smallPixelsWide, smallPixelsHigh);
    }
}

std::optional<Instant> Departures::latest(Instant now) const {
    if (departures_.empty() || now - departures_.back().time >= memory) return std::nullopt;
    return departures_.back().time;
}

std::optional<Departure> Departures::takeLatest(Instant now) {
    if (!latest(now)) return std::nullopt;
    Departure taken = std::move(departures_.back());
    departures_.pop_back();
    return taken;
}

std::vector<CapturePointer> withReturned(std::vector<CapturePointer> shown,
                                         const std::vector<CapturePointer>& returning,
                                         const std::vector<Url>& order) {
    // A capture that came later is not in the order and stays behind all others.
    const auto rank = [&order](const CapturePointer& capture) {
        return std::ranges::find(order, capture->url()) - order.begin();
    };
    for (const auto& capture : returning) {
        const auto isSame = [&](const CapturePointer& other) { return *other == *capture; };
        if (std::ranges::any_of(shown, isSame)) continue;
        const auto isLater = [&](const CapturePointer& other) {
            return rank(other) > rank(capture);
        };
        shown.insert(std::ranges::find_if(shown, isLater), capture);
    }
    return shown;
}

}  // namespace vantle
