#include "decoder/reduction/Reducer.h"

#include <algorithm>
#include <utility>

namespace vantle::decoder {
namespace {

/// This many 8-bit samples fit into a 16-bit sum.
constexpr int maximumBlock = 256;

int blockSide(int source, int target) {
    return std::clamp(source / (2 * target), 1, maximumBlock);
}

int blockCount(int length, int side) {
    return (length + side - 1) / side;
}

}  // namespace

Reducer::Blocks Reducer::blocks(PixelSize source, PixelSize target) {
    const int across = blockSide(source.width, target.width);
    const int down = blockSide(source.height, target.height);
    return {across, down, {blockCount(source.width, across), blockCount(source.height, down)}};
}

Reducer::Reducer(PixelSize source, PixelSize target, PixelLayout layout, const Kernels& kernels)
    : source_(source),
      target_(target),
      layout_(layout),
      channels_(channelCount(layout)),
      kernels_(kernels),
      blocks_(blocks(source, target)),
      across_(blocks_.reduced.width, static_cast<double>(source.width) / blocks_.across,
              target.width),
      down_(blocks_.reduced.height, static_cast<double>(source.height) / blocks_.down,
            target.height),
      premultiplied_(layout == PixelLayout::rgba ? samples(source.width) : 0),
      sums_(blocks_.down > 1 || blocks_.across > 1 ? samples(source.width) : 0),
      ring_(samples(blocks_.reduced.width) * static_cast<std::size_t>(down_.maximumTaps())),
      window_(static_cast<std::size_t>(down_.maximumTaps())),
      column_(samples(blocks_.reduced.width)),
      narrow_(samples(target.width)),
      result_{target, std::vector<std::uint8_t>(static_cast<std::size_t>(target.width) *
                                                static_cast<std::size_t>(target.height) * 4)} {}

std::size_t Reducer::samples(int pixels) const {
    return static_cast<std::size_t>(pixels) * static_cast<std::size_t>(channels_) +
           Kernels::padding;
}

std::uint16_t* Reducer::reducedRow(int row) {
    return ring_.data() +
           samples(blocks_.reduced.width) * static_cast<std::size_t>(row % down_.maximumTaps());
}

void Reducer::addRow(const std::uint8_t* row) {
    if (sourceRows_ == source_.height) return;
    ++sourceRows_;
    const auto width = static_cast<std::size_t>(source_.width);
    if (layout_ == PixelLayout::rgba && kernels_.premultiply(row, premultiplied_.data(), width))
        row = premultiplied_.data();
    const std::size_t count = width * static_cast<std::size_t>(channels_);
    if (sums_.empty()) {
        kernels_.widenRow(row, reducedRow(reducedRows_), count);
        addReducedRow();
        return;
    }
    kernels_.addRow(row, sums_.data(), count);
    if (++rowsInBlock_ < blocks_.down && sourceRows_ < source_.height) return;
    kernels_.averageColumns(sums_.data(), reducedRow(reducedRows_), channels_, source_.width,
                            blocks_.across, rowsInBlock_);
    std::ranges::fill(sums_, std::uint16_t{0});
    rowsInBlock_ = 0;
    addReducedRow();
}

void Reducer::addReducedRow() {
    ++reducedRows_;
    finishTargets();
}

/// Makes each target row for which all source rows have arrived.
void Reducer::finishTargets() {
    while (nextTarget_ < target_.height) {
        const Taps& taps = down_.at(nextTarget_);
        if (taps.start + taps.count > reducedRows_) return;
        for (int i = 0; i < taps.count; ++i)
            window_[static_cast<std::size_t>(i)] = reducedRow(taps.start + i);
        kernels_.reduceDown(window_.data(), taps.weights, taps.count, column_.data(),
                            samples(blocks_.reduced.width) - Kernels::padding);
        kernels_.reduceAcross(column_.data(), across_.data(), channels_, target_.width,
                              narrow_.data());
        writeTarget(narrow_.data());
        ++nextTarget_;
    }
}

void Reducer::writeTarget(const std::uint8_t* samples) {
    std::uint8_t* out = result_.rgba.data() + static_cast<std::size_t>(nextTarget_) *
                                                  static_cast<std::size_t>(target_.width) * 4;
    for (int pixel = 0; pixel < target_.width; ++pixel, out += 4, samples += channels_) {
        const auto channel = [&](int index) { return samples[channels_ == 1 ? 0 : index]; };
        const std::uint8_t alpha = channels_ == 4 ? samples[3] : 255;
        // The filter overshoots at edges, but colours must not exceed their alpha.
        const std::uint8_t maximum = layout_ == PixelLayout::cmyk ? 255 : alpha;
        for (int index = 0; index < 3; ++index) out[index] = std::min(channel(index), maximum);
        out[3] = alpha;
    }
}

Picture Reducer::take() {
    return std::move(result_);
}

}  // namespace vantle::decoder
