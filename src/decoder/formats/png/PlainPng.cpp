#include <isa-l.h>

#include <memory>

#include "decoder/formats/ThreadedReduction.h"
#include "decoder/formats/png/PngDecoders.h"
#include "decoder/formats/png/PngFilters.h"
#include "decoder/formats/png/PngStream.h"

namespace vantle::decoder {
namespace {

/// Undoes the filters of rows as they arrive, and reduces the rows on another thread.
class FilteredRows {
public:
    FilteredRows(const PngHeader& header, PixelSize target, std::size_t rowsInBlock)
        : bytesPerPixel_(bytesPerPixel(header)),
          rowSize_(rowSize(header)),
          first_(rowSize_ + RowPipeline::padding),
          above_(first_.data()),
          reducer_(header.size, target, bytesPerPixel_ == 4 ? PixelLayout::rgba : PixelLayout::rgb),
          pipeline_(rowSize_ * rowsInBlock, [this](std::span<const std::uint8_t> rows) {
              for (; !rows.empty(); rows = rows.subspan(rowSize_)) reducer_.addRow(rows.data());
          }) {}

    static std::size_t rowSize(const PngHeader& header) {
        return static_cast<std::size_t>(header.size.width) *
               static_cast<std::size_t>(bytesPerPixel(header));
    }

    /// Adds at most one block of rows, each preceded by the number of its filter.
    void add(std::span<const std::uint8_t> stored) {
        if (isDamaged_) return;
        const std::size_t count = stored.size() / (rowSize_ + 1);
        const auto rows = pipeline_.block().first(count * rowSize_);
        isDamaged_ =
            !undoPngFilters(stored.data(), above_, rows.data(), count, rowSize_, bytesPerPixel_);
        // This row does not change until all other blocks have been filled.
        above_ = &rows.back() + 1 - rowSize_;
        pipeline_.submit(rows.size());
    }

    std::optional<Picture> take() {
        pipeline_.finish();
        if (isDamaged_ || !reducer_.isComplete()) return std::nullopt;
        return reducer_.take();
    }

private:
    static int bytesPerPixel(const PngHeader& header) {
        return header.colorType == PngHeader::rgba ? 4 : 3;
    }

    const int bytesPerPixel_;
    const std::size_t rowSize_;
    const std::vector<std::uint8_t> first_;  ///< The zeros above the first row.
    const std::uint8_t* above_;
    Reducer reducer_;
    RowPipeline pipeline_;
    bool isDamaged_ = false;
};

/// Decompresses the picture data.
class Inflater {
public:
    explicit Inflater(PngStream& stream) : stream_(stream) {
        isal_inflate_init(&state_);
        // The checksums of the chunks are compared, so the checksum of the zlib stream would add
        // nothing.
        state_.crc_flag = ISAL_DEFLATE;
    }

    /// Skips the header of the zlib stream. Returns false if it is not a valid one.
    bool begin() {
        const auto method = nextByte();
        const auto flags = nextByte();
        constexpr int deflate = 8;
        constexpr int hasDictionary = 0x20;
        return method && flags && (*method & 0x0f) == deflate && !(*flags & hasDictionary) &&
               (*method * 256 + *flags) % 31 == 0;
    }

    /// Decompresses until `into` is full. Returns false if the data end first or are damaged.
    bool fill(std::span<std::uint8_t> into) {
        state_.next_out = into.data();
        state_.avail_out = static_cast<std::uint32_t>(into.size());
        while (state_.avail_out > 0) {
            if (state_.block_state == ISAL_BLOCK_FINISH) return false;
            const auto left = state_.avail_out;
            if (isal_inflate(&state_) != ISAL_DECOMP_OK) return false;
            const bool isWaiting = state_.avail_in == 0 && state_.avail_out == left;
            if (isWaiting && !readMore()) return false;
        }
        return true;
    }

private:
    bool readMore() {
        const auto more = stream_.next();
        state_.next_in = const_cast<std::uint8_t*>(more.data());
        state_.avail_in = static_cast<std::uint32_t>(more.size());
        return !more.empty();
    }

    std::optional<int> nextByte() {
        if (state_.avail_in == 0 && !readMore()) return std::nullopt;
        --state_.avail_in;
        return *state_.next_in++;
    }

    PngStream& stream_;
    inflate_state state_;
};

}  // namespace

std::optional<Picture> drawPlainPng(const InputFile& file, const PngHeader& header,
                                    PixelSize target) {
    const std::size_t storedRowSize = FilteredRows::rowSize(header) + 1;
    const std::size_t rowCount = std::max(rowsInBlock(storedRowSize), rowsUnfilteredTogether);
    FilteredRows rows(header, target, rowCount);
    RowPipeline pipeline(rowCount * storedRowSize,
                         [&](std::span<const std::uint8_t> block) { rows.add(block); });
    PngStream stream(file, header);
    const auto inflater = std::make_unique<Inflater>(stream);
    if (!inflater->begin()) return std::nullopt;
    for (auto left = static_cast<std::size_t>(header.size.height); left > 0;) {
        const std::size_t count = std::min(left, rowCount);
        const auto block = pipeline.block().first(count * storedRowSize);
        if (!inflater->fill(block)) return std::nullopt;
        pipeline.submit(block.size());
        left -= count;
    }
    pipeline.finish();
    return stream.finishIntact() ? rows.take() : std::nullopt;
}

}  // namespace vantle::decoder
