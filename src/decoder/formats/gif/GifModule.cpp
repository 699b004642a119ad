#include "decoder/formats/MediaFile.h"
#include "decoder/formats/Resolution.h"
#include "decoder/formats/gif/GifFrame.h"

namespace vantle::decoder {
namespace {

class GifImage final : public StillImage {
public:
    GifImage(const InputFile& file, PixelSize size) : file_(file), size_(size) {}

    PixelSize pixelSize() const override { return size_; }
    Size pointSize() const override { return Resolution{}.points(size_); }

    std::optional<Picture> draw(PixelSize target) override {
        // The library can read a file only once, so each drawing opens it again.
        const auto frame = GifFrame::open(file_);
        return frame ? frame->draw(target) : std::nullopt;
    }

private:
    const InputFile& file_;
    const PixelSize size_;
};

std::unique_ptr<StillImage> openImage(const InputFile& file) {
    const auto frame = GifFrame::open(file);
    if (!frame) return nullptr;
    return std::make_unique<GifImage>(file, frame->canvas());
}

}  // namespace
}  // namespace vantle::decoder

VANTLE_FORMAT_MODULE(.openImage = vantle::decoder::openImage)
