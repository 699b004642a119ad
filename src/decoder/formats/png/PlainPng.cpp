#include <isa-l.h>

#include <atomic>
#include <memory>

#include "decoder/formats/ThreadedReduction.h"
#include "decoder/formats/png/PngDecoders.h"
#include "decoder/formats/png/PngFilters.h"
#include "decoder/formats/png/PngStream.h"

namespace vantle::decoder {
namespace {

/// Undoes the filters of rows as they come, and has them reduced on another thread.
class FilteredRows {
public:
    FilteredRows(const PngHeader& header, PixelSize target, std::size_t rowsInBlock)
        : bytesPerPixel_(header.colorType == 6 ? 4 : 3),
          rowSize_(rowSize(header)),
          first_(rowSize_ + RowPipeline::padding),
          above_(first_.data()),
          reducer_(header.size, target, bytesPerPixel_ == 4 ? PixelLayout::rgba : PixelLayout::rgb),
          pipeline_(rowSize_ * rowsInBlock, [this](std::span<const std::uint8_t> rows) {
              for (; !rows.empty(); rows = rows.subspan(rowSize_)) reducer_.addRow(rows.data());
          }) {}

    static std::size_t rowSize(const PngHeader& header) {
        return static_cast<std::size_t>(header.size.wide) * (header.colorType == 6 ? 4 : 3);
    }

    /// At most a block of rows, each behind the number of its filter.
    void add(std::span<const std::uint8_t> stored) {
        if (isDamaged_) return;
        const std::size_t count = stored.size() / (rowSize_ + 1);
        const auto rows = pipeline_.block().first(count * rowSize_);
        isDamaged_ =
            !undoPngFilters(stored.data(), above_, rows.data(), count, rowSize_, bytesPerPixel_);
        // It stays as it is until all other blocks have been filled.
        above_ = &rows.back() + 1 - rowSize_;
        pipeline_.submit(rows.size());
    }

    std::optional<Picture> take() {
        pipeline_.finish();
        if (isDamaged_ || !reducer_.isComplete()) return std::nullopt;
        return reducer_.take();
    }

private:
    const int bytesPerPixel_;
    const std::size_t rowSize_;
    const std::vector<std::uint8_t> first_;  ///< Zeros, which stand above the first row.
    const std::uint8_t* above_;
    Reducer reducer_;
    RowPipeline pipeline_;
    bool isDamaged_ = false;
};

/// Unpacks until `into` is full. False when the data end before, or make no sense.
bool inflate(inflate_state& state, PngStream& stream, std::span<std::uint8_t> into) {
    state.next_out = into.data();
    state.avail_out = static_cast<std::uint32_t>(into.size());
    while (state.avail_out > 0) {
        if (state.block_state == ISAL_BLOCK_FINISH) return false;
        const auto left = state.avail_out;
        if (isal_inflate(&state) != ISAL_DECOMP_OK) return false;
        if (state.avail_in > 0 || state.avail_out < left) continue;
        const auto more = stream.next();
        if (more.empty()) return false;
        state.next_in = const_cast<std::uint8_t*>(more.data());
        state.avail_in = static_cast<std::uint32_t>(more.size());
    }
    return true;
}

}  // namespace

std::optional<Picture> drawPlainPng(const InputFile& file, const PngHeader& header,
                                    PixelSize target) {
    const std::size_t storedRowSize = FilteredRows::rowSize(header) + 1;
    const std::size_t rowCount = rowsInBlock(storedRowSize);
    FilteredRows rows(header, target, rowCount);
    RowPipeline pipeline(rowCount * storedRowSize,
                         [&](std::span<const std::uint8_t> block) { rows.add(block); });
    PngStream stream(file, header);
    const auto state = std::make_unique<inflate_state>();
    isal_inflate_init(state.get());
    state->crc_flag = ISAL_ZLIB;

    for (auto left = static_cast<std::size_t>(header.size.high); left > 0;) {
        const std::size_t count = std::min(left, rowCount);
        const auto block = pipeline.block().first(count * storedRowSize);
        if (!inflate(*state, stream, block)) return std::nullopt;
        pipeline.submit(block.size());
        left -= count;
    }
    pipeline.finish();
    return stream.endsWell() ? rows.take() : std::nullopt;
}

}  // namespace vantle::decoder
