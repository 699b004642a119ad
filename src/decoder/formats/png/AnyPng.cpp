#include <png.h>

#include <csetjmp>

#include "decoder/formats/Limits.h"
#include "decoder/formats/ThreadedReduction.h"
#include "decoder/formats/png/PngDecoders.h"
#include "decoder/formats/png/PngStream.h"

namespace vantle::decoder {
namespace {

[[noreturn]] void giveUp(png_structp png, png_const_charp) {
    longjmp(png_jmpbuf(png), 1);
}

void ignore(png_structp, png_const_charp) {}

/// Collects the rows from libpng's callbacks. It is created before libpng runs and freed
/// afterwards, because libpng reports errors by longjmp, which calls no destructors.
class Rows {
public:
    Rows(const PngHeader& header, PixelSize target)
        : size_(header.size), isInterlaced_(header.isInterlaced), target_(target) {}

    /// Called as soon as libpng knows the format of the rows. Returns false if the number of
    /// channels is not supported.
    bool begin(int channels) {
        if (channels != 1 && channels != 3 && channels != 4) return false;
        rowSize_ = static_cast<std::size_t>(size_.width) * static_cast<std::size_t>(channels);
        const auto layout = channels == 1   ? PixelLayout::gray
                            : channels == 3 ? PixelLayout::rgb
                                            : PixelLayout::rgba;
        reduction_.emplace(size_, target_, layout);
        if (isInterlaced_) whole_.resize(rowSize_ * static_cast<std::size_t>(size_.height));
        return true;
    }

    /// In an interlaced picture, each pass adds pixels to the rows of the previous pass.
    void add(png_structp png, png_bytep row, std::size_t number) {
        if (!row) return;
        if (isInterlaced_) {
            png_progressive_combine_row(png, whole_.data() + rowSize_ * number, row);
            return;
        }
        reduction_->addRow(row);
    }

    void end() { isComplete_ = true; }

    std::optional<Picture> take() {
        if (!isComplete_) return std::nullopt;
        for (std::size_t begin = 0; begin < whole_.size(); begin += rowSize_)
            reduction_->addRow(whole_.data() + begin);
        return reduction_->take();
    }

private:
    const PixelSize size_;
    const bool isInterlaced_;
    const PixelSize target_;
    std::size_t rowSize_ = 0;
    std::optional<ThreadedReduction> reduction_;
    std::vector<std::uint8_t> whole_;
    bool isComplete_ = false;
};

/// Makes libpng deliver rows of 8-bit gray, RGB or RGBA.
void chooseRows(png_structp png, png_infop info) {
    png_set_expand(png);
    png_set_scale_16(png);
    const bool hasAlpha = png_get_color_type(png, info) & PNG_COLOR_MASK_ALPHA ||
                          png_get_valid(png, info, PNG_INFO_tRNS);
    if (hasAlpha) png_set_gray_to_rgb(png);
    png_set_interlace_handling(png);
    png_read_update_info(png, info);
}

void infoIsRead(png_structp png, png_infop info) {
    auto& rows = *static_cast<Rows*>(png_get_progressive_ptr(png));
    chooseRows(png, info);
    bool isSupported = false;
    // Exceptions must not pass through libpng.
    try {
        isSupported = rows.begin(png_get_channels(png, info));
    } catch (const std::exception&) {
        isSupported = false;
    }
    if (!isSupported) png_error(png, "");
}

void rowIsRead(png_structp png, png_bytep row, png_uint_32 number, int) {
    static_cast<Rows*>(png_get_progressive_ptr(png))->add(png, row, number);
}

void endIsRead(png_structp png, png_infop) {
    static_cast<Rows*>(png_get_progressive_ptr(png))->end();
}

/// Owns libpng's state.
struct Png {
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, giveUp, ignore);
    png_infop info = png ? png_create_info_struct(png) : nullptr;

    Png() = default;
    ~Png() { png_destroy_read_struct(&png, &info, nullptr); }
    Png(const Png&) = delete;
    Png& operator=(const Png&) = delete;

    /// Returns false on an error, after a longjmp, which skips destructors: no local variable may
    /// have one.
    bool process(std::span<const std::uint8_t> bytes) {
        if (setjmp(png_jmpbuf(png))) return false;
        png_process_data(png, info, const_cast<png_bytep>(bytes.data()), bytes.size());
        return true;
    }
};

/// Returns the beginning of a chunk of picture data. Each piece of data is passed to libpng as a
/// chunk without a valid checksum, because PngStream compares the real checksums.
std::array<std::uint8_t, 8> dataChunkBeginning(std::size_t size) {
    const auto byte = [size](int shift) { return static_cast<std::uint8_t>(size >> shift); };
    return {byte(24), byte(16), byte(8), byte(0), 'I', 'D', 'A', 'T'};
}

bool processData(Png& png, PngStream& stream) {
    constexpr std::array<std::uint8_t, 4> checksum{};
    for (auto data = stream.next(); !data.empty(); data = stream.next())
        if (!png.process(dataChunkBeginning(data.size())) || !png.process(data) ||
            !png.process(checksum))
            return false;
    return true;
}

}  // namespace

std::optional<Picture> drawAnyPng(const InputFile& file, const PngHeader& header,
                                  PixelSize target) {
    if (header.isInterlaced && !isReasonableInMemory(header.size.width, header.size.height))
        return std::nullopt;
    Rows rows(header, target);
    Png png;
    if (!png.info) return std::nullopt;
    png_set_progressive_read_fn(png.png, &rows, infoIsRead, rowIsRead, endIsRead);
    png_set_crc_action(png.png, PNG_CRC_QUIET_USE, PNG_CRC_QUIET_USE);
    png_set_user_limits(png.png, 0x7fff'ffff, 0x7fff'ffff);

    constexpr std::array<std::uint8_t, 12> end = {0,   0,   0,    0,    'I',  'E',
                                                  'N', 'D', 0xae, 0x42, 0x60, 0x82};
    PngStream stream(file, header);
    if (!png.process(header.drawingChunks) || !processData(png, stream) || !stream.finishIntact() ||
        !png.process(end))
        return std::nullopt;
    return rows.take();
}

}  // namespace vantle::decoder
