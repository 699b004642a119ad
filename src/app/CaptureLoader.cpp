#include "app/CaptureLoader.h"

namespace vantle {

void CaptureLoader::load(const Url& file) const {
    const auto capture =
        Capture::create(file, services_.clock.now(), services_.additionalExtensions);
    if (!capture) return;
    capture->loadThumbnail(services_.media);
    show(capture);
}

void CaptureLoader::loadAgain(const CapturePointer& capture) const {
    const auto again =
        Capture::create(capture->url(), capture->date(), services_.additionalExtensions);
    again->loadThumbnail(services_.media);
    show(again->thumbnail() ? again : capture);
}

void CaptureLoader::show(const CapturePointer& capture) const {
    services_.scheduler.async([panel = panel_, capture] {
        if (const auto shown = panel.lock()) shown->show(capture);
    });
}

}  // namespace vantle
