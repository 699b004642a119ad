// Two pictures that show what the panel does without a screenshot having been taken.

#include "app/AppDelegate.h"
#include "support/Localization.h"

namespace vantle {
namespace {

constexpr Seconds secondSampleDelay{1.6};

constexpr auto firstName = "Vantle Sample.png";
constexpr auto secondName = "Vantle Sample 2.png";

Drawing firstSample() {
    return {{1600, 1000},
            {{0.36, 0.45, 0.98, 1.0}, {0.86, 0.40, 0.80, 1.0}, -30},
            CenteredText{localized("AppDelegate", "Sample screenshot"), 110}};
}

Drawing secondSample() {
    return {{900, 1200}, {{0.98, 0.62, 0.30, 1.0}, {0.95, 0.30, 0.50, 1.0}, -60}, std::nullopt};
}

/// Absent when it could not be drawn or written.
std::optional<Url> writeSample(const Platform& platform, const Canvas::Drawer& draw,
                               const std::string& name) {
    const auto folder = platform.files->temporaryDirectory();
    if (!folder) return std::nullopt;
    const auto png = draw();
    const Url url = folder.value().appending(name);
    if (!png || platform.files->write(png.value(), url)) return std::nullopt;
    return url;
}

}  // namespace

void AppDelegate::showDemo() {
    // Drawn on the queue: the main thread would stand still for as long.
    const auto loadAndShow = loader();
    const auto drawFirst = platform_.canvas->drawer(firstSample());
    const auto drawSecond = platform_.canvas->drawer(secondSample());
    platform_.watcherQueue->async([&platform = platform_, loadAndShow, drawFirst] {
        if (const auto url = writeSample(platform, drawFirst, firstName)) loadAndShow(*url);
    });
    const auto second = std::make_shared<std::optional<Url>>();
    platform_.watcherQueue->async([&platform = platform_, second, drawSecond] {
        *second = writeSample(platform, drawSecond, secondName);
    });
    platform_.scheduler->after(secondSampleDelay, [&platform = platform_, loadAndShow, second] {
        platform.watcherQueue->async([loadAndShow, second] {
            if (*second) loadAndShow(**second);
        });
    });
}

std::function<void(const Url&)> AppDelegate::loader() {
    return [&platform = platform_, weak = weak_from_this()](const Url& url) {
        const auto capture = Capture::create(url, platform.clock->now(), platform.moreExtensions);
        if (!capture) return;
        capture->loadThumbnail(*platform.media);
        platform.scheduler->async([weak, capture] {
            if (const auto delegate = weak.lock()) delegate->panel_->show(capture);
        });
    };
}

}  // namespace vantle
