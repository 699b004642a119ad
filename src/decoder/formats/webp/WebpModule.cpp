#include <webp/decode.h>
#include <webp/demux.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <span>
#include <string_view>

#include "decoder/color/ColorProfile.h"
#include "decoder/formats/Exif.h"
#include "decoder/formats/Limits.h"
#include "decoder/formats/MappedFile.h"
#include "decoder/formats/MediaFile.h"
#include "decoder/formats/ThreadedReduction.h"

namespace vantle::decoder {
namespace {

struct DemuxerDeleter {
    void operator()(WebPDemuxer* demuxer) const { WebPDemuxDelete(demuxer); }
};
using Demuxer = std::unique_ptr<WebPDemuxer, DemuxerDeleter>;

/// Returns the data of the chunk with this four-letter name; empty if there is none.
std::vector<std::uint8_t> chunk(const WebPDemuxer* demuxer, const char* name) {
    WebPChunkIterator found{};
    if (WebPDemuxGetChunk(demuxer, name, 1, &found) == 0) return {};
    std::vector<std::uint8_t> data(found.chunk.bytes, found.chunk.bytes + found.chunk.size);
    WebPDemuxReleaseChunkIterator(&found);
    return data;
}

Exif exifIn(std::span<const std::uint8_t> data) {
    using namespace std::string_view_literals;
    // Some programs write the prefix that a JPEG file has.
    constexpr auto start = "Exif\0\0"sv;
    return readExif(text(data).starts_with(start) ? data.subspan(start.size()) : data);
}

/// The decoded rows of a frame.
struct Rows {
    PixelSize size;
    std::size_t rowSize;
    std::vector<std::uint8_t> bytes;

    const std::uint8_t* row(int y) const {
        return bytes.data() + rowSize * static_cast<std::size_t>(y);
    }
};

/// The first frame of a file; a still picture has no other.
class Frame {
public:
    explicit Frame(const WebPDemuxer* demuxer) {
        isThere_ = WebPDemuxGetFrame(demuxer, 1, &frame_) != 0;
        canvas_ = {static_cast<int>(WebPDemuxGetI(demuxer, WEBP_FF_CANVAS_WIDTH)),
                   static_cast<int>(WebPDemuxGetI(demuxer, WEBP_FF_CANVAS_HEIGHT))};
    }
    ~Frame() { WebPDemuxReleaseIterator(&frame_); }
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    PixelSize canvas() const { return canvas_; }

    bool isUsable() const {
        return isThere_ && isReasonableInMemory(canvas_.width, canvas_.height) &&
               frame_.complete != 0 && frame_.width > 0 && frame_.height > 0 &&
               frame_.x_offset >= 0 && frame_.y_offset >= 0 &&
               frame_.width <= canvas_.width - frame_.x_offset &&
               frame_.height <= canvas_.height - frame_.y_offset;
    }

    std::optional<Picture> draw(PixelSize target) const {
        const PixelSize size = decodedSize(target);
        const auto rows = decoded(size);
        if (!rows) return std::nullopt;
        return isWhole() ? reducedWhole(*rows, target) : reducedOnCanvas(*rows, target);
    }

private:
    bool isWhole() const { return PixelSize{frame_.width, frame_.height} == canvas_; }
    bool needsAlpha() const { return frame_.has_alpha != 0 || !isWhole(); }
    PixelLayout layout() const {
        return needsAlpha() ? PixelLayout::premultipliedRgba : PixelLayout::rgb;
    }

    /// Returns the size to decode to: libwebp can shrink while it decodes, down to at least twice
    /// the target. It decodes translucent frames at full size, because it would mix in the colours
    /// of invisible pixels.
    PixelSize decodedSize(PixelSize target) const {
        const PixelSize all{frame_.width, frame_.height};
        if (needsAlpha()) return all;
        const int factor =
            std::max(1, std::min(all.width / (2 * target.width), all.height / (2 * target.height)));
        return {(all.width + factor - 1) / factor, (all.height + factor - 1) / factor};
    }

