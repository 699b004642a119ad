#include "panel/DepartedCaptures.h"

#include <cstddef>
#include <utility>

#include "support/Weakly.h"

namespace vantle {
namespace {

// A slip is usually noticed at once; later, whole thumbnails would cost more than loading them.
constexpr Seconds shrinkDelay{10};

}  // namespace

std::shared_ptr<DepartedCaptures> DepartedCaptures::create(Services services) {
    return std::shared_ptr<DepartedCaptures>(new DepartedCaptures(std::move(services)));
}

void DepartedCaptures::remember(const Captures& captures) {
    if (captures.empty()) return;
    const auto& state = services_.state;
    Departure departure{.card = urlsOf(state.captures.value()), .time = services_.scheduler.now()};
    for (const auto& capture : captures)
        departure.captures.push_back({capture, state.pinned.value().contains(capture->id())});
    departures_.add(std::move(departure));
    onChange();
    if (shrinkWork_) shrinkWork_->cancel();
    shrinkWork_ = services_.scheduler.after(
        shrinkDelay, weakly(shared_from_this(), [](auto& self) { self.shrinkThumbnails(); }));
}

void DepartedCaptures::captureAppeared(const Capture& capture) {
    departures_.captureAppeared(capture);
    onChange();
}

std::optional<Instant> DepartedCaptures::latest() const {
    return departures_.latest(services_.scheduler.now());
}

void DepartedCaptures::bringBackLatest() {
    if (const auto departure = departures_.takeLatest(services_.scheduler.now()))
        bringBack(*departure);
}

void DepartedCaptures::bringBackAll() {
    while (latest()) bringBackLatest();
}

void DepartedCaptures::bringBack(const Departure& departure) {
    onChange();
    Captures captures;
    for (const auto& departed : departure.captures) captures.push_back(departed.capture);
    if (departure.areThumbnailsWhole)
        show(departure, captures);
    else
        services_.reload(std::move(captures),
                         weakly(shared_from_this(), [departure](auto& self, const auto& loaded) {
                             self.show(departure, loaded);
                         }));
}

void DepartedCaptures::show(const Departure& departure, const Captures& loaded) {
    onReturn(loaded, departure.card);
    auto pinned = services_.state.pinned.value();
    for (std::size_t i = 0; i < loaded.size(); ++i)
        if (departure.captures[i].wasPinned) pinned.insert(loaded[i]->id());
    services_.state.pinned.set(std::move(pinned));
}

void DepartedCaptures::shrinkThumbnails() {
    if (shrinkWork_) shrinkWork_->cancel();
    departures_.shrinkThumbnails();
}

}  // namespace vantle
