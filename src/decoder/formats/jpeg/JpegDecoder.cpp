#include "decoder/formats/jpeg/JpegDecoder.h"

#include <memory>

#include "decoder/formats/Limits.h"
#include "decoder/formats/ThreadedReduction.h"
#include "decoder/formats/jpeg/JpegSource.h"

namespace vantle::decoder {
namespace {

struct Freer {
    void operator()(JOCTET* bytes) const { free(bytes); }
};

/// Each scan covers the whole picture. Encoders write about ten; an attacker may write thousands.
void refuseTooManyScans(j_common_ptr jpeg) {
    constexpr int maximumScans = 100;
    if (reinterpret_cast<j_decompress_ptr>(jpeg)->input_scan_number > maximumScans)
        jpeg->err->error_exit(jpeg);
}

/// Owns libjpeg's state. The functions that call setjmp return false if libjpeg reports an error by
/// longjmp, which skips destructors: none of their local variables may have one.
class Decompressor {
public:
    explicit Decompressor(const InputFile& file) : source_(file) {
        jpeg_.err = &errors_;
        isMade_ = create();
        jpeg_.src = &source_;
        progress_.progress_monitor = refuseTooManyScans;
        jpeg_.progress = &progress_;
    }
    ~Decompressor() { jpeg_destroy_decompress(&jpeg_); }
    Decompressor(const Decompressor&) = delete;
    Decompressor& operator=(const Decompressor&) = delete;

    bool readHeader() {
        if (!isMade_ || setjmp(errors_.jump)) return false;
        constexpr unsigned wholeMarker = 0xffff;
        jpeg_save_markers(&jpeg_, JPEG_APP0 + 1, wholeMarker);
        jpeg_save_markers(&jpeg_, JPEG_APP0 + 2, wholeMarker);
        return jpeg_read_header(&jpeg_, TRUE) == JPEG_HEADER_OK;
    }

    bool start() {
        if (setjmp(errors_.jump)) return false;
        return jpeg_start_decompress(&jpeg_);
    }

    bool readRow(JSAMPROW row) {
        if (setjmp(errors_.jump)) return false;
        return jpeg_read_scanlines(&jpeg_, &row, 1) == 1;
    }

    /// Returns true if the picture was complete.
    bool finish() {
        if (setjmp(errors_.jump)) return false;
        return jpeg_finish_decompress(&jpeg_) && !errors_.isDamaged && !source_.hasEnded;
    }

    std::vector<std::uint8_t> colorProfile() {
        JOCTET* bytes = nullptr;
        unsigned size = 0;
        if (!readProfile(bytes, size)) return {};
        const std::unique_ptr<JOCTET, Freer> owner(bytes);
        return {bytes, bytes + size};
    }

    jpeg_decompress_struct& jpeg() { return jpeg_; }

private:
    bool create() {
        if (setjmp(errors_.jump)) return false;
        jpeg_create_decompress(&jpeg_);
        return true;
    }

    bool readProfile(JOCTET*& bytes, unsigned& size) {
        if (setjmp(errors_.jump)) return false;
        return jpeg_read_icc_profile(&jpeg_, &bytes, &size);
    }

