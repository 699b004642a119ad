#pragma once

#include <functional>

#include "platform/MediaLoader.h"
#include "platform/qt/DensestScreen.h"

namespace vantle {

/// PNG, JPEG and GIF (its first frame) through Qt's readers, told apart by their contents. Any
/// other file cannot be opened: a recording needs a demuxer, which this backend does not have.
class QtMediaLoader final : public MediaLoader {
public:
    /// `pixelsPerPoint` tells what the densest screen has; it is called where images are drawn.
    explicit QtMediaLoader(std::function<double()> pixelsPerPoint = densestScreen());

    std::unique_ptr<ImageFile> openImage(const Url& url) override;
    std::unique_ptr<RecordingFile> openRecording(const Url& url) override;

private:
    std::function<double()> pixelsPerPoint_;
};

}  // namespace vantle
