#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>

#include "decoder/reduction/Reducer.h"
#include "decoder/reduction/RowPipeline.h"

namespace vantle::decoder {

/// Reduces on a second thread the rows that a decoder writes on this one.
class ThreadedReduction {
public:
    ThreadedReduction(PixelSize source, PixelSize target, PixelLayout layout);

    /// Room for the next row, uninitialised; its contents count once rowIsWritten() is called.
    std::uint8_t* row();
    void rowIsWritten();

    /// The same for a row that stands elsewhere already.
    void addRow(const void* row) {
        std::memcpy(this->row(), row, rowSize_);
        rowIsWritten();
    }

    /// Absent when rows are missing.
    std::optional<Picture> take();

private:
    const std::size_t rowSize_;
    Reducer reducer_;
    RowPipeline pipeline_;
    std::span<std::uint8_t> block_;
    std::size_t used_ = 0;
};

/// Blocks of whole rows that are worth handing to another thread.
constexpr std::size_t rowsInBlock(std::size_t rowSize) {
    constexpr std::size_t worthwhile = std::size_t{128} * 1024;
    return std::max<std::size_t>(1, worthwhile / rowSize);
}

}  // namespace vantle::decoder
