#pragma once

#include <cstdint>
#include <vector>

#include "decoder/reduction/Kernels.h"
#include "decoder/reduction/Lanczos.h"
#include "decoder/reduction/Picture.h"

namespace vantle::decoder {

/// The meaning of the 8-bit samples of a row.
enum class PixelLayout { gray, rgb, rgba, premultipliedRgba, cmyk };

constexpr int channelCount(PixelLayout layout) {
    return layout == PixelLayout::gray ? 1 : layout == PixelLayout::rgb ? 3 : 4;
}

/// Shrinks a picture whose rows arrive one by one: averages whole blocks of pixels, down to at
/// least twice the target, then applies the Lanczos-3 filter. The picture is never in memory as a
/// whole. The constructor allocates all memory (std::bad_alloc).
class Reducer {
public:
    /// Both sizes are at least 1 × 1; the target is not larger than the source.
    Reducer(PixelSize source, PixelSize target, PixelLayout layout,
            const Kernels& kernels = Kernels::best());

    /// Adds the next row from the top. Rows after the last one are ignored.
    void addRow(const std::uint8_t* row);

    bool isComplete() const { return nextTarget_ == target_.height; }

    /// Returns the result. A CMYK source gives four samples of ink per pixel instead of RGBA.
    Picture take();

private:
    /// Blocks of `across` × `down` pixels are averaged; `reduced` is the number of blocks.
    struct Blocks {
        int across = 1;
        int down = 1;
        PixelSize reduced;
    };

    static Blocks blocks(PixelSize source, PixelSize target);
    void addReducedRow();
    std::uint16_t* reducedRow(int row);
    void finishTargets();
    void writeTarget(const std::uint8_t* samples);
    std::size_t samples(int pixels) const;

    const PixelSize source_;
    const PixelSize target_;
    const PixelLayout layout_;
    const int channels_;
    const Kernels& kernels_;
    const Blocks blocks_;
    const Lanczos across_;
    const Lanczos down_;

    std::vector<std::uint8_t> premultiplied_;
    std::vector<std::uint16_t> sums_;  ///< The sums of the current block's rows.
    std::vector<std::uint16_t> ring_;  ///< The latest reduced rows.
    std::vector<const std::uint16_t*> window_;
    std::vector<float> column_;         ///< One target row, still as wide as the reduced rows.
    std::vector<std::uint8_t> narrow_;  ///< One target row.
    Picture result_;
    int sourceRows_ = 0;
    int rowsInBlock_ = 0;
    int reducedRows_ = 0;
    int nextTarget_ = 0;
};

}  // namespace vantle::decoder
