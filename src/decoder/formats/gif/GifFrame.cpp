#include "decoder/formats/gif/GifFrame.h"

#include <algorithm>
#include <cstring>

#include "decoder/formats/Limits.h"
#include "decoder/formats/ThreadedReduction.h"

namespace vantle::decoder {

int GifFrame::read(GifFileType* gif, GifByteType* bytes, int count) {
    auto& frame = *static_cast<GifFrame*>(gif->UserData);
    const std::span<std::uint8_t> wanted(bytes, static_cast<std::size_t>(std::max(count, 0)));
    return frame.stream_.read(wanted) ? count : 0;
}

std::unique_ptr<GifFrame> GifFrame::open(const InputFile& file) {
    std::unique_ptr<GifFrame> frame(new GifFrame(file));
    int error = 0;
    frame->gif_.reset(DGifOpen(frame.get(), read, &error));
    if (!frame->gif_ || !frame->readUntilPixels() || !frame->readColors() || !frame->isInCanvas())
        return nullptr;
    return frame;
}

PixelSize GifFrame::canvas() const {
    return {gif_->SWidth, gif_->SHeight};
}

bool GifFrame::readUntilPixels() {
    for (;;) {
        GifRecordType type = UNDEFINED_RECORD_TYPE;
        if (DGifGetRecordType(gif_.get(), &type) != GIF_OK) return false;
        if (type == IMAGE_DESC_RECORD_TYPE) return DGifGetImageDesc(gif_.get()) == GIF_OK;
        if (type != EXTENSION_RECORD_TYPE || !readExtension()) return false;
    }
}

bool GifFrame::readExtension() {
    int code = 0;
    GifByteType* data = nullptr;
    if (DGifGetExtension(gif_.get(), &code, &data) != GIF_OK) return false;
    while (data) {
        GraphicsControlBlock control;
        if (code == GRAPHICS_EXT_FUNC_CODE &&
            DGifExtensionToGCB(data[0], data + 1, &control) == GIF_OK)
            transparentIndex_ = control.TransparentColor;
        if (DGifGetExtensionNext(gif_.get(), &data) != GIF_OK) return false;
    }
    return true;
}

bool GifFrame::readColors() {
    const ColorMapObject* map = gif_->Image.ColorMap ? gif_->Image.ColorMap : gif_->SColorMap;
    if (!map) return false;
    // Indexes without a colour are black.
    colors_.fill({0, 0, 0, 255});
    for (int i = 0; i < std::min(map->ColorCount, 256); ++i) {
        const GifColorType& color = map->Colors[i];
        colors_[static_cast<std::size_t>(i)] = {color.Red, color.Green, color.Blue, 255};
    }
    if (transparentIndex_ >= 0 && transparentIndex_ < 256)
        colors_[static_cast<std::size_t>(transparentIndex_)] = {};
    return true;
}

bool GifFrame::isInCanvas() const {
    const GifImageDesc& image = gif_->Image;
    return isReasonable(gif_->SWidth, gif_->SHeight) && image.Width > 0 && image.Height > 0 &&
           image.Left >= 0 && image.Top >= 0 && image.Left + image.Width <= gif_->SWidth &&
           image.Top + image.Height <= gif_->SHeight &&
           (!image.Interlace || isReasonableInMemory(image.Width, image.Height));
}

bool GifFrame::readRow(GifPixelType* indexes) {
    return DGifGetLine(gif_.get(), indexes, gif_->Image.Width) == GIF_OK;
}

/// Reads the rows of an interlaced frame, which come in four passes.
bool GifFrame::readInterlaced(std::vector<GifPixelType>& indexes) {
    struct Pass {
        int first;
        int step;
    };
    constexpr std::array passes = {Pass{0, 8}, Pass{4, 8}, Pass{2, 4}, Pass{1, 2}};
    const auto width = static_cast<std::size_t>(gif_->Image.Width);
    indexes.resize(width * static_cast<std::size_t>(gif_->Image.Height));
    for (const auto& [first, step] : passes)
        for (int row = first; row < gif_->Image.Height; row += step)
            if (!readRow(indexes.data() + width * static_cast<std::size_t>(row))) return false;
    return true;
}

std::optional<Picture> GifFrame::draw(PixelSize target) {
    const GifImageDesc& image = gif_->Image;
    const auto width = static_cast<std::size_t>(image.Width);
    std::vector<GifPixelType> indexes(width);
    if (image.Interlace && !readInterlaced(indexes)) return std::nullopt;

    ThreadedReduction reduction(canvas(), target, PixelLayout::premultipliedRgba);
    const std::size_t rowSize = static_cast<std::size_t>(gif_->SWidth) * 4;
    for (int y = 0; y < gif_->SHeight; ++y) {
        std::uint8_t* row = reduction.row();
        const bool isInFrame = y >= image.Top && y < image.Top + image.Height;
        if (!isInFrame || image.Width < gif_->SWidth) std::memset(row, 0, rowSize);
        if (isInFrame) {
            const GifPixelType* line = indexes.data();
            if (image.Interlace)
                line += width * static_cast<std::size_t>(y - image.Top);
            else if (!readRow(indexes.data()))
                return std::nullopt;
            std::uint8_t* pixel = row + std::ptrdiff_t{4} * image.Left;
            for (std::size_t x = 0; x < width; ++x, pixel += 4)
                std::memcpy(pixel, colors_[line[x]].data(), 4);
        }
        reduction.rowIsWritten();
    }
    return reduction.take();
}

}  // namespace vantle::decoder
