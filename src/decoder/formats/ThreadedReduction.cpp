#include "decoder/formats/ThreadedReduction.h"

namespace vantle::decoder {

ThreadedReduction::ThreadedReduction(PixelSize source, PixelSize target, PixelLayout layout)
    : rowSize_(static_cast<std::size_t>(source.width) *
               static_cast<std::size_t>(channelCount(layout))),
      reducer_(source, target, layout),
      pipeline_(rowSize_ * rowsInBlock(rowSize_), [this](std::span<const std::uint8_t> block) {
          for (; !block.empty(); block = block.subspan(rowSize_)) reducer_.addRow(block.data());
      }) {}

std::uint8_t* ThreadedReduction::row() {
    if (block_.empty()) block_ = pipeline_.block();
    return block_.data() + used_;
}

void ThreadedReduction::rowIsWritten() {
    used_ += rowSize_;
    if (used_ < block_.size()) return;
    pipeline_.submit(used_);
    block_ = {};
    used_ = 0;
}

std::optional<Picture> ThreadedReduction::take() {
    if (used_ > 0) pipeline_.submit(used_);
    used_ = 0;
    pipeline_.finish();
    if (!reducer_.isComplete()) return std::nullopt;
    return reducer_.take();
}

}  // namespace vantle::decoder
