#include "decoder/formats/Limits.h"
#include "decoder/formats/MediaFile.h"
#include "decoder/formats/tiff/TiffFile.h"

namespace vantle::decoder {
namespace {

class TiffImage final : public StillImage {
public:
    TiffImage(const InputFile& file, TiffHeader header) : file_(file), header_(std::move(header)) {}

    PixelSize pixelSize() const override {
        return swappedIfTurned(header_.size, header_.orientation);
    }

    Size pointSize() const override {
        return swappedIfTurned(header_.resolution.points(header_.size), header_.orientation);
    }

    std::optional<Picture> draw(PixelSize target) override {
        const auto file = TiffFile::open(file_);
        if (!file) return std::nullopt;
        const PixelSize stored = swappedIfTurned(target, header_.orientation);
        auto picture = isPlain(header_) ? drawPlainTiff(*file, stored) : drawAnyTiff(*file, stored);
        if (!picture) return std::nullopt;
        return upright(std::move(*picture), header_.orientation);
    }

private:
    const InputFile& file_;
    const TiffHeader header_;
};

std::unique_ptr<StillImage> openImage(const InputFile& input) {
    const auto file = TiffFile::open(input);
    if (!file || !isReasonable(file->header().size.width, file->header().size.height))
        return nullptr;
    return std::make_unique<TiffImage>(input, file->header());
}

}  // namespace
}  // namespace vantle::decoder

VANTLE_FORMAT_MODULE(.openImage = vantle::decoder::openImage)
