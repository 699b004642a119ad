#include "app/CaptureLoader.h"

#include <utility>

namespace vantle {

void CaptureLoader::load(const Url& file) const {
    const auto capture =
        Capture::create(file, services_.clock.now(), services_.additionalExtensions);
    if (!capture) return;
    capture->loadThumbnail(services_.media);
    show(capture);
}

void CaptureLoader::loadAgain(const CapturePointer& capture) const {
    show(reloaded(capture));
}

CapturePointer CaptureLoader::reloaded(const CapturePointer& capture) const {
    const auto again =
        Capture::create(capture->url(), capture->date(), services_.additionalExtensions);
    again->loadThumbnail(services_.media);
    return again->thumbnail() ? again : capture;
}

void CaptureLoader::reload(const std::vector<CapturePointer>& captures,
                           std::function<void(const std::vector<CapturePointer>&)> loaded) const {
    std::vector<CapturePointer> again;
    for (const auto& capture : captures) again.push_back(reloaded(capture));
    services_.scheduler.async(
        [again = std::move(again), loaded = std::move(loaded)] { loaded(again); });
}

void CaptureLoader::show(const CapturePointer& capture) const {
    services_.scheduler.async([panel = panel_, capture] {
        if (const auto shown = panel.lock()) shown->show(capture);
    });
}

}  // namespace vantle
