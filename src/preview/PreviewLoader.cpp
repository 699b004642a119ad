#include "preview/PreviewLoader.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantle {
namespace {

// As for a thumbnail: the beginning of a recording is often black.
constexpr double posterTime = 0.5;

}  // namespace

/// The part of the loader that lives on the queue. Only `latest` is shared with the main thread.
class PreviewLoader::Background {
public:
    explicit Background(const Services& services)
        : makeMedia_(services.makeMedia), files_(services.files) {}

    std::atomic<int> latest{0};

    std::optional<Loaded> load(const Request& request) {
        if (!media_) media_ = makeMedia_();
        auto loaded =
            request.kind == CaptureKind::image ? loadImage(request) : loadRecording(request);
        if (loaded) loaded->bytes = files_.fileSize(request.file);
        return loaded;
    }

    /// Frees the file and the loader, whose decoder ends with it.
    void close() {
        image_.reset();
        media_.reset();
    }

private:
    /// Keeps the file open, because the next request is often about another size or page of it.
    ImageFile* open(const Url& file) {
        if (image_ && file_ == file) return image_.get();
        image_ = media_->openImage(file);
        file_ = file;
        return image_.get();
    }

    std::optional<Loaded> loadImage(const Request& request) {
        ImageFile* image = open(request.file);
        if (!image || !image->selectPage(request.page)) return std::nullopt;
        const Size pixels = image->pixelSize().value_or(Size{});
        const Size points = image->pointSize();
        const bool isVector = pixels == Size{};
        auto drawn = image->draw(request.target(pixels, points));
        if (!drawn) return std::nullopt;
        return Loaded{
            std::move(drawn), isVector ? points : pixels, isVector, image->pageCount(), {}};
    }

    std::optional<Loaded> loadRecording(const Request& request) {
        image_.reset();
        const auto recording = media_->openRecording(request.file);
        if (!recording) return std::nullopt;
        const Size track = recording->videoTrackSize().value_or(Size{});
        const Size target = request.target(track, track);
        const double middle = recording->duration() / 2;
        const double time = middle < posterTime ? middle : posterTime;
        auto frame = recording->frame(time, std::max(target.width, target.height));
        if (!frame) return std::nullopt;
        return Loaded{frame, track == Size{} ? frame->size : track, false, 1, {}};
    }

    const std::function<std::unique_ptr<MediaLoader>()> makeMedia_;
    const FileManager& files_;
    std::unique_ptr<MediaLoader> media_;
    std::unique_ptr<ImageFile> image_;
    Url file_;
};

PreviewLoader::PreviewLoader(const Services& services)
    : services_(services), background_(std::make_shared<Background>(services)) {}

PreviewLoader::~PreviewLoader() {
    cancel();
}

void PreviewLoader::load(Request request, Completion completion) {
    const int number = ++background_->latest;
    services_.queue.async([background = background_, &main = services_.main, number,
                           request = std::move(request), completion = std::move(completion)] {
        if (background->latest != number) return;
        main.async([background, number, completion, loaded = background->load(request)] {
            if (background->latest == number) completion(loaded);
        });
    });
}

void PreviewLoader::cancel() {
    const int number = ++background_->latest;
    services_.queue.async([background = background_, number] {
        // If a request follows at once, it can go on with the open file.
        if (background->latest == number) background->close();
    });
}

}  // namespace vantle
