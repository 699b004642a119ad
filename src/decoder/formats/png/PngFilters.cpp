#include "decoder/formats/png/PngFilters.h"

#include <cstring>

namespace vantle::decoder {
namespace {

// One pixel at a time, its channels side by side: each pixel needs the one before it.
using Bytes = std::uint8_t __attribute__((vector_size(8)));
using Shorts = std::int16_t __attribute__((vector_size(16)));

/// Four bytes, of which the last is not a pixel's where that has three: one load is quicker than
/// two.
Bytes load(const std::uint8_t* from) {
    std::uint32_t value = 0;
    std::memcpy(&value, from, sizeof value);
    return reinterpret_cast<Bytes>(static_cast<std::uint64_t>(value));
}

template <int size>
void store(std::uint8_t* to, Bytes value) {
    const auto number = static_cast<std::uint32_t>(reinterpret_cast<std::uint64_t>(value));
    std::memcpy(to, &number, size);
}

Shorts widened(Bytes value) {
    return __builtin_convertvector(value, Shorts);
}

Bytes narrowed(Shorts value) {
    return __builtin_convertvector(value, Bytes);
}

Shorts magnitude(Shorts value) {
    return value > -value ? value : -value;
}

/// The three rows that a filter is about, and where they end.
struct Rows {
    const std::uint8_t* stored;
    const std::uint8_t* above;
    std::uint8_t* row;
    const std::uint8_t* end;  ///< Of `row`.

    void advance(int bytes) {
        stored += bytes;
        above += bytes;
        row += bytes;
    }
};

template <int size>
void undoSub(Rows rows) {
    Bytes left{};
    for (; rows.row < rows.end; rows.advance(size)) {
        left += load(rows.stored);
        store<size>(rows.row, left);
    }
}

void undoUp(const std::uint8_t* __restrict stored, const std::uint8_t* __restrict above,
            std::uint8_t* __restrict row, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        row[i] = static_cast<std::uint8_t>(stored[i] + above[i]);
}

template <int size>
void undoAverage(Rows rows) {
    Bytes left{};
    for (; rows.row < rows.end; rows.advance(size)) {
        const Bytes up = load(rows.above);
        // Half the sum, rounded down, without leaving eight bits.
        const Bytes average = (left & up) + ((left ^ up) >> 1);
        left = load(rows.stored) + average;
        store<size>(rows.row, left);
    }
}

/// The predictor: whichever of the three neighbours is nearest to left + up - upLeft.
Shorts nearestNeighbour(Shorts left, Shorts up, Shorts upLeft) {
    const Shorts towardsUp = up - upLeft;
    const Shorts towardsLeft = left - upLeft;
    const Shorts fromLeft = magnitude(towardsUp);
    const Shorts fromUp = magnitude(towardsLeft);
    const Shorts fromUpLeft = magnitude(towardsUp + towardsLeft);
    const Shorts upOrUpLeft = fromUp <= fromUpLeft ? up : upLeft;
    const Shorts leftIsNearest = (fromLeft <= fromUp) & (fromLeft <= fromUpLeft);
    return leftIsNearest ? left : upOrUpLeft;
}

template <int size>
void undoPaeth(Rows rows) {
    Shorts left{};
    Shorts upLeft{};
    for (; rows.row < rows.end; rows.advance(size)) {
        const Shorts up = widened(load(rows.above));
        left = (widened(load(rows.stored)) + nearestNeighbour(left, up, upLeft)) & 0xff;
        store<size>(rows.row, narrowed(left));
        upLeft = up;
    }
}

/// Two rows in one go, the lower one a pixel behind: each step waits for the one before it, so two
/// rows take hardly longer than one. The upper row's pixel is in the lower half of each vector.
template <int size>
void undoPaethTwice(Rows upper, const std::uint8_t* lowerStored, std::uint8_t* lowerRow) {
    const auto joined = [](Bytes low, Bytes high) {
        return __builtin_shufflevector(low, high, 0, 1, 2, 3, 8, 9, 10, 11);
    };
    // The first pixel has no neighbour but the one above it.
    Shorts upLeft = widened(load(upper.above));
    Shorts left = (widened(load(upper.stored)) + upLeft) & 0xff;
    store<size>(upper.row, narrowed(left));
    left = __builtin_shufflevector(left, Shorts{}, 0, 1, 2, 3, 8, 9, 10, 11);
    upLeft = __builtin_shufflevector(upLeft, Shorts{}, 0, 1, 2, 3, 8, 9, 10, 11);
    const auto* end = upper.end;
    upper.advance(size);
    const auto step = [&] {
        const Shorts above = widened(load(upper.above));
        const Shorts up = __builtin_shufflevector(above, left, 0, 1, 2, 3, 8, 9, 10, 11);
        const Shorts stored = widened(joined(load(upper.stored), load(lowerStored)));
        left = (stored + nearestNeighbour(left, up, upLeft)) & 0xff;
        upLeft = up;
        const Bytes pixels = narrowed(left);
        store<size>(lowerRow, __builtin_shufflevector(pixels, pixels, 4, 5, 6, 7, 4, 5, 6, 7));
        lowerStored += size;
        lowerRow += size;
        return pixels;
    };
    for (; upper.row < end; upper.advance(size)) store<size>(upper.row, step());
    // What this step reads past the upper row, it makes nothing of.
    step();
}

template <int size>
bool undo(int filter, const Rows& rows, std::size_t count) {
    switch (filter) {
        case 0:
            std::memcpy(rows.row, rows.stored, count);
            return true;
        case 1:
            undoSub<size>(rows);
            return true;
        case 2:
            undoUp(rows.stored, rows.above, rows.row, count);
            return true;
        case 3:
            undoAverage<size>(rows);
            return true;
        case 4:
            undoPaeth<size>(rows);
            return true;
        default:
            return false;
    }
}

}  // namespace

bool undoPngFilters(const std::uint8_t* stored, const std::uint8_t* above, std::uint8_t* rows,
                    std::size_t rowCount, std::size_t size, int bytesPerPixel) {
    constexpr int paeth = 4;
    for (std::size_t left = rowCount; left > 0;) {
        const Rows row{stored + 1, above, rows, rows + size};
        const std::uint8_t* next = stored + size + 1;
        const bool isPair = left > 1 && stored[0] == paeth && next[0] == paeth;
        if (isPair && bytesPerPixel == 4)
            undoPaethTwice<4>(row, next + 1, rows + size);
        else if (isPair)
            undoPaethTwice<3>(row, next + 1, rows + size);
        else if (!(bytesPerPixel == 4 ? undo<4>(stored[0], row, size)
                                      : undo<3>(stored[0], row, size)))
            return false;
        const std::size_t done = isPair ? 2 : 1;
        stored += done * (size + 1);
        rows += done * size;
        above = rows - size;
        left -= done;
    }
    return true;
}

}  // namespace vantle::decoder
