#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <type_traits>

// Undoes the filters of PNG rows. Each loop is written once, for any vector unit, and compiled by
// PngFilters.cpp once for each kind of processor.
#define VANTLE_LOOP [[gnu::always_inline]] inline

namespace vantle::decoder::png {

enum class Filter : std::uint8_t { none, sub, up, average, paeth };

/// The samples of four pixels, usually one from each of four rows.
using Pixels = std::uint8_t __attribute__((vector_size(16)));
/// The same as one number per pixel.
using Words = std::uint32_t __attribute__((vector_size(16)));

/// Reads four bytes, also for a pixel that has only three, because one load is faster than two.
VANTLE_LOOP std::uint32_t word(const std::uint8_t* from) {
    std::uint32_t value = 0;
    std::memcpy(&value, from, sizeof value);
    return value;
}

VANTLE_LOOP Words words(Pixels pixels) {
    return reinterpret_cast<Words>(pixels);
}

VANTLE_LOOP Pixels pixels(Words words) {
    return reinterpret_cast<Pixels>(words);
}

VANTLE_LOOP Pixels larger(Pixels one, Pixels other) {
    return one > other ? one : other;
}

VANTLE_LOOP Pixels smaller(Pixels one, Pixels other) {
    return one < other ? one : other;
}

VANTLE_LOOP Pixels distance(Pixels one, Pixels other) {
    return larger(one, other) - smaller(one, other);
}

/// Returns the neighbour that is nearest to left + up - upLeft, computed in eight bits.
VANTLE_LOOP Pixels nearestNeighbour(Pixels left, Pixels up, Pixels upLeft) {
    const Pixels fromLeft = distance(up, upLeft);
    const Pixels fromUp = distance(left, upLeft);
    // If left and up are both above or both below upLeft, upLeft is farther away than either;
    // otherwise its distance is the difference of the other two.
    const auto isOnOneSide = (larger(up, upLeft) == up) == (larger(left, upLeft) == left);
    const Pixels fromUpLeft = distance(fromLeft, fromUp) | reinterpret_cast<Pixels>(isOnOneSide);
    const Pixels least = smaller(smaller(fromLeft, fromUp), fromUpLeft);
    const Pixels upOrUpLeft = least == fromUp ? up : upLeft;
    return least == fromLeft ? left : upOrUpLeft;
}

/// Returns half the sum, rounded down, computed in eight bits.
VANTLE_LOOP Pixels halfway(Pixels left, Pixels up) {
    return (left & up) + ((left ^ up) >> 1);
}

/// Consecutive rows in which each pixel depends on the one before it.
struct Rows {
    const std::uint8_t* stored;  ///< The first row, after its filter number.
    const std::uint8_t* above;
    std::uint8_t* out;
    std::ptrdiff_t size;  ///< The size of a row in bytes.

    Filter filter(int row) const { return static_cast<Filter>(*(storedRow(row) - 1)); }
    const std::uint8_t* storedRow(int row) const { return stored + row * (size + 1); }
    std::uint8_t* outRow(int row) const { return out + row * size; }
    const std::uint8_t* rowAbove(int row) const { return row == 0 ? above : outRow(row - 1); }
};

inline int prediction(Filter filter, int left, int up, int upLeft) {
    if (filter == Filter::sub) return left;
    if (filter == Filter::average) return (left + up) / 2;
    const int fromLeft = std::abs(up - upLeft);
    const int fromUp = std::abs(left - upLeft);
    const int fromUpLeft = std::abs(left + up - 2 * upLeft);
    if (fromLeft <= fromUp && fromLeft <= fromUpLeft) return left;
    return fromUp <= fromUpLeft ? up : upLeft;
}

/// Undoes the filter of one row for the bytes from `begin` to `end`, one by one.
inline void undoBytes(const Rows& rows, int row, int size, std::ptrdiff_t begin,
                      std::ptrdiff_t end) {
    const std::uint8_t* stored = rows.storedRow(row);
    const std::uint8_t* above = rows.rowAbove(row);
    std::uint8_t* out = rows.outRow(row);
    for (std::ptrdiff_t i = begin; i < end; ++i) {
        const int left = i < size ? 0 : out[i - size];
        const int upLeft = i < size ? 0 : above[i - size];
        out[i] = static_cast<std::uint8_t>(stored[i] +
                                           prediction(rows.filter(row), left, above[i], upLeft));
    }
}

struct OnlySub {
    VANTLE_LOOP OnlySub(const Rows&, int, int) {}
    VANTLE_LOOP Pixels operator()(Pixels left, Pixels, Pixels) const { return left; }
};

struct OnlyAverage {
    VANTLE_LOOP OnlyAverage(const Rows&, int, int) {}
    VANTLE_LOOP Pixels operator()(Pixels left, Pixels up, Pixels) const {
        return halfway(left, up);
    }
};

struct OnlyPaeth {
    VANTLE_LOOP OnlyPaeth(const Rows&, int, int) {}
    VANTLE_LOOP Pixels operator()(Pixels left, Pixels up, Pixels upLeft) const {
        return nearestNeighbour(left, up, upLeft);
    }
};

constexpr int lanes = 4;

/// Predicts each row by that row's filter.
class AnyFilter {
public:
    VANTLE_LOOP AnyFilter(const Rows& rows, int first, int count) {
        constexpr std::uint32_t all = 0xffff'ffff;
        for (int i = 0; i < std::min(count - first, lanes); ++i) {
            const Filter filter = rows.filter(first + i);
            sub_[i] = filter == Filter::sub ? all : 0;
            average_[i] = filter == Filter::average ? all : 0;
            paeth_[i] = filter == Filter::paeth ? all : 0;
        }
    }

