#pragma once

#include "platform/MediaLoader.h"

namespace vantle {

/// PNG and JPEG through Qt's readers. Any other file cannot be opened: a recording needs a demuxer,
/// which this backend does not have.
class QtMediaLoader final : public MediaLoader {
public:
    /// How many pixels the densest screen has for a point. Any thread.
    explicit QtMediaLoader(double pixelsPerPoint);

    std::unique_ptr<ImageFile> openImage(const Url& url) override;
    std::unique_ptr<RecordingFile> openRecording(const Url& url) override;

private:
    double pixelsPerPoint_;
};

}  // namespace vantle