    JpegErrors errors_;
    JpegSource source_;
    jpeg_progress_mgr progress_{};
    jpeg_decompress_struct jpeg_{};
    bool isMade_ = false;
};

Exif exifOf(const jpeg_decompress_struct& jpeg) {
    using namespace std::string_view_literals;
    constexpr auto start = "Exif\0\0"sv;
    for (const auto* marker = jpeg.marker_list; marker; marker = marker->next) {
        const std::span<const std::uint8_t> data(marker->data, marker->data_length);
        if (marker->marker == JPEG_APP0 + 1 && text(data).starts_with(start))
            return readExif(data.subspan(start.size()));
    }
    return {};
}

Resolution resolutionOf(const jpeg_decompress_struct& jpeg, const Exif& exif) {
    constexpr int perInch = 1;
    constexpr int perCentimetre = 2;
    if (jpeg.saw_JFIF_marker && jpeg.density_unit == perInch)
        return Resolution::of(jpeg.X_density, jpeg.Y_density, 1);
    if (jpeg.saw_JFIF_marker && jpeg.density_unit == perCentimetre)
        return Resolution::of(jpeg.X_density, jpeg.Y_density, Resolution::centimetresPerInch);
    return exif.resolution.value_or(Resolution{});
}

/// Makes libjpeg shrink the picture while it decodes, by a power of two, which it does well. Leaves
/// at least twice the target size, so that a better filter does the last step.
void shrinkWhileDecoding(jpeg_decompress_struct& jpeg, PixelSize target) {
    constexpr unsigned maximumDivisor = 8;
    const auto leavesTwice = [](JDIMENSION full, unsigned divisor, int wanted) {
        return full / divisor >= 2 * static_cast<unsigned>(wanted);
    };
    unsigned divisor = 1;
    while (divisor < maximumDivisor && leavesTwice(jpeg.image_width, 2 * divisor, target.width) &&
           leavesTwice(jpeg.image_height, 2 * divisor, target.height))
        divisor *= 2;
    jpeg.scale_num = 1;
    jpeg.scale_denom = divisor;
}

PixelLayout chooseSamples(jpeg_decompress_struct& jpeg) {
    switch (jpeg.jpeg_color_space) {
        case JCS_GRAYSCALE:
            jpeg.out_color_space = JCS_GRAYSCALE;
            return PixelLayout::gray;
        case JCS_CMYK:
        case JCS_YCCK:
            jpeg.out_color_space = JCS_CMYK;
            return PixelLayout::cmyk;
        default:
            jpeg.out_color_space = JCS_RGB;
            return PixelLayout::rgb;
    }
}

PixelSize outputSize(const jpeg_decompress_struct& jpeg) {
    return {static_cast<int>(jpeg.output_width), static_cast<int>(jpeg.output_height)};
}

}  // namespace

std::optional<JpegHeader> readJpegHeader(const InputFile& file) {
    Decompressor decompressor(file);
    if (!decompressor.readHeader()) return std::nullopt;
    const auto& jpeg = decompressor.jpeg();
    const bool needsWholePicture = jpeg.progressive_mode || jpeg.num_components == 0;
    const bool isSupported = needsWholePicture
                                 ? isReasonableInMemory(jpeg.image_width, jpeg.image_height)
                                 : isReasonable(jpeg.image_width, jpeg.image_height);
    if (!isSupported) return std::nullopt;
    const Exif exif = exifOf(jpeg);
    return JpegHeader{
        .size = {static_cast<int>(jpeg.image_width), static_cast<int>(jpeg.image_height)},
        .resolution = resolutionOf(jpeg, exif),
        .orientation = exif.orientation,
        .isInk = jpeg.jpeg_color_space == JCS_CMYK || jpeg.jpeg_color_space == JCS_YCCK,
        // Programs that write the Adobe marker store ink inverted.
        .inkPolarity =
            jpeg.saw_Adobe_marker ? InkPolarity::moreIsLighter : InkPolarity::moreIsDarker,
        .colorProfile = decompressor.colorProfile()};
}

std::optional<Picture> drawJpeg(const InputFile& file, PixelSize target) {
    Decompressor decompressor(file);
    if (!decompressor.readHeader()) return std::nullopt;
    auto& jpeg = decompressor.jpeg();
    const PixelLayout layout = chooseSamples(jpeg);
    shrinkWhileDecoding(jpeg, target);
    if (!decompressor.start()) return std::nullopt;
    ThreadedReduction reduction(outputSize(jpeg), target, layout);
    for (JDIMENSION row = 0; row < jpeg.output_height; ++row) {
        if (!decompressor.readRow(reduction.row())) return std::nullopt;
        reduction.rowIsWritten();
    }
    if (!decompressor.finish()) return std::nullopt;
    return reduction.take();
}

}  // namespace vantle::decoder
