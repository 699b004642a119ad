#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "decoder/formats/tiff/TiffFile.h"
#include "decoder/reduction/Reducer.h"

namespace vantle::decoder {

/// Makes of the rows of a page, as they are stored, the eight bits a sample that a reduction takes.
/// Numbers with a point count from 0 to 1; what is beyond is as if it were there, and what is no
/// number is 0.
class TiffSamples {
public:
    /// Absent when the page holds something else than gray, RGB or CMYK in numbers of a usual size.
    static std::optional<TiffSamples> of(const TiffHeader& header);

    PixelLayout layout() const { return layout_; }
    /// Whether ink has an alpha, which a reduction of ink has no place for: convert() multiplies by
    /// it.
    bool hasAlphaOfInk() const { return alphaOfInk_.has_value(); }

    /// Of all samples of a row, those of a pixel side by side, in bytes.
    std::size_t storedRowSize() const { return (count_ * bits_ + 7) / 8; }
    /// Of one sample; none are smaller when they are stored in planes.
    std::size_t sampleSize() const { return bits_ / 8; }

    /// `stored` is in this machine's order of bytes.
    void convert(const std::uint8_t* stored, std::uint8_t* row);
    /// The alpha of the ink of the row that was converted last.
    void writeAlphaOfInk(std::uint8_t* row) const;

private:
    explicit TiffSamples(const TiffHeader& header);
    bool chooseSamples(const TiffHeader& header);
    bool isChoiceAll() const;
    void narrow(const std::uint8_t* stored, std::uint8_t* samples) const;
    void multiplyInk(std::uint8_t* row) const;

    std::size_t bits_;
    bool hasPoint_;
    bool isInverted_;
    std::size_t perPixel_;  ///< As it is stored.
    std::size_t count_;     ///< In a row, as it is stored.
    PixelLayout layout_ = PixelLayout::gray;
    std::array<std::size_t, 4> chosen_{};  ///< Which sample of a pixel each channel is.
    std::optional<std::size_t> alphaOfInk_;
    bool isInkMultiplied_ = false;        ///< As it is stored.
    std::vector<std::uint8_t> narrowed_;  ///< All samples of a row.
};

}  // namespace vantle::decoder
