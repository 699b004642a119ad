#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <vector>

#include "decoder/formats/png/PngFilters.h"

namespace vantle::decoder {
namespace {

using Bytes = std::vector<std::uint8_t>;

/// undoPngFilters() needs four bytes more than the rows have.
constexpr std::size_t spare = 4;

struct StoredRows {
    std::size_t pixels;
    std::size_t count;
    std::size_t bytesPerPixel;
    Bytes above;
    Bytes stored;

    std::size_t size() const { return pixels * bytesPerPixel; }
};

int prediction(int filter, int left, int up, int upLeft) {
    if (filter == 0) return 0;
    if (filter == 1) return left;
    if (filter == 2) return up;
    if (filter == 3) return (left + up) / 2;
    const int estimate = left + up - upLeft;
    const int fromLeft = std::abs(estimate - left);
    const int fromUp = std::abs(estimate - up);
    const int fromUpLeft = std::abs(estimate - upLeft);
    if (fromLeft <= fromUp && fromLeft <= fromUpLeft) return left;
    return fromUp <= fromUpLeft ? up : upLeft;
}

/// Undoes the filters as the standard defines them, byte by byte.
Bytes undoneByTheBook(const StoredRows& rows) {
    Bytes result;
    for (std::size_t row = 0; row < rows.count; ++row) {
        const std::uint8_t* stored = rows.stored.data() + row * (rows.size() + 1);
        const Bytes above =
            row == 0 ? rows.above
                     : Bytes(result.end() - static_cast<std::ptrdiff_t>(rows.size()), result.end());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const bool isFirst = i < rows.bytesPerPixel;
            const int left = isFirst ? 0 : result[result.size() - rows.bytesPerPixel];
            const int upLeft = isFirst ? 0 : above[i - rows.bytesPerPixel];
            result.push_back(static_cast<std::uint8_t>(
                stored[i + 1] + prediction(stored[0], left, above[i], upLeft)));
        }
    }
    return result;
}

Bytes undone(const StoredRows& rows, Processor processor) {
    // undoPngFilters() does not change the bytes after the rows.
    constexpr std::uint8_t untouched = 0xa5;
    Bytes result(rows.size() * rows.count + spare, untouched);
    EXPECT_TRUE(undoPngFilters(rows.stored.data(), rows.above.data(), result.data(), rows.count,
                               rows.size(), static_cast<int>(rows.bytesPerPixel), processor));
    for (std::size_t i = 0; i < spare; ++i) {
        EXPECT_EQ(result.back(), untouched);
        result.pop_back();
    }
    return result;
}

class PngFilters : public testing::TestWithParam<Processor> {
protected:
    /// The filter of each row is chosen from `filters`.
    StoredRows rows(std::size_t pixels, std::size_t count, std::size_t bytesPerPixel,
                    const Bytes& filters) {
        StoredRows made{pixels, count, bytesPerPixel, {}, {}};
        made.above = noise(made.size() + spare);
        for (std::size_t row = 0; row < count; ++row) {
            made.stored.push_back(filters[random_() % filters.size()]);
            const Bytes some = noise(made.size());
            made.stored.insert(made.stored.end(), some.begin(), some.end());
        }
        made.stored.resize(made.stored.size() + spare);
        return made;
    }

private:
    /// Returns random bytes, half of the time of a few values only: if neighbours are equal or at
    /// the limits of a byte, the choice between them matters.
    Bytes noise(std::size_t count) {
        const bool isOfFew = random_() % 2 == 0;
        Bytes bytes(count);
        for (auto& one : bytes)
            one = static_cast<std::uint8_t>(isOfFew ? 127 * (random_() % 4) : random_());
        return bytes;
    }

    std::mt19937 random_{1};
};

TEST_P(PngFilters, AreUndoneAsTheStandardDefines) {
    for (const Bytes& filters : {Bytes{0, 1, 2, 3, 4}, Bytes{4}, Bytes{3}, Bytes{1}, Bytes{1, 3, 4},
                                 Bytes{2, 4, 4, 4, 4, 4, 4}})
        for (const std::size_t bytesPerPixel : {3U, 4U})
            for (std::size_t pixels = 1; pixels <= 40; ++pixels)
                for (std::size_t count = 1; count <= 18; ++count) {
                    const StoredRows stored = rows(pixels, count, bytesPerPixel, filters);
                    ASSERT_EQ(undone(stored, GetParam()), undoneByTheBook(stored))
                        << pixels << " pixels, " << count << " rows";
                }
}

TEST_P(PngFilters, UnknownFiltersAreRefused) {
    const StoredRows stored = rows(9, 3, 4, {5});
    Bytes result(stored.size() * stored.count + spare);
    EXPECT_FALSE(undoPngFilters(stored.stored.data(), stored.above.data(), result.data(),
                                stored.count, stored.size(), 4, GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Processors, PngFilters,
                         testing::Values(Processor::thisOne, Processor::any));

}  // namespace
}  // namespace vantle::decoder
