#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>

#include "decoder/reduction/Reducer.h"
#include "decoder/reduction/RowPipeline.h"

namespace vantle::decoder {

/// Reduces rows on a second thread while a decoder writes them on this one.
class ThreadedReduction {
public:
    ThreadedReduction(PixelSize source, PixelSize target, PixelLayout layout);

    /// Returns uninitialised room for the next row. Call rowIsWritten() when the row is complete.
    std::uint8_t* row();
    void rowIsWritten();

    /// Adds a copy of a row.
    void addRow(const void* row) {
        std::memcpy(this->row(), row, rowSize_);
        rowIsWritten();
    }

    /// Returns the reduced picture; std::nullopt if rows are missing.
    std::optional<Picture> take();

private:
    const std::size_t rowSize_;
    Reducer reducer_;
    RowPipeline pipeline_;
    std::span<std::uint8_t> block_;
    std::size_t used_ = 0;
};

/// Returns how many rows make a block that is worth handing to another thread; at least 1.
constexpr std::size_t rowsInBlock(std::size_t rowSize) {
    constexpr std::size_t worthwhile = std::size_t{128} * 1024;
    return std::max<std::size_t>(1, worthwhile / rowSize);
}

}  // namespace vantle::decoder
