#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/MediaLoader.h"

namespace vantle::fakes {

/// Opens the files that a test adds, and records the calls.
class FakeMediaLoader final : public MediaLoader {
public:
    void addImage(const Url& url, std::optional<Size> pixelSize, Size pointSize) {
        images_[url.path()] = {pixelSize, pointSize};
    }
    /// Adds a document of vector pages with these sizes in points.
    void addDocument(const Url& url, std::vector<Size> pages) {
        images_[url.path()] = {Size{}, pages.front(), Condition::intact, std::move(pages)};
    }
    /// Removes a file that was added.
    void remove(const Url& url) {
        images_.erase(url.path());
        recordings_.erase(url.path());
    }
    /// Adds an image that opens, but turns out to be damaged when it is drawn.
    void addDamagedImage(const Url& url, std::optional<Size> pixelSize, Size pointSize) {
        images_[url.path()] = {pixelSize, pointSize, Condition::damaged};
    }
    /// Adds a recording. Without `frameSize` no frame can be read.
    void addRecording(const Url& url, double duration, std::optional<Size> trackSize,
                      std::optional<Size> frameSize) {
        recordings_[url.path()] = {duration, trackSize, frameSize};
    }

    std::unique_ptr<ImageFile> openImage(const Url& url) override {
        const auto found = images_.find(url.path());
        if (found == images_.end()) return nullptr;
        return std::make_unique<Image>(found->second, drawnSizes);
    }
    std::unique_ptr<RecordingFile> openRecording(const Url& url) override {
        const auto found = recordings_.find(url.path());
        if (found == recordings_.end()) return nullptr;
        return std::make_unique<Recording>(found->second, frameTimes);
    }

    std::vector<Size> drawnSizes;
    std::vector<double> frameTimes;

private:
    enum class Condition { intact, damaged };
    struct ImageContents {
        std::optional<Size> pixelSize;
        Size pointSize;
        Condition condition = Condition::intact;
        std::vector<Size> pages;  ///< Of a document; otherwise empty.
    };
    struct RecordingContents {
        double duration = 0;
        std::optional<Size> trackSize;
        std::optional<Size> frameSize;
    };

    static ImagePointer blank(Size size) {
        auto image = std::make_shared<vantle::Image>();
        image->pixelsWide = static_cast<int>(size.width);
        image->pixelsHigh = static_cast<int>(size.height);
        image->size = size;
        image->rgba.resize(static_cast<std::size_t>(image->pixelsWide) *
                           static_cast<std::size_t>(image->pixelsHigh) * 4);
        return image;
    }

    class Image final : public ImageFile {
    public:
        Image(ImageContents contents, std::vector<Size>& drawnSizes)
            : contents_(std::move(contents)), drawnSizes_(drawnSizes) {}
        std::optional<Size> pixelSize() const override { return contents_.pixelSize; }
        Size pointSize() const override { return contents_.pointSize; }
        int pageCount() const override {
            return contents_.pages.empty() ? 1 : static_cast<int>(contents_.pages.size());
        }
        bool selectPage(int page) override {
            if (page < 0 || page >= pageCount()) return false;
            if (!contents_.pages.empty())
                contents_.pointSize = contents_.pages[static_cast<std::size_t>(page)];
            return true;
        }
        ImagePointer draw(Size size) override {
            drawnSizes_.push_back(size);
            return contents_.condition == Condition::intact ? blank(size) : nullptr;
        }

    private:
        ImageContents contents_;
        std::vector<Size>& drawnSizes_;
    };

    class Recording final : public RecordingFile {
    public:
        Recording(RecordingContents contents, std::vector<double>& frameTimes)
            : contents_(contents), frameTimes_(frameTimes) {}
        double duration() const override { return contents_.duration; }
        ImagePointer frame(double time, double) override {
            frameTimes_.push_back(time);
            return contents_.frameSize ? blank(*contents_.frameSize) : nullptr;
        }
        std::optional<Size> videoTrackSize() const override { return contents_.trackSize; }

    private:
        RecordingContents contents_;
        std::vector<double>& frameTimes_;
    };

    std::map<std::string, ImageContents> images_;
    std::map<std::string, RecordingContents> recordings_;
};

}  // namespace vantle::fakes
