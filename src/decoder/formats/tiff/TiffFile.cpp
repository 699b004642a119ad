#include "decoder/formats/tiff/TiffFile.h"

#include <algorithm>
#include <cstdio>

namespace vantle::decoder {
namespace {

/// The limit of a single allocation; no reasonable picture has a larger part.
constexpr tmsize_t maximumAllocation = tmsize_t{768} * 1024 * 1024;

int ignore(TIFF*, void*, const char*, const char*, va_list) {
    return 1;
}

struct OptionsFreer {
    void operator()(TIFFOpenOptions* options) const { TIFFOpenOptionsFree(options); }
};

template <typename Number>
Number tag(TIFF* tiff, std::uint32_t name, Number otherwise) {
    Number value = otherwise;
    return TIFFGetFieldDefaulted(tiff, name, &value) ? value : otherwise;
}

}  // namespace

tmsize_t TiffFile::read(thandle_t handle, void* bytes, tmsize_t count) {
    auto& file = *static_cast<TiffFile*>(handle);
    const std::span<std::uint8_t> wanted(static_cast<std::uint8_t*>(bytes),
                                         static_cast<std::size_t>(std::max<tmsize_t>(count, 0)));
    const auto done = static_cast<tmsize_t>(file.file_.read(file.position_, wanted));
    file.position_ += done;
    return done;
}

toff_t TiffFile::seek(thandle_t handle, toff_t offset, int origin) {
    auto& file = *static_cast<TiffFile*>(handle);
    const auto distance = static_cast<std::int64_t>(offset);
    const std::int64_t base = origin == SEEK_CUR   ? file.position_
                              : origin == SEEK_END ? file.file_.size()
                                                   : 0;
    std::int64_t position = 0;
    if (__builtin_add_overflow(base, distance, &position) || position < 0)
        return static_cast<toff_t>(-1);
    file.position_ = position;
    return static_cast<toff_t>(position);
}

toff_t TiffFile::size(thandle_t handle) {
    return static_cast<toff_t>(static_cast<TiffFile*>(handle)->file_.size());
}

std::unique_ptr<TiffFile> TiffFile::open(const InputFile& file) {
    const std::unique_ptr<TIFFOpenOptions, OptionsFreer> options(TIFFOpenOptionsAlloc());
    if (!options) return nullptr;
    TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), maximumAllocation);
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), ignore, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), ignore, nullptr);
    std::unique_ptr<TiffFile> opened(new TiffFile(file));
    // "m" makes libtiff read the file instead of mapping it, because it may be truncated meanwhile.
    opened->tiff_.reset(TIFFClientOpenExt("", "rm", opened.get(), read, write, seek, close, size,
                                          nullptr, nullptr, options.get()));
    if (!opened->tiff_) return nullptr;
    opened->readHeader();
    return opened;
}

int TiffFile::rowsInPart() const {
    std::uint32_t rows = 0;
    const std::uint32_t name = TIFFIsTiled(tiff_.get()) ? TIFFTAG_TILELENGTH : TIFFTAG_ROWSPERSTRIP;
    if (!TIFFGetFieldDefaulted(tiff_.get(), name, &rows) || rows == 0) return header_.size.height;
    return static_cast<int>(std::min(rows, static_cast<std::uint32_t>(header_.size.height)));
}

void TiffFile::readHeader() {
    TIFF* tiff = tiff_.get();
    constexpr std::uint32_t maximumLength = 0x7fff'ffff;
    header_.size = {
        static_cast<int>(std::min(tag<std::uint32_t>(tiff, TIFFTAG_IMAGEWIDTH, 0), maximumLength)),
        static_cast<int>(
            std::min(tag<std::uint32_t>(tiff, TIFFTAG_IMAGELENGTH, 0), maximumLength))};
    header_.bitsPerSample = tag<std::uint16_t>(tiff, TIFFTAG_BITSPERSAMPLE, 1);
    header_.samplesPerPixel = tag<std::uint16_t>(tiff, TIFFTAG_SAMPLESPERPIXEL, 1);
    header_.photometric = tag<std::uint16_t>(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISWHITE);
    header_.compression = tag<std::uint16_t>(tiff, TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    header_.planes = tag<std::uint16_t>(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    header_.sampleFormat = tag<std::uint16_t>(tiff, TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_UINT);
    header_.fillOrder = tag<std::uint16_t>(tiff, TIFFTAG_FILLORDER, FILLORDER_MSB2LSB);
    header_.inkSet = tag<std::uint16_t>(tiff, TIFFTAG_INKSET, INKSET_CMYK);
    header_.orientation =
        orientationNumbered(tag<std::uint16_t>(tiff, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT));

    std::uint16_t extraCount = 0;
    std::uint16_t* extras = nullptr;
    if (TIFFGetField(tiff, TIFFTAG_EXTRASAMPLES, &extraCount, &extras) && extraCount > 0)
        header_.extraSample = extras[0];

    float across = 0;
    float down = 0;
    const auto unit = tag<std::uint16_t>(tiff, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
    if (unit != RESUNIT_NONE && TIFFGetField(tiff, TIFFTAG_XRESOLUTION, &across) &&
        TIFFGetField(tiff, TIFFTAG_YRESOLUTION, &down))
        header_.resolution = Resolution::of(
            across, down, unit == RESUNIT_CENTIMETER ? Resolution::centimetresPerInch : 1);

    std::uint32_t profileSize = 0;
    void* profile = nullptr;
    if (TIFFGetField(tiff, TIFFTAG_ICCPROFILE, &profileSize, &profile) && profile) {
        const auto* bytes = static_cast<const std::uint8_t*>(profile);
        header_.colorProfile.assign(bytes, bytes + profileSize);
    }
}

}  // namespace vantle::decoder
