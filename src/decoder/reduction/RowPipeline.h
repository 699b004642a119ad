#pragma once

#include <array>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <span>
#include <thread>
#include <vector>

namespace vantle::decoder {

/// Hands blocks of bytes to a second thread, in order, while the first thread fills the next one.
class RowPipeline {
public:
    /// Blocks are readable this many bytes past their end.
    static constexpr std::size_t padding = 4;

    /// `consume` runs on the second thread, for each block that is submitted. It must not throw.
    RowPipeline(std::size_t blockSize, std::function<void(std::span<const std::uint8_t>)> consume);
    /// Waits until all submitted blocks are consumed.
    ~RowPipeline();
    RowPipeline(const RowPipeline&) = delete;
    RowPipeline& operator=(const RowPipeline&) = delete;

    /// Waits until a block is free and returns it, to be filled. Returns the same block until it is
    /// submitted.
    std::span<std::uint8_t> block();
    /// Passes on the first `used` bytes of the block.
    void submit(std::size_t used);
    /// Waits until all submitted blocks are consumed. Nothing may be submitted afterwards.
    void finish();

private:
    static constexpr std::size_t blockCount = 4;

    void run();

    const std::size_t blockSize_;
    const std::function<void(std::span<const std::uint8_t>)> consume_;
    std::array<std::vector<std::uint8_t>, blockCount> blocks_;
    std::array<std::size_t, blockCount> used_{};
    std::mutex mutex_;
    std::condition_variable changed_;
    std::size_t submitted_ = 0;
    std::size_t consumed_ = 0;
    bool isFinished_ = false;
    std::jthread thread_;  // must be last: it uses all of the above
};

}  // namespace vantle::decoder
