#pragma once

#include <cstdint>
#include <vector>

#include "decoder/reduction/Kernels.h"
#include "decoder/reduction/Lanczos.h"
#include "decoder/reduction/Picture.h"

namespace vantle::decoder {

/// What the 8-bit samples of a row are.
enum class PixelLayout { gray, rgb, rgba, premultipliedRgba, cmyk };

constexpr int channelCount(PixelLayout layout) {
    return layout == PixelLayout::gray ? 1 : layout == PixelLayout::rgb ? 3 : 4;
}

/// Shrinks a picture whose rows arrive one by one: first an average over whole blocks of pixels,
/// down to at least twice the target, then the Lanczos-3 filter. The picture never stands in memory
/// as a whole. All memory is taken by the constructor (std::bad_alloc).
class Reducer {
public:
    /// Both sizes are at least 1 × 1; the target is not larger than the source.
    Reducer(PixelSize source, PixelSize target, PixelLayout layout,
            const Kernels& kernels = Kernels::best());

    /// The next row from the top. Rows beyond the last one are ignored.
    void addRow(const std::uint8_t* row);

    bool isComplete() const { return nextTarget_ == target_.height; }

    /// The result; of a CMYK source four plain samples a pixel, which stand for ink.
    Picture take();

private:
    /// The average over `across` × `down` pixels.
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
    std::vector<std::uint16_t> sums_;  ///< Of the rows of the block that is being filled.
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
