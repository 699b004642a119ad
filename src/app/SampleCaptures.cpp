#include "app/SampleCaptures.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>

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

/// Returns nothing if the sample could not be drawn or written.
std::optional<Url> writeSample(FileManager& files, const Canvas::Drawer& draw,
                               const std::string& name) {
    const auto folder = files.temporaryDirectory();
    if (!folder) return std::nullopt;
    const auto png = draw();
    const Url url = folder.value().appending(name);
    if (!png || files.write(png.value(), url)) return std::nullopt;
    return url;
}

}  // namespace

SampleCaptures::SampleCaptures(const Services& services, CaptureLoader loader)
    : services_(services), loader_(std::move(loader)) {}

void SampleCaptures::show() const {
    // Drawn on the queue, because drawing would block the main thread.
    const auto drawFirst = services_.canvas.drawer(firstSample());
    const auto drawSecond = services_.canvas.drawer(secondSample());
    services_.queue.async([&files = services_.files, loader = loader_, drawFirst] {
        if (const auto url = writeSample(files, drawFirst, firstName)) loader.load(*url);
    });
    const auto second = std::make_shared<std::optional<Url>>();
    services_.queue.async([&files = services_.files, second, drawSecond] {
        *second = writeSample(files, drawSecond, secondName);
    });
    services_.scheduler.after(secondSampleDelay,
                              [&queue = services_.queue, loader = loader_, second] {
                                  queue.async([loader, second] {
                                      if (*second) loader.load(**second);
                                  });
                              });
}

}  // namespace vantle
