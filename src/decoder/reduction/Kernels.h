#pragma once

#include <cstddef>
#include <cstdint>

namespace vantle::decoder {

/// The source samples that make one target sample: `count` samples from `start` on, and their
/// weights, whose sum is one.
struct Taps {
    int start = 0;
    int count = 0;
    const float* weights = nullptr;
};

/// The inner loops of a reduction, for one kind of processor. Samples between the two steps have 16
/// bits: 256 times the 8-bit value. Buffers must be readable and writable `padding` elements past
/// the part that a loop fills.
struct Kernels {
    static constexpr std::size_t padding = 32;

    /// sums[i] += row[i]
    void (*addRow)(const std::uint8_t* row, std::uint16_t* sums, std::size_t count);
    /// wide[i] = 256 * row[i]
    void (*widenRow)(const std::uint8_t* row, std::uint16_t* wide, std::size_t count);
    /// Averages each `across` pixels of `sums` to one pixel of `averages`; the last one averages
    /// the rest. `rows` is the number of rows that were added up in `sums`.
    void (*averageColumns)(const std::uint16_t* sums, std::uint16_t* averages, int channels,
                           int pixels, int across, int rows);
    /// out[i] = the weighted sum of rows[0][i], rows[1][i], ...
    void (*reduceDown)(const std::uint16_t* const* rows, const float* weights, int rowCount,
                       float* out, std::size_t count);
    /// Makes one target row with `channels` 8-bit samples per pixel.
    void (*reduceAcross)(const float* row, const Taps* taps, int channels, int pixels,
                         std::uint8_t* out);
    /// Multiplies colours by their alpha. Returns false if all pixels are opaque; `out` is then not
    /// complete, and the caller must use `row` as it is.
    bool (*premultiply)(const std::uint8_t* row, std::uint8_t* out, std::size_t pixels);

    static const Kernels& best();
    static const Kernels& portable();
};

}  // namespace vantle::decoder
