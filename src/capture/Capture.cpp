#include "capture/Capture.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "capture/SmallPicture.h"
#include "support/Lowercase.h"

namespace vantle {
namespace {

bool contains(const auto& extensions, std::string_view extension) {
    return std::ranges::any_of(extensions, [extension](std::string_view candidate) {
        return std::ranges::equal(candidate, extension, {}, {}, lowercase);
    });
}

}  // namespace

std::optional<CaptureKind> Capture::kind(const Url& url, const CaptureExtensions& more) {
    const auto extension = url.pathExtension();
    if (contains(imageExtensions, extension) || contains(more.image, extension))
        return CaptureKind::image;
    if (contains(videoExtensions, extension) || contains(more.video, extension))
        return CaptureKind::video;
    return std::nullopt;
}

std::shared_ptr<Capture> Capture::create(const Url& url, Date date, const CaptureExtensions& more) {
    const auto kind = Capture::kind(url, more);
    if (!kind) return nullptr;
    return std::shared_ptr<Capture>(new Capture(url, date, *kind));
}

std::vector<Url> urlsOf(const std::vector<CapturePointer>& captures) {
    std::vector<Url> urls;
    urls.reserve(captures.size());
    for (const auto& capture : captures) urls.push_back(capture->url());
    return urls;
}

Capture::Capture(Url url, Date date, CaptureKind kind)
    : id_(UUID::random()), url_(std::move(url)), date_(date), kind_(kind) {}

void Capture::loadThumbnail(MediaLoader& media, double maximumDimension) {
    switch (kind_) {
        case CaptureKind::image:
            loadImage(media, maximumDimension);
            break;
        case CaptureKind::video:
            loadRecording(media, maximumDimension);
            break;
    }
}

std::shared_ptr<const Capture> Capture::withSmallThumbnail(int pixelsWide, int pixelsHigh) const {
    const std::shared_ptr<Capture> copy(new Capture(*this));
    if (thumbnail_) copy->thumbnail_ = smallPicture(thumbnail_, pixelsWide, pixelsHigh);
    return copy;
}

std::shared_ptr<const Capture> Capture::renamed(const Url& url) const {
    const std::shared_ptr<Capture> copy(new Capture(*this));
    copy->url_ = url;
    return copy;
}

void Capture::loadImage(MediaLoader& media, double maximumDimension) {
    const auto file = media.openImage(url_);
    if (!file) return;
    const auto pixels = file->pixelSize();
    if (!pixels) return;
    const Size points = file->pointSize();
    const double scale = maximumDimension / std::max(points.width, points.height);
    const auto drawn = scale >= 1.0 ? file->draw(points)
                                    : file->draw({points.width * scale, points.height * scale});
    // A damaged file fails only here, so nothing is stored before.
    if (!drawn) return;
    thumbnail_ = drawn;
    const bool isVector = pixels->width == 0 && pixels->height == 0;
    pixelSize_ = isVector ? points : *pixels;
}

void Capture::loadRecording(MediaLoader& media, double maximumDimension) {
    const auto file = media.openRecording(url_);
    if (!file) return;
    duration_ = file->duration();
    // The poster is at half a second, or in the middle of a recording shorter than one second, but
    // never before the beginning.
    const double posterTime = std::min(std::max(duration_ * 0.5, 0.0), 0.5);
    const auto frame = file->frame(posterTime, maximumDimension);
    if (!frame) return;
    thumbnail_ = frame;
    pixelSize_ = file->videoTrackSize().value_or(frame->size);
}

}  // namespace vantle
