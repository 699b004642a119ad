#include "decoder/formats/png/PngFilters.h"

#include <algorithm>
#include <array>

#include "decoder/formats/png/PngRows.h"

namespace vantle::decoder {
namespace {

using namespace png;

VANTLE_LOOP void undoUp(const std::uint8_t* __restrict stored, const std::uint8_t* __restrict above,
                        std::uint8_t* __restrict row, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        row[i] = static_cast<std::uint8_t>(stored[i] + above[i]);
}

constexpr int maximumTogether = rowsUnfilteredTogether;

/// The functions that undo the filters on one kind of processor.
struct Loops {
    using Loop = void (*)(const Rows&);
    using ByCount = std::array<Loop, maximumTogether + 1>;

    void (*up)(const std::uint8_t* stored, const std::uint8_t* above, std::uint8_t* row,
               std::size_t count);
    Loop sub;
    Loop average;
    ByCount paeth;
    ByCount any;
};

// NOLINTBEGIN(bugprone-macro-parentheses): an attribute cannot stand in parentheses
#define VANTLE_LOOPS(NAME, TARGET, BYTES)                                                \
    template <int size>                                                                  \
    struct NAME {                                                                        \
        static constexpr ByteShuffle shuffle = BYTES;                                    \
        TARGET static void up(const std::uint8_t* stored, const std::uint8_t* above,     \
                              std::uint8_t* row, std::size_t count) {                    \
            undoUp(stored, above, row, count);                                           \
        }                                                                                \
        template <int count, typename Prediction>                                        \
        TARGET static void together(const Rows& rows) {                                  \
            undoTogether<size, count, shuffle, Prediction>(rows);                        \
        }                                                                                \
        template <typename Prediction>                                                   \
        static constexpr Loops::ByCount byCount() {                                      \
            return {nullptr,                                                             \
                    together<1, Prediction>,                                             \
                    together<2, Prediction>,                                             \
                    together<3, Prediction>,                                             \
                    together<4, Prediction>,                                             \
                    together<5, Prediction>,                                             \
                    together<6, Prediction>,                                             \
                    together<7, Prediction>,                                             \
                    together<8, Prediction>};                                            \
        }                                                                                \
        static constexpr Loops table{up, together<1, OnlySub>, together<1, OnlyAverage>, \
                                     byCount<OnlyPaeth>(), byCount<AnyFilter>()};        \
    };

// NOLINTEND(bugprone-macro-parentheses)

#ifdef __SSE2__
VANTLE_LOOPS(Portable, , ByteShuffle::slow)
#else
VANTLE_LOOPS(Portable, , ByteShuffle::quick)
#endif
#ifdef __x86_64__
VANTLE_LOOPS(Avx2, [[gnu::target("avx2")]], ByteShuffle::quick)
#endif

template <int size>
const Loops& loopsFor(Processor processor) {
#ifdef __x86_64__
    const bool isBest = processor == Processor::thisOne && __builtin_cpu_supports("avx2");
    if (isBest) return Avx2<size>::table;
#endif
    return Portable<size>::table;
}

/// Returns how many of the next `left` rows to undo together: those that need the previous pixel.
int countTogether(const Rows& rows, std::size_t left) {
    const int maximum = static_cast<int>(std::min<std::size_t>(left, maximumTogether));
    const auto needsPixelBefore = [&](int row) {
        const Filter filter = rows.filter(row);
        return filter == Filter::sub || filter == Filter::average || filter == Filter::paeth;
    };
    int count = 0;
    while (count < maximum && needsPixelBefore(count)) ++count;
    return count;
}

Loops::Loop chosen(const Loops& loops, const Rows& rows, int count) {
    const auto isPaeth = [&](int row) { return rows.filter(row) == Filter::paeth; };
    int paeths = 0;
    while (paeths < count && isPaeth(paeths)) ++paeths;
    const auto index = static_cast<std::size_t>(count);
    if (paeths == count) return loops.paeth.at(index);
    if (count > 1) return loops.any.at(index);
    return rows.filter(0) == Filter::sub ? loops.sub : loops.average;
}

}  // namespace

bool undoPngFilters(const std::uint8_t* stored, const std::uint8_t* above, std::uint8_t* rows,
                    std::size_t rowCount, std::size_t size, int bytesPerPixel,
                    Processor processor) {
    const Loops& loops = bytesPerPixel == 4 ? loopsFor<4>(processor) : loopsFor<3>(processor);
    for (std::size_t left = rowCount; left > 0;) {
        const Rows next{stored + 1, above, rows, static_cast<std::ptrdiff_t>(size)};
        const int count = countTogether(next, left);
        if (count > 0)
            chosen(loops, next, count)(next);
        else if (next.filter(0) == Filter::none)
            std::memcpy(rows, stored + 1, size);
        else if (next.filter(0) == Filter::up)
            loops.up(stored + 1, above, rows, size);
        else
            return false;
        const std::size_t done = std::max<std::size_t>(static_cast<std::size_t>(count), 1);
        stored += done * (size + 1);
        rows += done * size;
        above = rows - size;
        left -= done;
    }
    return true;
}

}  // namespace vantle::decoder
