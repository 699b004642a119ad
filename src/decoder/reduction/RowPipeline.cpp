#include "decoder/reduction/RowPipeline.h"

#include <utility>

namespace vantle::decoder {

RowPipeline::RowPipeline(std::size_t blockSize,
                         std::function<void(std::span<const std::uint8_t>)> consume)
    : blockSize_(blockSize), consume_(std::move(consume)) {
    for (auto& block : blocks_) block.resize(blockSize + padding);
    thread_ = std::jthread([this] { run(); });
}

RowPipeline::~RowPipeline() {
    finish();
}

std::span<std::uint8_t> RowPipeline::block() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return submitted_ - consumed_ < blockCount; });
    return std::span(blocks_[submitted_ % blockCount]).first(blockSize_);
}

void RowPipeline::submit(std::size_t used) {
    {
        const std::lock_guard lock(mutex_);
        used_[submitted_ % blockCount] = used;
        ++submitted_;
    }
    changed_.notify_all();
}

void RowPipeline::finish() {
    {
        const std::lock_guard lock(mutex_);
        isFinished_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable()) thread_.join();
}

void RowPipeline::run() {
    for (;;) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return consumed_ < submitted_ || isFinished_; });
        if (consumed_ == submitted_) return;
        const std::size_t index = consumed_ % blockCount;
        const std::span<const std::uint8_t> block(blocks_[index].data(), used_[index]);
        lock.unlock();
        consume_(block);
        lock.lock();
        ++consumed_;
        changed_.notify_all();
    }
}

}  // namespace vantle::decoder
