#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "decoder/formats/tiff/TiffFile.h"
#include "decoder/reduction/Reducer.h"

namespace vantle::decoder {

/// Converts the stored rows of a page to the 8-bit samples that a reduction takes. Floating-point
/// numbers are limited to the range from 0 to 1; NaN becomes 0.
class TiffSamples {
public:
    /// Returns std::nullopt unless the page holds gray, RGB or CMYK in numbers of a usual size.
    static std::optional<TiffSamples> of(const TiffHeader& header);

    PixelLayout layout() const { return layout_; }
    /// Returns true if ink has an alpha. A reduction of ink has no channel for it, so convert()
    /// multiplies the ink by it.
    bool hasInkAlpha() const { return inkAlpha_.has_value(); }

    /// Returns the size in bytes of a row in which the samples of each pixel are side by side.
    std::size_t storedRowSize() const { return (count_ * bits_ + 7) / 8; }
    /// Returns the size of a sample in bytes; 0 for single bits, which are never stored in planes.
    std::size_t sampleSize() const { return bits_ / 8; }

    /// Converts one row. `stored` is in this machine's byte order.
    void convert(const std::uint8_t* stored, std::uint8_t* row);
    /// Writes the alpha of the row of ink that was converted last.
    void writeInkAlpha(std::uint8_t* row) const;

private:
    explicit TiffSamples(const TiffHeader& header);
    bool chooseSamples(const TiffHeader& header);
    bool choosesAllSamples() const;
    void narrow(const std::uint8_t* stored, std::uint8_t* samples) const;
    void multiplyInk(std::uint8_t* row) const;

    std::size_t bits_;
    bool isFloatingPoint_;
    bool isInverted_;
    std::size_t perPixel_;  ///< Stored samples per pixel.
    std::size_t count_;     ///< Stored samples per row.
    PixelLayout layout_ = PixelLayout::gray;
    std::array<std::size_t, 4> chosen_{};  ///< The index of each channel's sample in a pixel.
    std::optional<std::size_t> inkAlpha_;
    bool isInkMultiplied_ = false;        ///< The stored ink is already multiplied by its alpha.
    std::vector<std::uint8_t> narrowed_;  ///< All samples of a row, in 8 bits each.
};

}  // namespace vantle::decoder
