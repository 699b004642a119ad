#include "decoder/formats/MediaFile.h"
#include "decoder/formats/jpeg/JpegDecoder.h"

namespace vantle::decoder {
namespace {

class JpegImage final : public StillImage {
public:
    JpegImage(const InputFile& file, JpegHeader header) : file_(file), header_(std::move(header)) {}

    PixelSize pixelSize() const override {
        return swappedIfTurned(header_.size, header_.orientation);
    }

    Size pointSize() const override {
        return swappedIfTurned(header_.resolution.points(header_.size), header_.orientation);
    }

    std::optional<Picture> draw(PixelSize target) override {
        auto picture = drawJpeg(file_, swappedIfTurned(target, header_.orientation));
        if (!picture) return std::nullopt;
        if (header_.isInk)
            convertInkToScreen(*picture, header_.inkPolarity, header_.colorProfile);
        else
            convertToScreen(*picture, header_.colorProfile);
        return upright(std::move(*picture), header_.orientation);
    }

private:
    const InputFile& file_;
    const JpegHeader header_;
};

std::unique_ptr<StillImage> openImage(const InputFile& file) {
    auto header = readJpegHeader(file);
    if (!header) return nullptr;
    return std::make_unique<JpegImage>(file, std::move(*header));
}

}  // namespace
}  // namespace vantle::decoder

VANTLE_FORMAT_MODULE(.openImage = vantle::decoder::openImage)
