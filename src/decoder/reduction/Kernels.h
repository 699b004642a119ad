#pragma once

#include <cstddef>
#include <cstdint>

namespace vantle::decoder {

/// The source samples that one target sample is made of: `count` of them from `start` on, with
/// their weights, whose sum is one.
struct Taps {
    int start = 0;
    int count = 0;
    const float* weights = nullptr;
};

/// The inner loops of a reduction, in the best form that this processor has. Samples between the
/// two steps are 16-bit, 256 for each step of an 8-bit channel. Buffers are readable and writable
/// `padding` elements past what a loop is told to fill.
struct Kernels {
    static constexpr std::size_t padding = 32;

    /// sums[i] += row[i]
    void (*addRow)(const std::uint8_t* row, std::uint16_t* sums, std::size_t count);
    /// wide[i] = 256 * row[i]
    void (*widenRow)(const std::uint8_t* row, std::uint16_t* wide, std::size_t count);
    /// Each `across` pixels of `sums` become one of `averages`; the last one takes what is left.
    /// `rows` is how many rows the sums hold.
    void (*averageColumns)(const std::uint16_t* sums, std::uint16_t* averages, int channels,
                           int pixels, int across, int rows);
    /// out[i] = the weighted sum of rows[0][i], rows[1][i], ...
    void (*reduceDown)(const std::uint16_t* const* rows, const float* weights, int rowCount,
                       float* out, std::size_t count);
    /// One target row of `channels` 8-bit samples a pixel.
    void (*reduceAcross)(const float* row, const Taps* taps, int channels, int pixels,
                         std::uint8_t* out);
    /// Multiplies colours by their alpha. Gives whether anything was translucent; where nothing
    /// was, `out` is not complete and the row is to be used as it is.
    bool (*premultiply)(const std::uint8_t* row, std::uint8_t* out, std::size_t pixels);

    static const Kernels& best();
    static const Kernels& portable();
};

}  // namespace vantle::decoder
