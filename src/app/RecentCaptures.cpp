#include "app/RecentCaptures.h"

#include <algorithm>
#include <utility>

#include "app/StatusBarController.h"

namespace vantle {
namespace {

/// Pixels per point in the menu on the densest screens.
constexpr int pixelsPerPoint = 3;
constexpr int pixelsWide =
    static_cast<int>(StatusBarController::thumbnailSize.width) * pixelsPerPoint;
constexpr int pixelsHigh =
    static_cast<int>(StatusBarController::thumbnailSize.height) * pixelsPerPoint;

}  // namespace

RecentCaptures::RecentCaptures(const Services& services, CaptureLoader loader)
    : services_(services), loader_(std::move(loader)) {}

void RecentCaptures::add(const CapturePointer& capture) {
    std::erase_if(captures_, [&](const auto& earlier) { return *earlier == *capture; });
    captures_.insert(captures_.begin(), capture->withSmallThumbnail(pixelsWide, pixelsHigh));
    if (captures_.size() > maximum) captures_.pop_back();
}

void RecentCaptures::renamed(const Url& from, const Url& to) {
    for (CapturePointer& capture : captures_)
        if (capture->url() == from) capture = capture->renamed(to);
}

void RecentCaptures::show(const CapturePointer& recent) const {
    const auto& shown = services_.panel.state().captures.value();
    const auto isSameCapture = [&recent](const auto& capture) { return *capture == *recent; };
    if (const auto found = std::ranges::find_if(shown, isSameCapture); found != shown.end())
        services_.panel.show(CapturePointer(*found));
    else
        services_.queue.async([loader = loader_, recent] { loader.loadAgain(recent); });
}

}  // namespace vantle
