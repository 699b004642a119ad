#pragma once

#include <memory>
#include <mutex>
#include <string>

#include "platform/linux/PollQueue.h"

namespace vantle {

/// A queue whose thread starts with the first work. Any thread may call any function.
class DeferredQueue final : public SerialQueue {
public:
    explicit DeferredQueue(std::string name) : name_(std::move(name)) {}

    void async(Work work) override { queue().async(std::move(work)); }
    void after(Seconds delay, Work work) override { queue().after(delay, std::move(work)); }

    /// Does what PollQueue::waitUntilIdle() does.
    bool waitUntilIdle(Seconds timeout) {
        const std::lock_guard lock(mutex_);
        return !queue_ || queue_->waitUntilIdle(timeout);
    }

private:
    PollQueue& queue() {
        const std::lock_guard lock(mutex_);
        if (!queue_) queue_ = std::make_unique<PollQueue>(name_);
        return *queue_;
    }

    const std::string name_;
    std::mutex mutex_;
    std::unique_ptr<PollQueue> queue_;  ///< Null until there is work.
};

}  // namespace vantle