    std::optional<Rows> decoded(PixelSize size) const {
        WebPDecoderConfig config;
        if (WebPInitDecoderConfig(&config) == 0) return std::nullopt;
        const auto rowSize =
            static_cast<std::size_t>(size.width) * static_cast<std::size_t>(channelCount(layout()));
        Rows rows{size, rowSize,
                  std::vector<std::uint8_t>(rowSize * static_cast<std::size_t>(size.height))};
        config.options.use_threads = 1;
        config.options.use_scaling = size != PixelSize{frame_.width, frame_.height} ? 1 : 0;
        config.options.scaled_width = size.width;
        config.options.scaled_height = size.height;
        config.output.colorspace = needsAlpha() ? MODE_rgbA : MODE_RGB;
        config.output.is_external_memory = 1;
        config.output.u.RGBA = {rows.bytes.data(), static_cast<int>(rowSize), rows.bytes.size()};
        const auto status = WebPDecode(frame_.fragment.bytes, frame_.fragment.size, &config);
        return status == VP8_STATUS_OK ? std::optional(std::move(rows)) : std::nullopt;
    }

    std::optional<Picture> reducedWhole(const Rows& rows, PixelSize target) const {
        ThreadedReduction reduction(rows.size, target, layout());
        for (int y = 0; y < rows.size.height; ++y) reduction.addRow(rows.row(y));
        return reduction.take();
    }

    /// A frame of an animation may be smaller than its canvas; the rest of the canvas is
    /// transparent.
    std::optional<Picture> reducedOnCanvas(const Rows& rows, PixelSize target) const {
        ThreadedReduction reduction(canvas_, target, layout());
        for (int y = 0; y < canvas_.height; ++y) {
            std::uint8_t* row = reduction.row();
            std::memset(row, 0, static_cast<std::size_t>(canvas_.width) * 4);
            const int inFrame = y - frame_.y_offset;
            if (inFrame >= 0 && inFrame < rows.size.height)
                std::memcpy(row + std::ptrdiff_t{4} * frame_.x_offset, rows.row(inFrame),
                            rows.rowSize);
            reduction.rowIsWritten();
        }
        return reduction.take();
    }

    WebPIterator frame_{};
    PixelSize canvas_;
    bool isThere_ = false;
};

class WebpImage final : public StillImage {
public:
    explicit WebpImage(const InputFile& file) : file_(file) {}

    /// Returns false if the file is damaged or incomplete.
    bool open() {
        const WebPData data{file_.bytes().data(), file_.bytes().size()};
        demuxer_.reset(WebPDemux(&data));
        if (!demuxer_) return false;
        frame_ = std::make_unique<Frame>(demuxer_.get());
        exif_ = exifIn(chunk(demuxer_.get(), "EXIF"));
        return frame_->isUsable();
    }

    PixelSize pixelSize() const override {
        return swappedIfTurned(frame_->canvas(), exif_.orientation);
    }
    Size pointSize() const override {
        const Size stored = exif_.resolution.value_or(Resolution{}).points(frame_->canvas());
        return swappedIfTurned(stored, exif_.orientation);
    }

    std::optional<Picture> draw(PixelSize target) override {
        auto picture = frame_->draw(swappedIfTurned(target, exif_.orientation));
        if (!picture) return std::nullopt;
        convertToScreen(*picture, chunk(demuxer_.get(), "ICCP"));
        return upright(std::move(*picture), exif_.orientation);
    }

private:
    const MappedFile file_;
    Demuxer demuxer_;
    std::unique_ptr<Frame> frame_;
    Exif exif_;
};

std::unique_ptr<StillImage> openImage(const InputFile& file) {
    auto image = std::make_unique<WebpImage>(file);
    return image->open() ? std::move(image) : nullptr;
}

}  // namespace
}  // namespace vantle::decoder

VANTLE_FORMAT_MODULE(.openImage = vantle::decoder::openImage)
