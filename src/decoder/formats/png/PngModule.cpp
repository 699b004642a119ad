#include "decoder/color/ColorProfile.h"
#include "decoder/formats/Limits.h"
#include "decoder/formats/MediaFile.h"
#include "decoder/formats/png/PngDecoders.h"

namespace vantle::decoder {
namespace {

class PngImage final : public StillImage {
public:
    PngImage(const InputFile& file, PngHeader header) : file_(file), header_(std::move(header)) {}

    PixelSize pixelSize() const override { return header_.size; }
    Size pointSize() const override { return header_.resolution.points(header_.size); }

    std::optional<Picture> draw(PixelSize target) override {
        auto picture = header_.isPlain() ? drawPlainPng(file_, header_, target)
                                         : drawAnyPng(file_, header_, target);
        if (picture) convertToScreen(*picture, header_.colorProfile);
        return picture;
    }

private:
    const InputFile& file_;
    const PngHeader header_;
};

std::unique_ptr<StillImage> openImage(const InputFile& file) {
    auto header = readPngHeader(file);
    if (!header || !isReasonable(header->size.width, header->size.height)) return nullptr;
    return std::make_unique<PngImage>(file, std::move(*header));
}

}  // namespace
}  // namespace vantle::decoder

VANTLE_FORMAT_MODULE(.openImage = vantle::decoder::openImage)