    VANTLE_LOOP Pixels operator()(Pixels left, Pixels up, Pixels upLeft) const {
        return (pixels(sub_) & left) | (pixels(average_) & halfway(left, up)) |
               (pixels(paeth_) & nearestNeighbour(left, up, upLeft));
    }

private:
    Words sub_{};
    Words average_{};
    Words paeth_{};
};

/// The speed of reordering bytes in a vector; quick means in one step.
enum class ByteShuffle { slow, quick };

/// Returns four neighbouring pixels. Reads up to four bytes too many if pixels have three bytes.
template <int size, ByteShuffle shuffle>
VANTLE_LOOP Words fourPixels(const std::uint8_t* from) {
    constexpr std::ptrdiff_t step = size;
    if constexpr (shuffle == ByteShuffle::slow)
        return Words{word(from), word(from + step), word(from + 2 * step), word(from + 3 * step)};
    Pixels some;
    std::memcpy(&some, from, sizeof some);
    if constexpr (size == 4) return words(some);
    return words(
        __builtin_shufflevector(some, some, 0, 1, 2, 3, 3, 4, 5, 6, 6, 7, 8, 9, 9, 10, 11, 12));
}

/// Writes four neighbouring pixels, and up to four bytes too many if pixels have three bytes.
template <int size, ByteShuffle shuffle>
VANTLE_LOOP void write(Words four, std::uint8_t* to) {
    if constexpr (shuffle == ByteShuffle::slow) {
        for (int i = 0; i < lanes; ++i, to += size) {
            const std::uint32_t pixel = four[i];
            std::memcpy(to, &pixel, sizeof pixel);
        }
        return;
    }
    Pixels some = pixels(four);
    if constexpr (size == 3)
        some = __builtin_shufflevector(some, some, 0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 12, 13,
                                       14, 15);
    std::memcpy(to, &some, sizeof some);
}

using FourWords = std::array<Words, lanes>;

/// Turns rows into columns and columns into rows.
VANTLE_LOOP FourWords transposed(const FourWords& of) {
    const Words upperLeft = __builtin_shufflevector(of[0], of[1], 0, 4, 1, 5);
    const Words upperRight = __builtin_shufflevector(of[0], of[1], 2, 6, 3, 7);
    const Words lowerLeft = __builtin_shufflevector(of[2], of[3], 0, 4, 1, 5);
    const Words lowerRight = __builtin_shufflevector(of[2], of[3], 2, 6, 3, 7);
    return {__builtin_shufflevector(upperLeft, lowerLeft, 0, 1, 4, 5),
            __builtin_shufflevector(upperLeft, lowerLeft, 2, 3, 6, 7),
            __builtin_shufflevector(upperRight, lowerRight, 0, 1, 4, 5),
            __builtin_shufflevector(upperRight, lowerRight, 2, 3, 6, 7)};
}

/// Handles up to four rows from `first` on, each one pixel behind the row above it. Four steps are
/// one round.
template <int size, int first, int count, ByteShuffle shuffle, typename Prediction>
class FourRows {
public:
    /// Starts before the pixel `at` of the first row.
    VANTLE_LOOP FourRows(const Rows& rows, std::ptrdiff_t at)
        : prediction_(rows, first, count),
          stored_(rows.storedRow(first) + at * size),
          out_(rows.outRow(first) + at * size),
          storedStep_(rows.size + 1 - size),
          outStep_(rows.size - size) {
        Words left{};
        Words upLeft{};
        for (int i = 0; i < used && at > i; ++i) {
            left[i] = word(rows.outRow(first + i) + (at - i - 1) * size);
            upLeft[i] = word(rows.rowAbove(first + i) + (at - i - 1) * size);
        }
        left_ = pixels(left);
        upLeft_ = pixels(upLeft);
    }

