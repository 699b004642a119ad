#include <algorithm>

#include "decoder/color/ColorProfile.h"
#include "decoder/formats/Limits.h"
#include "decoder/formats/ThreadedReduction.h"
#include "decoder/formats/tiff/TiffFile.h"

namespace vantle::decoder {
namespace {

/// Owns libtiff's conversion to RGBA.
class Conversion {
public:
    explicit Conversion(TIFF* tiff) {
        char message[1024] = "";
        constexpr int stopAtErrors = 1;
        isMade_ = TIFFRGBAImageOK(tiff, message) &&
                  TIFFRGBAImageBegin(&image_, tiff, stopAtErrors, message);
        // This keeps libtiff from turning the picture: turning the thumbnail costs less.
        if (isMade_) image_.req_orientation = image_.orientation;
    }
    ~Conversion() {
        if (isMade_) TIFFRGBAImageEnd(&image_);
    }
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    bool isMade() const { return isMade_; }

    /// Reads rows of premultiplied pixels, each a number whose lowest byte is red.
    bool read(int firstRow, int count, std::vector<std::uint32_t>& pixels) {
        image_.row_offset = firstRow;
        image_.col_offset = 0;
        return TIFFRGBAImageGet(&image_, pixels.data(), image_.width,
                                static_cast<std::uint32_t>(count)) == 1;
    }

private:
    TIFFRGBAImage image_{};
    bool isMade_ = false;
};

}  // namespace

std::optional<Picture> drawAnyTiff(TiffFile& file, PixelSize target) {
    const PixelSize size = file.header().size;
    Conversion conversion(file.tiff());
    const int rows = file.rowsInPart();
    if (!conversion.isMade() || !isReasonableInMemory(size.width, rows)) return std::nullopt;
    const auto width = static_cast<std::size_t>(size.width);
    std::vector<std::uint32_t> pixels(width * static_cast<std::size_t>(rows));
    ThreadedReduction reduction(size, target, PixelLayout::premultipliedRgba);
    for (int first = 0; first < size.height; first += rows) {
        const int count = std::min(rows, size.height - first);
        if (!conversion.read(first, count, pixels)) return std::nullopt;
        for (int row = 0; row < count; ++row)
            reduction.addRow(pixels.data() + width * static_cast<std::size_t>(row));
    }
    auto picture = reduction.take();
    if (picture) convertToScreen(*picture, file.header().colorProfile);
    return picture;
}

}  // namespace vantle::decoder
