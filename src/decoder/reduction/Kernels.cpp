#include "decoder/reduction/Kernels.h"

#include <algorithm>
#include <bit>
#include <cstring>

// Each loop is written once, for any vector unit, and compiled once for each kind of processor. The
// program chooses between them when it runs.
#define VANTLE_LOOP [[gnu::always_inline]] inline

namespace vantle::decoder {
namespace {

using Float4 = float __attribute__((vector_size(16)));
using Int4 = std::int32_t __attribute__((vector_size(16)));
using Samples4 = std::uint16_t __attribute__((vector_size(8)));
using Float8 = float __attribute__((vector_size(32)));
using Int8 = std::int32_t __attribute__((vector_size(32)));

VANTLE_LOOP Float4 loadFloats(const float* from) {
    Float4 value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

VANTLE_LOOP Float4 all(float value) {
    return Float4{value, value, value, value};
}

/// Rounds to the nearest whole number between 0 and the maximum.
VANTLE_LOOP Int4 rounded(Float4 value, float maximum) {
    value = value + all(0.5F);
    value = value > all(0) ? value : all(0);
    value = value < all(maximum) ? value : all(maximum);
    return __builtin_convertvector(value, Int4);
}

VANTLE_LOOP void addRow(const std::uint8_t* __restrict row, std::uint16_t* __restrict sums,
                        std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) sums[i] = static_cast<std::uint16_t>(sums[i] + row[i]);
}

VANTLE_LOOP void widenRow(const std::uint8_t* __restrict row, std::uint16_t* __restrict wide,
                          std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) wide[i] = static_cast<std::uint16_t>(row[i] << 8);
}

/// Loads four neighbouring samples, also for a pixel that has fewer channels.
VANTLE_LOOP Int4 loadPixel(const std::uint16_t* from) {
    Samples4 samples;
    std::memcpy(&samples, from, sizeof samples);
    return __builtin_convertvector(samples, Int4);
}

/// `known` is the value of `across` if it is known at compile time, otherwise 0.
template <int channels, int known>
VANTLE_LOOP void averageColumns(const std::uint16_t* sums, std::uint16_t* averages, int pixels,
                                int across, int rows) {
    const auto averageNext = [&](int count, float scale) {
        Int4 sum{};
        for (int i = 0; i < count; ++i, sums += channels) sum += loadPixel(sums);
        const Int4 average = rounded(__builtin_convertvector(sum, Float4) * all(scale), 65280);
        // The samples after a pixel's own are overwritten by the next pixel.
        const Samples4 samples = __builtin_convertvector(average, Samples4);
        std::memcpy(averages, &samples, sizeof samples);
        averages += channels;
    };
    const auto scaleOf = [&](int count) { return 256.0F / static_cast<float>(count * rows); };
    const float scale = scaleOf(across);
    for (; pixels >= across; pixels -= across) averageNext(known > 0 ? known : across, scale);
    if (pixels > 0) averageNext(pixels, scaleOf(pixels));
}

/// The values of `across` for large screens are worth their own loops.
template <int channels>
VANTLE_LOOP void averageColumnsOf(const std::uint16_t* sums, std::uint16_t* averages, int pixels,
                                  int across, int rows) {
    if (across == 2) return averageColumns<channels, 2>(sums, averages, pixels, across, rows);
    if (across == 3) return averageColumns<channels, 3>(sums, averages, pixels, across, rows);
    if (across == 4) return averageColumns<channels, 4>(sums, averages, pixels, across, rows);
    averageColumns<channels, 0>(sums, averages, pixels, across, rows);
}

VANTLE_LOOP void averageColumnsOf(const std::uint16_t* sums, std::uint16_t* averages, int channels,
                                  int pixels, int across, int rows) {
    if (channels == 4) return averageColumnsOf<4>(sums, averages, pixels, across, rows);
    if (channels == 3) return averageColumnsOf<3>(sums, averages, pixels, across, rows);
    averageColumns<1, 0>(sums, averages, pixels, across, rows);
}

/// Adds sixteen weighted samples. Each 32-bit number holds two neighbours, which are separated
/// without moving anything between the lanes of a vector.
VANTLE_LOOP void addWeighted(Float8& even, Float8& odd, float weight, const std::uint16_t* from) {
    static_assert(std::endian::native == std::endian::little);
    Int8 pairs;
    std::memcpy(&pairs, from, sizeof pairs);
    even += weight * __builtin_convertvector(pairs & 0xffff, Float8);
    odd += weight * __builtin_convertvector((pairs >> 16) & 0xffff, Float8);
}

VANTLE_LOOP void storeInterleaved(float* to, const Float8& even, const Float8& odd) {
    const Float8 lower = __builtin_shufflevector(even, odd, 0, 8, 1, 9, 2, 10, 3, 11);
    const Float8 upper = __builtin_shufflevector(even, odd, 4, 12, 5, 13, 6, 14, 7, 15);
    std::memcpy(to, &lower, sizeof lower);
    std::memcpy(to + 8, &upper, sizeof upper);
}

VANTLE_LOOP void reduceDown(const std::uint16_t* const* rows, const float* weights, int rowCount,
                            float* out, std::size_t count) {
    constexpr std::size_t half = 16;
    static_assert(Kernels::padding == 2 * half);
    for (std::size_t begin = 0; begin < count; begin += Kernels::padding) {
        // Four sums at a time keep the processor busy and fit into its registers.
        Float8 even{};
        Float8 odd{};
        Float8 nextEven{};
        Float8 nextOdd{};
        for (int row = 0; row < rowCount; ++row) {
            const std::uint16_t* samples = rows[row] + begin;
            addWeighted(even, odd, weights[row], samples);
            addWeighted(nextEven, nextOdd, weights[row], samples + half);
        }
        storeInterleaved(out + begin, even, odd);
        storeInterleaved(out + begin + half, nextEven, nextOdd);
    }
}

template <int channels>
VANTLE_LOOP void reduceAcross(const float* row, const Taps* taps, int pixels, std::uint8_t* out) {
    for (int pixel = 0; pixel < pixels; ++pixel) {
        const auto [start, count, weights] = taps[pixel];
        const float* samples = row + static_cast<std::ptrdiff_t>(start) * channels;
        Float4 even{};
        Float4 odd{};
        constexpr auto next = std::ptrdiff_t{2} * channels;
        int tap = 0;
        for (; tap + 1 < count; tap += 2, samples += next) {
            even += all(weights[tap]) * loadFloats(samples);
            odd += all(weights[tap + 1]) * loadFloats(samples + channels);
        }
        if (tap < count) even += all(weights[tap]) * loadFloats(samples);
        const Int4 value = rounded((even + odd) * all(1.0F / 256), 255);
        for (int i = 0; i < channels; ++i) out[i] = static_cast<std::uint8_t>(value[i]);
        out += channels;
    }
}

VANTLE_LOOP void reduceAcrossOf(const float* row, const Taps* taps, int channels, int pixels,
                                std::uint8_t* out) {
    if (channels == 4) return reduceAcross<4>(row, taps, pixels, out);
    if (channels == 3) return reduceAcross<3>(row, taps, pixels, out);
    reduceAcross<1>(row, taps, pixels, out);
}

VANTLE_LOOP bool premultiply(const std::uint8_t* __restrict row, std::uint8_t* __restrict out,
                             std::size_t pixels) {
    std::uint32_t opaque = 0xFF;
    for (std::size_t i = 0; i < pixels; ++i) opaque &= row[4 * i + 3];
    if (opaque == 0xFF) return false;
    for (std::size_t i = 0; i < pixels; ++i) {
        const std::uint32_t alpha = row[4 * i + 3];
        for (std::size_t channel = 0; channel < 3; ++channel) {
            // The nearest whole number of colour * alpha / 255.
            const std::uint32_t product = row[4 * i + channel] * alpha + 128;
            out[4 * i + channel] = static_cast<std::uint8_t>((product + (product >> 8)) >> 8);
        }
        out[4 * i + 3] = static_cast<std::uint8_t>(alpha);
    }
    return true;
}

// Makes one set of functions from the loops, for one kind of processor.

// NOLINTBEGIN(bugprone-macro-parentheses): an attribute cannot stand in parentheses
#define VANTLE_KERNELS(NAME, TARGET)                                                              \
    struct NAME {                                                                                 \
        TARGET static void add(const std::uint8_t* row, std::uint16_t* sums, std::size_t count) { \
            addRow(row, sums, count);                                                             \
        }                                                                                         \
        TARGET static void widen(const std::uint8_t* row, std::uint16_t* wide,                    \
                                 std::size_t count) {                                             \
            widenRow(row, wide, count);                                                           \
        }                                                                                         \
        TARGET static void average(const std::uint16_t* sums, std::uint16_t* averages,            \
                                   int channels, int pixels, int across, int rows) {              \
            averageColumnsOf(sums, averages, channels, pixels, across, rows);                     \
        }                                                                                         \
        TARGET static void down(const std::uint16_t* const* rows, const float* weights,           \
                                int rowCount, float* out, std::size_t count) {                    \
            reduceDown(rows, weights, rowCount, out, count);                                      \
        }                                                                                         \
        TARGET static void across(const float* row, const Taps* taps, int channels, int pixels,   \
                                  std::uint8_t* out) {                                            \
            reduceAcrossOf(row, taps, channels, pixels, out);                                     \
        }                                                                                         \
        TARGET static bool multiply(const std::uint8_t* row, std::uint8_t* out,                   \
                                    std::size_t pixels) {                                         \
            return premultiply(row, out, pixels);                                                 \
        }                                                                                         \
        static constexpr Kernels table{add, widen, average, down, across, multiply};              \
    };

// NOLINTEND(bugprone-macro-parentheses)

VANTLE_KERNELS(Portable, )
#ifdef __x86_64__
VANTLE_KERNELS(Avx2, [[gnu::target("avx2,fma")]])
#endif

}  // namespace

const Kernels& Kernels::portable() {
    return Portable::table;
}

const Kernels& Kernels::best() {
#ifdef __x86_64__
    if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma")) return Avx2::table;
#endif
    return Portable::table;
}

}  // namespace vantle::decoder