    VANTLE_LOOP void beginRound() {
        FourWords rows{};
        const std::uint8_t* from = stored_;
        for (std::size_t i = 0; i < std::size_t{used}; ++i, from += storedStep_)
            rows[i] = fourPixels<size, shuffle>(from);
        columns_ = transposed(rows);
        stored_ += roundSize;
    }

    /// Returns the latest pixel of each row.
    VANTLE_LOOP Words latest() const { return words(left_); }

    /// Makes the next pixel of each row; `above[index]` is the pixel above the first row's.
    template <int index>
    VANTLE_LOOP void step(std::size_t number, Words above) {
        const Pixels up = pixels(__builtin_shufflevector(above, words(left_), index, 4, 5, 6));
        left_ = pixels(columns_[number]) + prediction_(left_, up, upLeft_);
        upLeft_ = up;
        columns_[number] = words(left_);
    }

    VANTLE_LOOP void endRound() {
        const FourWords rows = transposed(columns_);
        std::uint8_t* to = out_;
        for (std::size_t i = 0; i < std::size_t{used}; ++i, to += outStep_)
            write<size, shuffle>(rows[i], to);
        out_ += roundSize;
    }

private:
    static constexpr int used = std::min(count - first, lanes);
    static constexpr std::ptrdiff_t roundSize = std::ptrdiff_t{lanes} * size;

    Pixels left_{};
    Pixels upLeft_{};
    FourWords columns_{};  ///< This round's pixels: first as stored, then unfiltered.
    const Prediction prediction_;
    const std::uint8_t* stored_;
    std::uint8_t* out_;
    const std::ptrdiff_t storedStep_;
    const std::ptrdiff_t outStep_;
};

/// Handles up to eight rows.
template <int size, int count, ByteShuffle shuffle, typename Prediction>
class EightRows {
public:
    VANTLE_LOOP EightRows(const Rows& rows, std::ptrdiff_t at)
        : upper_(rows, at), lower_(rows, at - lanes) {}

    VANTLE_LOOP void round(Words above) {
        upper_.beginRound();
        lower_.beginRound();
        step<0>(above);
        step<1>(above);
        step<2>(above);
        step<3>(above);
        upper_.endRound();
        lower_.endRound();
    }

private:
    template <int number>
    VANTLE_LOOP void step(Words above) {
        lower_.template step<lanes - 1>(number, upper_.latest());
        upper_.template step<number>(number, above);
    }

    FourRows<size, 0, count, shuffle, Prediction> upper_;
    FourRows<size, lanes, count, shuffle, Prediction> lower_;
};

template <int size, int count, ByteShuffle shuffle, typename Prediction>
class UpToFourRows {
public:
    VANTLE_LOOP UpToFourRows(const Rows& rows, std::ptrdiff_t at) : rows_(rows, at) {}

    VANTLE_LOOP void round(Words above) {
        rows_.beginRound();
        rows_.template step<0>(0, above);
        rows_.template step<1>(1, above);
        rows_.template step<2>(2, above);
        rows_.template step<3>(3, above);
        rows_.endRound();
    }

private:
    FourRows<size, 0, count, shuffle, Prediction> rows_;
};

/// Undoes `count` rows at once, each one pixel behind the row above it. Each step must wait for the
/// one before it, so eight rows take hardly longer than one.
template <int size, int count, ByteShuffle shuffle, typename Prediction>
VANTLE_LOOP void undoTogether(const Rows& rows) {
    const std::ptrdiff_t width = rows.size / size;
    const std::ptrdiff_t begin = std::min<std::ptrdiff_t>(count - 1, width);
    // Rounds read and write up to four bytes too many, which must belong to the same row.
    constexpr std::ptrdiff_t spare = 2;
    const std::ptrdiff_t rounds = std::max<std::ptrdiff_t>((width - spare - begin) / lanes, 0);
    const std::ptrdiff_t end = begin + rounds * lanes;
    const auto bytesBefore = [](std::ptrdiff_t at, int row) {
        return std::max<std::ptrdiff_t>(at - row, 0) * size;
    };
    for (int row = 0; row < count; ++row) undoBytes(rows, row, size, 0, bytesBefore(begin, row));
    std::conditional_t<(count > lanes), EightRows<size, count, shuffle, Prediction>,
                       UpToFourRows<size, count, shuffle, Prediction>>
        together(rows, begin);
    for (std::ptrdiff_t at = begin; at < end; at += lanes)
        together.round(fourPixels<size, shuffle>(rows.above + at * size));
    for (int row = 0; row < count; ++row)
        undoBytes(rows, row, size, bytesBefore(end, row), rows.size);
}

}  // namespace vantle::decoder::png
