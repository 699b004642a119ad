#include <algorithm>
#include <cmath>

#include "decoder/formats/MediaFile.h"
#include "decoder/formats/recording/Demuxer.h"
#include "decoder/formats/recording/FrameDecoder.h"
#include "decoder/formats/recording/FramePicture.h"

namespace vantle::decoder {
namespace {

/// Returns `size`, shrunk if necessary so that neither side exceeds `maximumDimension`.
PixelSize fitting(Size size, double maximumDimension) {
    const double scale = std::min(1.0, maximumDimension / std::max(size.width, size.height));
    const auto side = [=](double length) {
        return static_cast<int>(std::clamp(std::round(length * scale), 1.0, maximumDimension));
    };
    return {side(size.width), side(size.height)};
}

class FileRecording final : public Recording {
public:
    explicit FileRecording(std::unique_ptr<Demuxer> demuxer) : demuxer_(std::move(demuxer)) {}

    double duration() const override { return demuxer_->duration(); }

    std::optional<Size> videoTrackSize() const override {
        const AVStream* track = demuxer_->videoTrack();
        return track ? std::optional(Demuxer::naturalSize(*track)) : std::nullopt;
    }

    std::optional<Picture> frame(double time, double maximumDimension) override {
        AVStream* track = demuxer_->pictureTrack();
        if (!track || !(maximumDimension >= 1)) return std::nullopt;
        const Frame frame = decodeFrame(*demuxer_, *track, time);
        if (!frame) return std::nullopt;
        const Orientation orientation = Demuxer::orientation(*track);
        const PixelSize target = fitting(Demuxer::naturalSize(*track), maximumDimension);
        auto picture = pictureOf(*frame, swappedIfTurned(target, orientation));
        if (!picture) return std::nullopt;
        return upright(std::move(*picture), orientation);
    }

private:
    const std::unique_ptr<Demuxer> demuxer_;
};

std::unique_ptr<Recording> openRecording(const InputFile& file) {
    auto demuxer = Demuxer::open(file);
    if (!demuxer) return nullptr;
    return std::make_unique<FileRecording>(std::move(demuxer));
}

std::vector<std::string> prepare() {
    av_log_set_level(AV_LOG_QUIET);
    return {};
}

}  // namespace
}  // namespace vantle::decoder

VANTLE_FORMAT_MODULE(.prepare = vantle::decoder::prepare,
                     .openRecording = vantle::decoder::openRecording)
