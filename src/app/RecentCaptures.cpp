// The list of recent captures, and bringing one of them back.

#include <algorithm>

#include "app/AppDelegate.h"

namespace vantle {
namespace {

/// In the menu; on the densest screens three pixels make a point.
constexpr int pixelsPerPoint = 3;
constexpr int pixelsWide =
    static_cast<int>(StatusBarController::thumbnailSize.width) * pixelsPerPoint;
constexpr int pixelsHigh =
    static_cast<int>(StatusBarController::thumbnailSize.height) * pixelsPerPoint;

}  // namespace

void AppDelegate::remember(const CapturePointer& capture) {
    std::erase_if(recent_, [&](const auto& earlier) { return *earlier == *capture; });
    recent_.insert(recent_.begin(), capture->withSmallThumbnail(pixelsWide, pixelsHigh));
    if (recent_.size() > maximumRecent) recent_.pop_back();
    statusBar_.recentChanged();
}

void AppDelegate::showAgain(const CapturePointer& recent) {
    const auto& shown = panel_->state().captures.value();
    const auto isThat = [&recent](const auto& capture) { return *capture == *recent; };
    if (const auto found = std::ranges::find_if(shown, isThat); found != shown.end()) {
        panel_->show(CapturePointer(*found));
        return;
    }
    platform_.watcherQueue->async([&platform = platform_, weak = weak_from_this(), recent] {
        const auto again = Capture::create(recent->url(), recent->date(), platform.moreExtensions);
        again->loadThumbnail(*platform.media);
        // Of a file that is gone the small picture is what is left.
        const CapturePointer best = again->thumbnail() ? again : recent;
        platform.scheduler->async([weak, best] {
            if (const auto delegate = weak.lock()) delegate->panel_->show(best);
        });
    });
}

}  // namespace vantle
